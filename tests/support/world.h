// Worlds for tests: a run's components, polymer data and streams, told as facts.
//
//   auto world = World{}.segments({"A", "B"})
//                       .polymer("P", {{"DPN", 120}, {"SFLOW", {30, 10}}})
//                       .oligomer("O", {{"A", 2}, {"B", 3}})
//                       .conventional("W", 18)
//                       .parameter("P", Parameter::dpn, 7);
//   EXPECT_EQ(world.ask(POLY_GETDPN, "P"), 120);
//
// Components get their indices in the order in which they are named, behind one that nothing names: so the
// index of a component is never its position in a list by accident. The embedded host is made at the first
// question, with a checked store; after that the facts stand. To ask one world takes the host from the one
// asked before, which gets a new one when it is asked again.
#pragma once

#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "minihost/embedded_host.h"

namespace support {

using minihost::BlockId;
using minihost::ComponentClass;
using minihost::Int;
using minihost::Parameter;

inline constexpr double missing = 1e35;
inline constexpr double zero_bound = 1e-15;

// An attribute and its values.
struct Attribute {
    Attribute(const char* attribute, double value) : name(attribute), values{value} {}
    Attribute(const char* attribute, std::initializer_list<double> all) : name(attribute), values(all) {}
    std::string name;
    std::vector<double> values;
};
using Attributes = std::vector<Attribute>;

// Segment types as the segment list holds them.
enum class SegmentType : Int { end = 1, repeat = 2, branch3 = 3, branch4 = 4 };

struct Segment {
    Segment(const char* segment, double weight = 100, SegmentType segment_type = SegmentType::repeat)
        : id(segment), molecular_weight(weight), type(segment_type)
    {
    }
    std::string id;
    double molecular_weight;
    SegmentType type;
};

// One substream of an explicit stream vector.
struct Part {
    Int type = 1;
    std::map<std::string, double> flows = {};
    std::map<std::string, Attributes> attributes = {};
};

// The polymer data of a run, by component index.
struct PolymerLists {
    struct Segment {
        Int component;
        SegmentType type = SegmentType::repeat;
    };
    struct Oligomer {
        Int component;
        std::map<Int, double> counts;  // segments per molecule, by the segment's component index
    };
    std::vector<Segment> segments = {};
    std::vector<Int> polymers = {};
    std::vector<Oligomer> oligomers = {};
    std::vector<Int> end_segments = {};
    Int sites = 0;  // catalyst site types
};

// Lays the lists in the order given, also such as no paragraph check would build, and returns the id of the
// block.
BlockId lay_polymer_block(minihost::Store& store, const PolymerLists& lists);

class World {
public:
    World();

    // ---- facts

    // Segment components and their places in the segment list; those of type end also join the end-segment
    // list.
    World& segments(std::initializer_list<Segment> segments);
    // A polymer component, listed as a polymer, with its attributes in the current stream.
    World& polymer(const std::string& id, const Attributes& given = {}, double molecular_weight = 1);
    // An oligomer component, listed as an oligomer, with its segments per molecule.
    World& oligomer(const std::string& id, const std::map<std::string, double>& counts,
                    double molecular_weight = 1);
    World& conventional(const std::string& id, double molecular_weight = 1, const std::string& name = "");
    // A component of a class that stands in no list.
    World& component(const std::string& id, ComponentClass component_class, double molecular_weight = 1);

    World& parameter(const std::string& id, Parameter parameter, double value);
    // The parameter vector does not exist, whatever components give.
    World& without(Parameter parameter)
    {
        options_.absent_parameters.insert(parameter);
        return *this;
    }
    // What the host says of a component, whatever lists it stands in.
    World& class_of(const std::string& id, ComponentClass given)
    {
        return set(at(id).component_class, given);
    }

    // Attributes of any component in the current stream.
    World& attributes(const std::string& id, const Attributes& given);
    // The component carries the attribute, but the host gives an offset that is not positive.
    World& hidden_attribute(const std::string& id, const std::string& attribute, Int offset = -1)
    {
        return set(hidden_[{id, attribute}], offset);
    }
    World& stream(const std::string& name, const std::vector<Part>& parts);

    World& sites(Int count) { return set(lists_.sites, count); }
    World& end_segments(const std::vector<std::string>& ids)
    {
        return set(lists_.end_segments, indices(ids));
    }
    World& bounds(double missing_value_bound, double zero)
    {
        return set(options_.missing_value_bound, missing_value_bound).set(options_.zero_bound, zero);
    }
    World& pdi_mode(Int mode) { return set(pdi_mode_, mode); }
    World& polymer_count(Int count) { return set(polymer_count_, count); }
    // The host gives this id (0 or less) for the polymer block.
    World& without_polymer_block(BlockId id = 0) { return set(polymer_block_, id); }

    // ---- questions

    minihost::Host& host();
    Int index(const std::string& id) const;
    std::vector<Int> indices(const std::vector<std::string>& ids) const;
    Int component_count() const { return static_cast<Int>(components_.size()); }
    // Molecular weights by component index.
    std::vector<double> molecular_weights() const;
    // Component indices in segment-list order.
    std::vector<Int> segment_list() const;
    const minihost::StreamView& view(const std::string& stream) { return host().streams().view(stream); }

    // Results of a routine with the arguments selector, N, IDX, OUT.
    template <typename Routine>
    std::vector<double> ask(Routine* routine, const std::vector<std::string>& ids, Int selector = 1)
    {
        host();
        const std::vector<Int> listed = indices(ids);
        const auto n = static_cast<Int>(listed.size());
        std::vector<double> out(listed.size(), -12345.0);
        routine(&selector, &n, listed.data(), out.data());
        return out;
    }
    template <typename Routine>
    double ask(Routine* routine, const char* id, Int selector = 1)
    {
        return ask(routine, std::vector<std::string>{id}, selector).front();
    }

private:
    using Slot = std::unique_ptr<minihost::Host>;

    template <typename Fact, typename Value>
    World& set(Fact& fact, const Value& value)
    {
        fact = value;
        return *this;
    }
    minihost::Component& at(const std::string& id);
    Slot make_host() const;

    std::vector<minihost::Component> components_;
    PolymerLists lists_;
    std::vector<minihost::Stream> streams_;  // the current one first
    std::map<std::pair<std::string, std::string>, Int> hidden_;
    minihost::Options options_;
    std::optional<Int> pdi_mode_;
    std::optional<Int> polymer_count_;
    std::optional<BlockId> polymer_block_;
    std::shared_ptr<Slot> slot_;
};

}  // namespace support
