// 95 % confidence limits of fitted sites.
//
// Covariance σ²·(JᵀJ)⁻¹ of ln(s) and the masses of all sites, σ² = Σ residual²/(points − parameters), and
// Student's t for two-sided limits. Parameters at 0 count as known.
//
// A rate at 0, β as a rule, has an upper limit: a site of the same Mn and mass with the rate up to there
// raises the sum of squares by no more than t²σ², after the other parameters have compensated what they can.
#pragma once

#include <vector>

#include "app/fit/fit_results.h"
#include "app/fit/rate_search.h"

namespace app {

// In the order of the sites; masses are shares of the sum of all sites.
struct SiteEstimates {
    std::vector<Estimate> tau;
    std::vector<Estimate> amount;
    std::vector<Estimate> beta;
    bool is_determined = true;  // false: parameters depend on each other, and the limits are 0 and 1
};

// Every site has mass; there are more points than parameters.
SiteEstimates estimate_sites(const SiteModel& model, const Eigen::VectorXd& signal,
                             const RateSolution& solution);

// The distance, in standard deviations, of the 97.5 % point of Student's distribution.
double student_limit(double degrees_of_freedom);

}  // namespace app
