// A call of each routine that does not write to the host, for laws that all of them keep.
#pragma once

#include <array>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "support/guarded.h"
#include "support/world.h"

namespace support {

// Two segments, polymers with and without preferred attributes, an oligomer and water; `attribute` of the
// polymers holds `value`, every one when it is empty.
World world_with(const std::string& attribute, double value);
// The same with every attribute as `change` leaves it.
World world_with(const std::function<void(Attribute&)>& change);

// Arguments that fit every routine: what a count counts is its name, all real inputs share their values.
struct Arguments {
    explicit Arguments(World& world, double every_real = std::numeric_limits<double>::infinity());

    // Every count at once.
    void set_counts(Int count) { n = segments = sites = parts = points = positions = count; }
    double* reals(std::size_t which) { return real_outputs.at(which - 1); }
    Int* integers(std::size_t which) { return integer_outputs.at(which - 1); }
    // What the routine wrote.
    std::vector<Int> results() const;
    // Nothing was written beside the arrays.
    bool fences_hold() const
    {
        return of_each_output([](const auto& output) { return output.fence_holds(); });
    }
    bool untouched() const
    {
        return of_each_output([](const auto& output) { return output.untouched(); });
    }

    Int n;  // components, all of them listed
    Int segments = 2, sites = 2, parts = 1, points = 8, positions = 6;
    Int one = 1, two = 2, three = 3, six = 6, polymer;
    std::vector<Int> listed, segment_list, flags, ones, unmasked;
    std::vector<double> values, selected;

    std::vector<GuardedReals> real_outputs;
    std::vector<GuardedInts> integer_outputs;
    std::array<double, 2> real{};
    std::array<Int, 2> integer{};

private:
    template <typename Holds>
    bool of_each_output(const Holds& holds) const
    {
        return std::ranges::all_of(real_outputs, holds) && std::ranges::all_of(integer_outputs, holds);
    }
};

struct Routine {
    std::string name;
    void (*call)(Arguments&);
};
const std::vector<Routine>& routines_that_only_read();

}  // namespace support
