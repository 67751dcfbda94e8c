// The values that the chain averages of a polymer are taken from, in the library's order of preference.
#pragma once

#include <string>

#include "app/evaluation/given_polymer.h"

namespace app {

struct AverageSources {
    bool takes_dpn_parameter;
    bool takes_pdi_parameter;
    bool takes_segment_weight;        // MWSEG
    std::string length;               // in words: "FMOM and ZMOM"
    std::string mean_segment_weight;  // "SFLOW"
    std::string dispersity;           // "ZMOM, SMOM and SFLOW"
};

AverageSources average_sources(const Settings& settings, const GivenPolymer& polymer,
                               const std::vector<GivenSegment>& segments);

}  // namespace app
