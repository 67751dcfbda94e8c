// The polymer that is made between two streams.
#pragma once

#include <string>
#include <vector>

#include "app/case/case_model.h"
#include "minihost/embedded_host.h"

namespace app {

// What the outlet holds beyond the inlet, of one site type or in total.
struct PolymerMade {
    std::string site;            // "1", "2", …, "total"
    double mass_flow;            // kg/h
    double mean_segment_weight;  // g/mol
    double mn;                   // g/mol
    double mw;                   // g/mol
    double dpn;
    double dpw;
    double pdi;
};

struct ReactorResults {
    std::string reactor;
    std::string inlet;
    std::string outlet;
    std::vector<PolymerMade> made;
};

// Site types that are told apart: those of the case when every polymer carries their moments and segment
// flows, 0 when the polymer can only be told as a whole.
Int site_types(minihost::Host& host);

std::vector<ReactorResults> evaluate_reactors(const Case& input, minihost::Host& host);

}  // namespace app
