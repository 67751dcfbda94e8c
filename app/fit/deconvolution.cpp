#include "app/fit/deconvolution.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "app/evaluation/distribution_averages.h"
#include "app/fit/confidence.h"
#include "app/fit/rate_search.h"

namespace app {

namespace {

using Eigen::Index;
using Eigen::VectorXd;

// Below this a residual is rounding, which no site reduces.
constexpr double rounding = 1e-9;

// Shares of mass below these are none: of a part in its site, of a site in all. Without combination a change
// of s is one of the parts, so that limits with a trace of it would mean nothing.
constexpr double least_part = 1e-6;
constexpr double least_site = 1e-9;

struct Problem {
    SiteModel model;
    VectorXd signal;
};

Problem make_problem(const MeasuredCurve& curve, double segment_weight, bool free_beta)
{
    const auto n = static_cast<Index>(curve.size());
    const Eigen::Map<const Eigen::ArrayXd> weights{curve.molecular_weight.data(), n};
    return {{weights / segment_weight, free_beta}, Eigen::Map<const VectorXd>{curve.signal.data(), n}};
}

// Rates and their squares are numbers within this length, and no chain is shorter than its segment.
constexpr double longest_chain = 1e15;

void check_lengths(const MeasuredCurve& curve, double segment_weight)
{
    const double largest = std::ranges::max(curve.molecular_weight);
    if (!(segment_weight <= largest))
        throw std::runtime_error{
            fmt::format("{}: the largest molecular weight is {} g/mol; expected at least that of a segment, "
                        "which is {} g/mol",
                        curve.file, largest, segment_weight)};
    if (!(largest / segment_weight <= longest_chain))
        throw std::runtime_error{
            fmt::format("{}: the segment weight is {} g/mol, so that {} g/mol are {:.6g} segments; expected "
                        "1e15 segments at most",
                        curve.file, segment_weight, largest, largest / segment_weight)};
}

void check(const MeasuredCurve& curve, const FitOptions& options)
{
    if (!(*std::ranges::max_element(curve.signal) > 0))
        throw std::runtime_error{
            fmt::format("{}: the signal is 0 everywhere; expected more than 0", curve.file)};
    const std::size_t parameters = options.most_sites * (options.free_beta ? 3 : 2);
    const std::size_t needed = std::max(3 * options.most_sites, parameters + 3);
    if (curve.size() < needed)
        throw std::runtime_error{
            fmt::format("{}: {} points; expected at least {}: --sites {} needs 3 points for each site, and 3 "
                        "more than its {} parameters",
                        curve.file, curve.size(), needed, options.most_sites, parameters)};
}

// Without sites that have no mass, from short chains to long ones.
RateSolution with_mass(const RateSolution& solution, Index parts)
{
    std::vector<Index> sites;
    for (Index j = 0; j < solution.log_rates.size(); ++j)
        if (solution.masses.segment(j * parts, parts).sum() > least_site * solution.masses.sum())
            sites.push_back(j);
    std::ranges::stable_sort(sites, std::greater{}, [&](Index j) { return solution.log_rates(j); });
    RateSolution kept{solution.log_rates(sites), VectorXd(std::ssize(sites) * parts), solution.squares};
    for (Index j = 0; j < std::ssize(sites); ++j) {
        auto masses = kept.masses.segment(j * parts, parts);
        masses = solution.masses.segment(sites[static_cast<std::size_t>(j)] * parts, parts);
        masses = (masses.array() < least_part * masses.sum()).select(0, masses);
    }
    return kept;
}

double relative_residual(const Problem& problem, const RateSolution& solution)
{
    const auto points = static_cast<double>(problem.signal.size());
    return std::sqrt(solution.squares / points) / problem.signal.maxCoeff();
}

std::vector<RateSolution> solutions(const Problem& problem, const FitOptions& options)
{
    // One site less shows what the last one gains.
    const std::size_t first = std::max<std::size_t>(1, options.fewest_sites - 1);
    std::vector<RateSolution> all;
    for (std::size_t n = first; n <= options.most_sites; ++n)
        all.push_back(search_rates(problem.model, problem.signal, static_cast<Index>(n),
                                   all.empty() ? nullptr : &all.back()));
    return all;
}

double reduction(double before, double after)
{
    return before > rounding ? std::max(0.0, 1 - after / before) : 0;
}

std::vector<FitResidual> residuals(const Problem& problem, const std::vector<RateSolution>& all)
{
    std::vector<FitResidual> rows;
    for (const auto& solution : all) {
        FitResidual row;
        row.sites = static_cast<std::size_t>(solution.log_rates.size());
        row.sites_with_mass =
            static_cast<std::size_t>(with_mass(solution, problem.model.parts()).log_rates.size());
        row.residual = relative_residual(problem, solution);
        row.reduction = rows.empty() ? 1 : reduction(rows.back().residual, row.residual);
        rows.push_back(row);
    }
    return rows;
}

bool gains_nothing(const FitResidual& row)
{
    return row.reduction < least_reduction || row.sites_with_mass < row.sites;
}

// The row that is reported.
std::size_t choice(const std::vector<FitResidual>& rows, const FitOptions& options)
{
    for (std::size_t i = 1; i < rows.size(); ++i)
        if (rows[i].sites > options.fewest_sites && gains_nothing(rows[i])) return i - 1;
    return rows.size() - 1;
}

void add_warnings(const FitOptions& options, std::size_t chosen, FitResults& results)
{
    for (std::size_t i = 0; i < results.residuals.size(); ++i) {
        const auto& row = results.residuals[i];
        if (row.sites < options.fewest_sites || i > chosen + 1 || !gains_nothing(row)) continue;
        results.warnings.push_back(
            row.sites_with_mass < row.sites
                ? fmt::format("--sites {}: only {} of them have mass", row.sites, row.sites_with_mass)
                : fmt::format(
                      "--sites {}: site {} gains nothing: the residual goes from {:.6g} to {:.6g}, less "
                      "than {:.6g} % down",
                      row.sites, row.sites, results.residuals[i - 1].residual, row.residual,
                      100 * least_reduction));
    }
}

FittedSite site(const SiteEstimates& estimates, std::size_t j, const MeasuredCurve& curve,
                double segment_weight)
{
    FittedSite site;
    site.tau = estimates.tau[j];
    site.amount = estimates.amount[j];
    site.beta = estimates.beta[j];
    const auto exponent = curve.mark_houwink_exponent;
    MassWeightedMeans means;
    means.add(1, site_means({site.tau.value, site.beta.value, 1}, {}, exponent));
    site.averages = closed_averages(means, segment_weight, exponent).value_or(DistributionAverages{});
    return site;
}

std::vector<double> values(const VectorXd& column)
{
    return {column.begin(), column.end()};
}

void add_sites(const Problem& problem, const RateSolution& solution, const MeasuredCurve& curve,
               FitResults& results)
{
    const auto estimates = estimate_sites(problem.model, problem.signal, solution);
    if (!estimates.is_determined)
        results.warnings.emplace_back(
            "the curve does not determine all sites: their limits are 0 and 1; expected fewer sites");
    const Index parts = problem.model.parts();
    const Eigen::MatrixXd curves = site_parts(problem.model, solution.log_rates);
    const VectorXd shares = solution.masses / solution.masses.sum();
    for (Index j = 0; j < solution.log_rates.size(); ++j) {
        results.sites.push_back(site(estimates, static_cast<std::size_t>(j), curve, results.segment_weight));
        results.sites.back().values =
            values(curves.middleCols(j * parts, parts) * shares.segment(j * parts, parts));
    }
    results.measured = values(problem.signal / solution.masses.sum());
    results.fitted = values(curves * shares);
}

}  // namespace

FitResults fit(const MeasuredCurve& curve, double segment_weight, const FitOptions& options)
{
    check_lengths(curve, segment_weight);
    check(curve, options);
    const auto problem = make_problem(curve, segment_weight, options.free_beta);
    const auto all = solutions(problem, options);
    FitResults results;
    results.file = curve.file;
    results.notes = curve.notes;
    results.segment_weight = segment_weight;
    results.has_free_beta = options.free_beta;
    results.molecular_weight = curve.molecular_weight;
    results.chain_length = {problem.model.chain_length.begin(), problem.model.chain_length.end()};
    results.residuals = residuals(problem, all);
    const auto chosen = choice(results.residuals, options);
    results.residual = results.residuals[chosen].residual;
    results.warnings = cut_ends(curve);
    add_warnings(options, chosen, results);
    add_sites(problem, with_mass(all[chosen], problem.model.parts()), curve, results);
    const auto exponent = curve.mark_houwink_exponent;
    results.measured_averages = averages_over_log10(curve.molecular_weight, results.measured, exponent);
    results.fitted_averages = averages_over_log10(curve.molecular_weight, results.fitted, exponent);
    return results;
}

}  // namespace app
