// Search for the rates s = τ + β of sites whose sum is nearest to a signal.
//
// For any rates the best masses follow by non-negative least squares. The search over ln(s), by the method of
// Levenberg and Marquardt, sees only the residual that those masses leave (variable projection); its
// derivatives are those of Kaufman: changes of the curves, less the part that the masses compensate.
#pragma once

#include <vector>

#include "app/fit/site_curves.h"

namespace app {

struct RateSolution {
    Eigen::VectorXd log_rates;  // by site
    Eigen::VectorXd masses;     // by part, in units of the signal
    double squares = 0;         // sum of squared residuals
};

// Tries several guesses of that many sites, each spread over the chain lengths that hold the signal, and
// `previous` with a site added; the best one counts. The same input gives the same solution.
RateSolution search_rates(const SiteModel& model, const Eigen::VectorXd& signal, Eigen::Index sites,
                          const RateSolution* previous);

}  // namespace app
