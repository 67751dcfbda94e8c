// Curves of sites over log10(M), and their derivatives.
//
// The instantaneous distribution of a site is, with s = τ + β and u = s·x at the chain length x,
//
//   dw/dlog10(M) = (τ/s)·g0 + (β/s)·g1     g0 = ln(10)·u²·e^−u     g1 = ln(10)·u³·e^−u/2
//   dg0/dln(s) = (2 − u)·g0                dg1/dln(s) = (3 − u)·g1
//
// So a sum of sites is linear in the masses of g0 and g1, and only ln(s) is nonlinear.
#pragma once

#include <Eigen/Dense>

namespace app {

// The chain lengths of the points, and whether sites may have chains ended by combination.
struct SiteModel {
    Eigen::ArrayXd chain_length;
    bool has_combination = false;

    Eigen::Index parts() const { return has_combination ? 2 : 1; }
};

// g0 of each site, and after each g1 where the model has combination: columns by point. One ln(s) by site.
Eigen::MatrixXd site_parts(const SiteModel& model, const Eigen::VectorXd& log_rates);

// Their derivatives by ln(s) of their own site.
Eigen::MatrixXd site_part_derivatives(const SiteModel& model, const Eigen::VectorXd& log_rates);

// Derivatives of the sum of the sites by ln(s) of each, with the masses of the parts.
Eigen::MatrixXd sum_derivatives(const SiteModel& model, const Eigen::VectorXd& log_rates,
                                const Eigen::VectorXd& masses);

}  // namespace app
