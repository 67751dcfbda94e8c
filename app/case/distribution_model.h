// Chain-length distributions and binary parameter sets as a case file states them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/case/placed_name.h"

namespace app {

// Polymer that one site type makes in one increment; tau + beta is greater than 0.
struct SiteIncrement {
    double tau = 0;     // chains per segment ended by transfer and disproportionation
    double beta = 0;    // chains per segment ended by combination
    double amount = 0;  // any unit, the same in the whole distribution
};

using Increment = std::vector<SiteIncrement>;

// What one reactor or unit makes; every increment has one entry for each site.
struct DistributionSection {
    PlacedName name;  // empty in a distribution of one section without a name
    std::vector<PlacedName> sites;
    std::vector<Increment> increments;
};

enum class ChainLengthModel { log_normal, schulz_zimm, poisson };

// Polymer whose chain lengths follow a model.
struct DistributionComponent {
    PlacedName name;
    ChainLengthModel model = ChainLengthModel::log_normal;
    std::optional<double> mn;   // g/mol; this or dpn is given
    std::optional<double> dpn;  // segments per chain
    double dispersity = 0;      // Mw/Mn; not read for a Poisson distribution
    double amount = 0;          // as of sites
};

struct Distribution {
    PlacedName name;
    std::int64_t points = 0;
    double longest_chain = 0;              // segments
    bool is_gpc = false;                   // dw/d ln M instead of the weight fraction per segment
    std::optional<double> segment_weight;  // g/mol
    std::optional<double> mark_houwink_exponent;
    std::optional<PlacedName> stream;               // whose moments the averages are compared with
    std::vector<DistributionSection> sections;      // mixed in proportion to what they make
    std::vector<DistributionComponent> components;  // mixed in likewise
};

struct ParameterPair {
    PlacedName first;
    PlacedName second;
    std::vector<double> values;  // by parameter position
};

// How a binary parameter depends on the reduced temperature.
enum class ParameterForm { general, linear, reciprocal };

struct ParameterSet {
    PlacedName name;
    ParameterForm form = ParameterForm::general;
    std::string unit = "1";
    std::vector<PlacedName> components;
    std::int64_t positions = 0;
    std::int64_t reference_position = 0;  // 0: every pair refers to 298.15 K
    std::int64_t leading_positions =
        0;  // positions 1 to this one have the symmetry below, the others are symmetric
    bool is_antisymmetric = false;
    std::vector<ParameterPair> pairs;
    std::vector<double> temperatures;  // K
};

}  // namespace app
