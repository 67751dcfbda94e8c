// A stream as the list routines see it: its components by position, and segment counts of its chains.
#pragma once

#include <string>
#include <vector>

#include "app/routines/segment_count_matrix.h"
#include "minihost/embedded_host.h"

namespace app {

struct StreamList {
    routines::Components components;        // with a flow, in component order
    std::vector<double> mole_flow;          // kmol/h, apparent basis, by position
    std::vector<double> flow_of_component;  // the same by component index
    std::vector<double> molecular_weight;   // g/mol, by component index
    routines::SegmentCounts counts;

    std::size_t size() const { return components.size(); }
    routines::Components chains() const;
    std::vector<double> molecular_weights_of(const routines::Components& listed) const;
};

// By component index, g/mol.
std::vector<double> molecular_weights(const minihost::Host& host);

// Selects the stream and lists what flows in it.
StreamList list_stream(const std::string& name, minihost::Host& host);

}  // namespace app
