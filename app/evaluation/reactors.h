// The polymer that is made between two streams.
#pragma once

#include <string>
#include <vector>

#include "app/case/case_model.h"
#include "minihost/embedded_host.h"

namespace app {

// The polymer that the outlet holds beyond the inlet, of one site type or in total.
struct SitePolymer {
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
    std::vector<std::string> inlets;
    std::string outlet;
    std::vector<SitePolymer> made;
};

// Number of catalyst site types that are distinguished: those of the case when every polymer carries their
// moments and segment flows, otherwise 0.
std::size_t site_types(minihost::Host& host);

std::vector<ReactorResults> evaluate_reactors(const Case& input, minihost::Host& host);

}  // namespace app
