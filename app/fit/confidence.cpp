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

// Parameters of one site by all parameters of the fit: ln(s) of each site, then the masses of all parts.
struct Gradients {
    std::vector<VectorXd> rates;  // τ, and β where the model has combination
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
    const VectorXd masses = solution.masses.segment(site * parts, parts);
    const double mass = masses.sum();
    const VectorXd zero = VectorXd::Zero(sites + solution.masses.size());
    Gradients g{std::vector(static_cast<std::size_t>(parts), zero), zero};
    g.amount.tail(solution.masses.size()).setConstant(-mass / (total * total));
    g.amount.segment(sites + site * parts, parts).array() += 1 / total;
    for (Index part = 0; part < parts; ++part) {
        auto& of_rate = g.rates[static_cast<std::size_t>(part)];
        const double share = masses(part) / mass;
        of_rate(site) = rate * share;
        of_rate.segment(sites + site * parts, parts).setConstant(-rate * share / mass);
        of_rate(sites + site * parts + part) += rate / mass;
    }
    return g;
}

// The points as the fit sees them: its Jacobian, and the residual that it leaves.
struct Fitted {
    const SiteModel& model;
    const RateSolution& solution;
    VectorXd residual;
    Eigen::ColPivHouseholderQR<MatrixXd> jacobian;
    MatrixXd columns;
};

// A site with the same Mn and mass whose part g1 has another share; what its curve changes, less what all
// other parameters compensate.
VectorXd change(const Fitted& fitted, Index site, double share)
{
    const auto masses = fitted.solution.masses.segment(2 * site, 2);
    const double mass = masses.sum();
    const double stretch = (1 - masses(1) / mass / 2) / (1 - share / 2);
    const VectorXd rates{
        {fitted.solution.log_rates(site), fitted.solution.log_rates(site) + std::log(stretch)}};
    const MatrixXd curves = site_parts(fitted.model, rates);
    const VectorXd all = curves * VectorXd{{-masses(0), -masses(1), mass * (1 - share), mass * share}};
    return all - fitted.columns * fitted.jacobian.solve(all);
}

// The share of g1 up to which the sum of squared residuals rises by no more than `rise`; from 0 up, or from 1
// down. The derivatives say nothing here: near β = 0 those by s are a sum of the parts.
double limiting_share(const Fitted& fitted, Index site, double rise)
{
    const auto is_allowed = [&](double share) {
        const VectorXd d = change(fitted, site, share);
        return d.squaredNorm() - 2 * fitted.residual.dot(d) <= rise;
    };
    double allowed = fitted.solution.masses(2 * site) > 0 ? 0 : 1;
    double refused = 1 - allowed;
    if (is_allowed(refused)) return refused;
    for (int i = 0; i < 50; ++i) {
        const double middle = 0.5 * (allowed + refused);
        (is_allowed(middle) ? allowed : refused) = middle;
    }
    return allowed;
}

// The upper limit of the rate whose part has no mass.
double upper_limit(const Fitted& fitted, Index site, Index part, double rise)
{
    const auto masses = fitted.solution.masses.segment(2 * site, 2);
    const double share = limiting_share(fitted, site, rise);
    const double rate =
        std::exp(fitted.solution.log_rates(site)) * (1 - masses(1) / masses.sum() / 2) / (1 - share / 2);
    return rate * (part == 0 ? 1 - share : share);
}

Estimate estimate(double value, double half_width)
{
    return {value, std::max(value - half_width, 0.0), std::min(value + half_width, 1.0)};
}

}  // namespace

SiteEstimates estimate_sites(const SiteModel& model, const VectorXd& signal, const RateSolution& solution)
{
    const auto columns = unknowns(solution);
    const MatrixXd j = jacobian(model, solution)(Eigen::all, columns);
    const MatrixXd factor = inverse_factor(j);
    const auto freedom = static_cast<double>(model.chain_length.size() - std::ssize(columns));
    const double reach = student_limit(freedom) * std::sqrt(solution.squares / freedom);
    const Index parts = model.parts();
    const Fitted fitted{model, solution, signal - site_parts(model, solution.log_rates) * solution.masses,
                        j.colPivHouseholderQr(), j};
    SiteEstimates all;
    all.is_determined = factor.size() > 0;
    const auto half_width = [&](const VectorXd& gradient) {
        return all.is_determined ? reach * (factor.transpose() * gradient(columns)).norm() : 1.0;
    };
    for (Index site = 0; site < solution.log_rates.size(); ++site) {
        const auto g = gradients(model, solution, site);
        const double rate = std::exp(solution.log_rates(site));
        const auto masses = solution.masses.segment(site * parts, parts);
        const auto rate_of = [&](Index part) -> Estimate {
            if (part >= parts) return {0, 0, 0};
            if (masses(part) == 0 && all.is_determined)
                return {0, 0, std::min(upper_limit(fitted, site, part, reach * reach), 1.0)};
            return estimate(rate * masses(part) / masses.sum(),
                            half_width(g.rates[static_cast<std::size_t>(part)]));
        };
        all.tau.push_back(rate_of(0));
        all.beta.push_back(rate_of(1));
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
