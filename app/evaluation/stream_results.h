// Results of one stream.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/evaluation/bases.h"
#include "app/evaluation/chain_make_up.h"
#include "app/evaluation/chain_properties.h"

namespace app {

// Chain averages of a component that flows in a stream.
struct ChainAverages {
    std::string component;
    ComponentClass kind;
    double mole_flow;            // kmol/h, apparent basis
    double dpn;                  // segments per chain
    double mean_segment_weight;  // g/mol
    double mn;                   // g/mol
    double mw;                   // g/mol
    double pdi;                  // Mw/Mn
    std::optional<double> mz;    // g/mol; with TMOM and SMOM
    std::optional<double> mv;    // g/mol; of a Schulz-Zimm distribution with Mn and Mw
};

// The share of one segment in a polymer or oligomer.
struct SegmentShare {
    std::string component;
    std::string segment;
    double mole_fraction;
    double mass_fraction;
};

// The crystallinity parameter of a component that gives it.
struct Crystallinity {
    std::string component;
    double value;  // 1
};

struct StreamResults {
    std::string stream;
    std::vector<ChainAverages> averages;
    std::vector<SegmentShare> shares;
    Compositions compositions;
    SegmentCountMatrix segment_counts;
    std::vector<ChainAverageComparison> chain_weights;
    std::vector<ChainProperties> properties;
    std::vector<Crystallinity> crystallinities;
};

// Selects each stream of the case in turn and asks the library's routines about it.
std::vector<StreamResults> evaluate_streams(const Case& input, minihost::Host& host);

}  // namespace app
