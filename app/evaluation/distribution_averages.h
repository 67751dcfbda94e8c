// Averages of the curves of a distribution: in closed form and on its grid.
#pragma once

#include "app/case/case_model.h"
#include "app/evaluation/closed_forms.h"
#include "app/evaluation/distribution_results.h"

namespace app {

// `segment_weight` in g/mol.
std::optional<DistributionAverages> closed_averages(const MassWeightedMeans& means,
                                                    std::optional<double> segment_weight,
                                                    std::optional<double> exponent);

// Averages on the grid, cumulative mass and chromatograms of curves with known averages.
void add_grid_averages(DistributionResults& results);

}  // namespace app
