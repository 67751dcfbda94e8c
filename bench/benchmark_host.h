// A run of a given size in the embedded host, the same each time.
#pragma once

#include <memory>

#include "minihost/embedded_host.h"

namespace bench {

using Int = std::int64_t;
using Real = double;

// Of the components the first fifth are segments, the second polymers, the third oligomers; the rest are
// conventional.
struct Run {
    explicit Run(Int components) : nc(components), group(components / 5) {}

    Int nc;
    Int group;

    bool is_segment(Int c) const { return c <= group; }
    bool is_polymer(Int c) const { return c > group && c <= 2 * group; }
    bool is_oligomer(Int c) const { return c > 2 * group && c <= 3 * group; }
    Int first_polymer() const { return group + 1; }
};

inline constexpr Int site_types = 2;
inline constexpr const char* stream_name = "S";

// The host of a run, with its paragraph checked and its stream selected. Polymers carry moments and segment
// flows, and per site type too; neither lengths nor molecular weights nor fractions, so that every average
// takes its longest way.
std::unique_ptr<minihost::Host> lay_run(const Run& run);

}  // namespace bench
