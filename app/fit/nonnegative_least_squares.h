// Least squares without negative coefficients: the smallest |A·x − b| with every x ≥ 0, by the active-set
// method of Lawson and Hanson.
#pragma once

#include <Eigen/Dense>

namespace app {

// Coefficients by column of A. A column that others can replace may get 0.
Eigen::VectorXd nonnegative_least_squares(const Eigen::MatrixXd& a, const Eigen::VectorXd& b);

}  // namespace app
