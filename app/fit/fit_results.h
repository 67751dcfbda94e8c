// Every number of a fit, as values.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "app/evaluation/distribution_results.h"
#include "app/evaluation/measured_comparison.h"

namespace app {

// A value between its limits. Limits are cut at the range of the value, 0 to 1.
struct Estimate {
    double value = 0;
    double low = 0;
    double high = 1;
};

struct FittedSite {
    Estimate tau;     // chains per segment ended by transfer and disproportionation
    Estimate amount;  // mass fraction
    Estimate beta;    // chains per segment ended by combination
    DistributionAverages averages;
    std::vector<double> values;  // dw/dlog10(M) by point
};

// How near a number of sites comes.
struct FitResidual {
    std::size_t sites = 0;
    std::size_t sites_with_mass = 0;
    double residual = 0;   // root mean square difference over the largest measured value
    double reduction = 0;  // by the last site, relative; 1 for the first row
};

struct FitResults {
    std::string file;
    std::vector<std::string> notes;
    double segment_weight = 0;             // g/mol
    bool has_free_beta = false;            // otherwise beta is 0
    std::vector<double> molecular_weight;  // g/mol
    std::vector<double> chain_length;      // segments
    std::vector<double> measured;          // dw/dlog10(M) in units that make the masses of the sites sum to 1
    std::vector<double> fitted;            // sum of the sites
    std::vector<FittedSite> sites;         // from short chains to long ones
    double residual = 0;
    MolecularWeightAverages measured_averages;
    MolecularWeightAverages fitted_averages;  // over the same points
    std::vector<FitResidual> residuals;       // by number of sites
    std::vector<std::string> warnings;
};

}  // namespace app
