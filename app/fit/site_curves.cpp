#include "app/fit/site_curves.h"

#include <cmath>
#include <numbers>

namespace app {

namespace {

using Eigen::ArrayXd;
using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;

// Of the part g0 or g1, at one point.
double part_curve(Index part, double u)
{
    const double g0 = std::numbers::ln10 * u * u * std::exp(-u);
    return part == 0 ? g0 : g0 * u / 2;
}

double part_derivative(Index part, double u)
{
    return (static_cast<double>(2 + part) - u) * part_curve(part, u);
}

MatrixXd columns(const SiteModel& model, const VectorXd& log_rates, double (*value)(Index, double))
{
    const Index parts = model.parts();
    MatrixXd all(model.chain_length.size(), parts * log_rates.size());
    for (Index j = 0; j < all.cols(); ++j) {
        const double rate = std::exp(log_rates(j / parts));
        for (Index k = 0; k < all.rows(); ++k) all(k, j) = value(j % parts, rate * model.chain_length(k));
    }
    return all;
}

}  // namespace

MatrixXd site_parts(const SiteModel& model, const VectorXd& log_rates)
{
    return columns(model, log_rates, part_curve);
}

MatrixXd site_part_derivatives(const SiteModel& model, const VectorXd& log_rates)
{
    return columns(model, log_rates, part_derivative);
}

MatrixXd sum_derivatives(const SiteModel& model, const VectorXd& log_rates, const VectorXd& masses)
{
    const MatrixXd parts = site_part_derivatives(model, log_rates);
    MatrixXd sums = MatrixXd::Zero(parts.rows(), log_rates.size());
    for (Index j = 0; j < parts.cols(); ++j) sums.col(j / model.parts()) += masses(j) * parts.col(j);
    return sums;
}

}  // namespace app
