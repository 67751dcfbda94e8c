// A measured curve as the sum of sites of the instantaneous distribution.
//
// The squared differences in dw/dlog10(M) are summed over the points, each with the same weight. Masses are
// those of whole sites, also where a site reaches beyond the measured range.
#pragma once

#include <cstddef>

#include "app/case/measured_curve.h"
#include "app/fit/fit_results.h"

namespace app {

struct FitOptions {
    std::size_t fewest_sites = 1;
    std::size_t most_sites = 1;
    bool free_beta = false;  // chains ended by combination, for each site
};

// The relative reduction of the residual below which another site gains nothing.
constexpr double least_reduction = 0.05;

// Of several numbers of sites the first after which another site gains nothing. Throws std::runtime_error for
// a curve that has no area or not enough points.
FitResults fit(const MeasuredCurve& curve, double segment_weight, const FitOptions& options);

}  // namespace app
