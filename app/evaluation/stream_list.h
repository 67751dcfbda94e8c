// The selected stream as the list routines see it: its components by position, and segment counts of its
// chains.
#pragma once

#include <string>
#include <vector>

#include "minihost/embedded_host.h"

namespace app {

using minihost::Int;

// Segments of component k per molecule of j. Column 1 of a component without segments holds 1.
struct SegmentCounts {
    Int leading_dimension;       // number of components
    std::vector<Int> segments;   // component index of each segment, in the order of the segment list
    std::vector<Int> is_chain;   // by component index: 1 for a polymer or oligomer of the list
    std::vector<double> counts;  // column-major

    double of(Int chain, Int segment) const;
    Int segment_count() const { return static_cast<Int>(segments.size()); }
};

struct StreamList {
    std::vector<Int> index;                 // components with a flow, in component order
    std::vector<double> mole_flow;          // kmol/h, apparent basis, by position
    std::vector<double> flow_of_component;  // the same by component index
    std::vector<double> molecular_weight;   // g/mol, by component index
    SegmentCounts counts;

    Int count() const { return static_cast<Int>(index.size()); }
    double weight(Int component) const { return molecular_weight[static_cast<std::size_t>(component - 1)]; }
    std::vector<Int> chains() const;
};

// By component index, g/mol.
std::vector<double> molecular_weights(const minihost::Host& host);

// Selects the stream and lists what flows in it.
StreamList list_stream(const std::string& name, minihost::Host& host);

}  // namespace app
