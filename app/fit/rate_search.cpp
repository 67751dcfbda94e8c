#include "app/fit/rate_search.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <unsupported/Eigen/NonLinearOptimization>
#include <utility>

#include "app/fit/nonnegative_least_squares.h"

namespace app {

namespace {

using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;

// Sites are sought whose greatest height, at s·x = 2, is within the measured range or near it.
constexpr double peak = 2;
constexpr double beyond_range = 4;

// A residual below this share of the signal is rounding.
constexpr double exact_residual = 1e-10;

// Evaluations of the residual: for each guess, and for the best.
constexpr Index guess_evaluations = 60;
constexpr Index final_evaluations = 1000;

// The least and the greatest ln(s). No chain has less than one segment.
struct Bounds {
    double low;
    double high;
};

Bounds bounds_of(const SiteModel& model)
{
    const double high = std::log(peak / model.chain_length.minCoeff() * beyond_range);
    return {std::log(peak / model.chain_length.maxCoeff() / beyond_range), std::min(high, 0.0)};
}

MatrixXd positive_columns(const MatrixXd& columns, const VectorXd& masses)
{
    std::vector<Index> positive;
    for (Index j = 0; j < masses.size(); ++j)
        if (masses(j) > 0) positive.push_back(j);
    return columns(Eigen::all, positive);
}

// The residual that the best masses leave, in the form that the search of Eigen takes.
class ProjectedResidual {
public:
    ProjectedResidual(const SiteModel& model, const VectorXd& signal, Index sites)
        : model_(model), signal_(signal), bounds_(bounds_of(model)), sites_(sites)
    {
    }

    Index values() const { return signal_.size(); }

    VectorXd bounded(const VectorXd& log_rates) const
    {
        return log_rates.cwiseMax(bounds_.low).cwiseMin(bounds_.high);
    }

    // NOLINTNEXTLINE(readability-identifier-naming): Eigen's name
    int operator()(const VectorXd& log_rates, VectorXd& residual) const
    {
        const MatrixXd parts = site_parts(model_, bounded(log_rates));
        residual = parts * nonnegative_least_squares(parts, signal_) - signal_;
        return 0;
    }

    int df(const VectorXd& log_rates, MatrixXd& jacobian) const
    {
        const VectorXd rates = bounded(log_rates);
        const MatrixXd parts = site_parts(model_, rates);
        const VectorXd masses = nonnegative_least_squares(parts, signal_);
        jacobian = sum_derivatives(model_, rates, masses);
        const MatrixXd positive = positive_columns(parts, masses);
        if (positive.cols() > 0) jacobian -= positive * positive.colPivHouseholderQr().solve(jacobian).eval();
        for (Index j = 0; j < sites_; ++j)
            if (rates(j) != log_rates(j)) jacobian.col(j).setZero();
        return 0;
    }

    RateSolution solution(const VectorXd& log_rates) const
    {
        const VectorXd rates = bounded(log_rates);
        const MatrixXd parts = site_parts(model_, rates);
        const VectorXd masses = nonnegative_least_squares(parts, signal_);
        return {rates, masses, (parts * masses - signal_).squaredNorm()};
    }

private:
    const SiteModel& model_;
    const VectorXd& signal_;
    Bounds bounds_;
    Index sites_;
};

RateSolution improved(ProjectedResidual& residual, VectorXd log_rates, Index evaluations)
{
    Eigen::LevenbergMarquardt<ProjectedResidual> search{residual};
    search.parameters.maxfev = evaluations;
    search.parameters.ftol = 1e-15;
    search.parameters.xtol = 1e-12;
    search.minimize(log_rates);
    return residual.solution(log_rates);
}

// The natural logarithm of the chain length below which this share of the signal's area is.
double log_length_at(const SiteModel& model, const VectorXd& signal, double share)
{
    const Eigen::VectorXd logs = model.chain_length.log();
    VectorXd area = VectorXd::Zero(signal.size());
    for (Index k = 1; k < area.size(); ++k)
        area(k) = area(k - 1) + 0.5 * (signal(k) + signal(k - 1)) * (logs(k) - logs(k - 1));
    for (Index k = 1; k < area.size(); ++k)
        if (area(k) >= share * area(area.size() - 1)) return logs(k);
    return logs(logs.size() - 1);
}

// Sites from short chains to long ones, evenly over ln(x) between two shares of the signal's area.
VectorXd spread(const SiteModel& model, const VectorXd& signal, Index sites, std::pair<double, double> shares)
{
    const double low = log_length_at(model, signal, shares.first);
    const double high = log_length_at(model, signal, shares.second);
    VectorXd rates(sites);
    for (Index j = 0; j < sites; ++j)
        rates(j) =
            std::log(peak) - low - (high - low) * (static_cast<double>(j) + 0.5) / static_cast<double>(sites);
    return rates;
}

// A further site where the sum of the others is most below the signal.
VectorXd with_another(const SiteModel& model, const VectorXd& signal, const RateSolution& previous)
{
    Index at = 0;
    (signal - site_parts(model, previous.log_rates) * previous.masses).maxCoeff(&at);
    VectorXd rates(previous.log_rates.size() + 1);
    rates << previous.log_rates, std::log(peak / model.chain_length(at));
    return rates;
}

std::vector<VectorXd> guesses(const SiteModel& model, const VectorXd& signal, Index sites,
                              const RateSolution* previous)
{
    constexpr std::array<std::pair<double, double>, 5> shares{
        {{0.02, 0.98}, {0.002, 0.998}, {0.1, 0.9}, {0.002, 0.9}, {0.1, 0.998}}};
    std::vector<VectorXd> all;
    all.reserve(shares.size() + 1);
    for (const auto& pair : shares) all.push_back(spread(model, signal, sites, pair));
    if (previous && previous->log_rates.size() + 1 == sites)
        all.push_back(with_another(model, signal, *previous));
    return all;
}

}  // namespace

RateSolution search_rates(const SiteModel& model, const VectorXd& signal, Index sites,
                          const RateSolution* previous)
{
    ProjectedResidual residual{model, signal, sites};
    RateSolution best;
    const double exact = exact_residual * exact_residual * signal.squaredNorm();
    for (const auto& guess : guesses(model, signal, sites, previous)) {
        auto found = improved(residual, guess, guess_evaluations);
        if (best.log_rates.size() == 0 || found.squares < best.squares) best = std::move(found);
        if (best.squares <= exact) return best;
    }
    auto last = improved(residual, best.log_rates, final_evaluations);
    return last.squares < best.squares ? last : best;
}

}  // namespace app
