#include "app/fit/confidence.h"

#include <algorithm>
#include <cmath>

namespace app {

namespace {

using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;

// Relative to the largest pivot of columns of length 1: below it columns depend on each other.
constexpr double least_pivot = 1e-8;

// τ and mass of one site by all parameters: ln(s) of each site, then the masses of all parts.
struct Gradients {
    VectorXd tau;
    VectorXd amount;
};

// Columns of unknown parameters: those of parts without mass are left out.
std::vector<Index> unknowns(const RateSolution& solution)
{
    std::vector<Index> columns;
    const Index sites = solution.log_rates.size();
    for (Index j = 0; j < sites; ++j) columns.push_back(j);
    for (Index j = 0; j < solution.masses.size(); ++j)
        if (solution.masses(j) > 0) columns.push_back(sites + j);
    return columns;
}

MatrixXd jacobian(const SiteModel& model, const RateSolution& solution)
{
    MatrixXd all(model.chain_length.size(), solution.log_rates.size() + solution.masses.size());
    all << sum_derivatives(model, solution.log_rates, solution.masses), site_parts(model, solution.log_rates);
    return all;
}

// A factor F with (JᵀJ)⁻¹ = F·Fᵀ; empty when columns of J depend on each other.
MatrixXd inverse_factor(const MatrixXd& j)
{
    const VectorXd scale = j.colwise().norm().cwiseMax(1e-300).cwiseInverse();
    Eigen::ColPivHouseholderQR<MatrixXd> qr{j * scale.asDiagonal()};
    qr.setThreshold(least_pivot);
    if (qr.rank() < j.cols()) return {};
    const MatrixXd identity = MatrixXd::Identity(j.cols(), j.cols());
    const MatrixXd inverse =
        qr.matrixR().topRows(j.cols()).template triangularView<Eigen::Upper>().solve(identity);
    return scale.asDiagonal() * (qr.colsPermutation() * inverse);
}

Gradients gradients(const SiteModel& model, const RateSolution& solution, Index site)
{
    const Index sites = solution.log_rates.size();
    const Index parts = model.parts();
    const double rate = std::exp(solution.log_rates(site));
    const double total = solution.masses.sum();
    const double mass = solution.masses.segment(site * parts, parts).sum();
    const double share = solution.masses(site * parts) / mass;
    Gradients g{VectorXd::Zero(sites + solution.masses.size()),
                VectorXd::Zero(sites + solution.masses.size())};
    g.tau(site) = rate * share;
    g.amount.tail(solution.masses.size()).setConstant(-mass / (total * total));
    for (Index part = 0; part < parts; ++part) {
        const Index at = sites + site * parts + part;
        g.tau(at) = rate * ((part == 0 ? 1 : 0) - share) / mass;
        g.amount(at) += 1 / total;
    }
    return g;
}

Estimate estimate(double value, double half_width)
{
    return {value, std::max(value - half_width, 0.0), std::min(value + half_width, 1.0)};
}

}  // namespace

SiteEstimates estimate_sites(const SiteModel& model, const RateSolution& solution)
{
    const auto columns = unknowns(solution);
    const MatrixXd factor = inverse_factor(jacobian(model, solution)(Eigen::all, columns));
    const auto freedom = static_cast<double>(model.chain_length.size() - std::ssize(columns));
    const double reach = student_limit(freedom) * std::sqrt(solution.squares / freedom);
    const Index parts = model.parts();
    SiteEstimates all;
    all.is_determined = factor.size() > 0;
    const auto half_width = [&](const VectorXd& gradient) {
        return all.is_determined ? reach * (factor.transpose() * gradient(columns)).norm() : 1.0;
    };
    for (Index j = 0; j < solution.log_rates.size(); ++j) {
        const auto g = gradients(model, solution, j);
        const double rate = std::exp(solution.log_rates(j));
        const auto masses = solution.masses.segment(j * parts, parts);
        const double share = masses(0) / masses.sum();
        all.tau.push_back(estimate(rate * share, half_width(g.tau)));
        all.beta.push_back(parts == 1 ? 0.0 : rate * masses(1) / masses.sum());
        all.amount.push_back(estimate(masses.sum() / solution.masses.sum(), half_width(g.amount)));
    }
    return all;
}

double student_limit(double degrees_of_freedom)
{
    // Fisher's expansion about the normal distribution, to 1 % from 3 degrees of freedom on.
    constexpr double z = 1.959963984540054;
    const double n = degrees_of_freedom;
    const double z3 = z * z * z;
    const double z5 = z3 * z * z;
    const double z7 = z5 * z * z;
    return z + (z3 + z) / (4 * n) + (5 * z5 + 16 * z3 + 3 * z) / (96 * n * n) +
           (3 * z7 + 19 * z5 + 17 * z3 - 15 * z) / (384 * n * n * n);
}

}  // namespace app
