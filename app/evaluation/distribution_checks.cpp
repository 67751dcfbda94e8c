#include "app/evaluation/distribution_checks.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "app/evaluation/comparison.h"

namespace app {

namespace {

constexpr double moment_tolerance = 1e-6;   // relative
constexpr double outside_tolerance = 0.01;  // mass fraction
constexpr double area_tolerance = 0.1;      // mass fraction
constexpr double short_chain_tau = 0.01;    // chains of 100 segments

// A stream without polymer, or without second moments, says nothing; nor does a site that makes nothing.
void add_check(const Curve& curve, const routines::StreamMoments& moments, std::size_t entry,
               std::vector<CurveCheck>& checks)
{
    const double z = moments.zeroth[entry];
    const double f = moments.first[entry];
    const double s = moments.second[entry];
    if (curve.averages && z > 0 && f > 0 && s > 0)
        checks.push_back({curve.name, curve.averages->pn, f / z, curve.averages->pw, s / f});
}

Diagnostic warning(const SourcePosition& source, std::string text)
{
    return {source, std::move(text), Severity::warning};
}

void warn_of_moments(const Distribution& distribution, const CurveCheck& check,
                     std::vector<Diagnostic>& warnings)
{
    const auto compare = [&](const char* average, double seen, double expected, double difference) {
        if (!std::isfinite(difference) || std::abs(difference) <= moment_tolerance) return;
        warnings.push_back(warning(
            distribution.stream->source,
            fmt::format("distributions.{}: {} of {} is {:.6g} by its parameters and {:.6g} by the moments of "
                        "stream {}; the relative difference is {:.2g}, more than {:g}",
                        distribution.name.id, average, check.curve, seen, expected, distribution.stream->id,
                        difference, moment_tolerance)));
    };
    compare("Pn", check.pn, check.pn_expected, check.pn_difference());
    compare("Pw", check.pw, check.pw_expected, check.pw_difference());
}

void warn_of_grid(const Distribution& distribution, const DistributionResults& results, const Curve& curve,
                  std::vector<Diagnostic>& warnings)
{
    if (!curve.averages) return;
    const double below = curve.averages->below_grid;
    const double above = curve.averages->above_grid;
    if (below + above <= outside_tolerance) return;
    warnings.push_back(warning(
        distribution.name.source,
        fmt::format(
            "distributions.{}: {:.3g} % of the mass of {} is outside the grid, {:.3g} % below {:g} and "
            "{:.3g} % above {:g} segments; expected at most {:g} %",
            results.name, 100 * (below + above), curve.name, 100 * below, results.lengths.front(),
            100 * above, results.lengths.back(), 100 * outside_tolerance)));
}

struct ShortChains {
    double tau = short_chain_tau;
    double beta = 0;
    const PlacedName* site = nullptr;
};

// The site with the greatest τ that makes polymer.
ShortChains shortest_chains(const Distribution& distribution)
{
    ShortChains found;
    for (const auto& section : distribution.sections)
        for (const auto& increment : section.increments)
            for (std::size_t j = 0; j < std::min(increment.size(), section.sites.size()); ++j)
                if (increment[j].amount > 0 && increment[j].tau > found.tau)
                    found = {increment[j].tau, increment[j].beta, &section.sites[j]};
    return found;
}

// The grid's trapezoids find the mass that it reaches, unless a curve is narrower than its steps.
void warn_of_coarse_grid(const Distribution& distribution, const DistributionResults& results,
                         const Curve& curve, std::vector<Diagnostic>& warnings)
{
    if (!curve.averages || !curve.on_grid) return;
    const double share = curve.amount / results.composite().amount;
    const double expected = share * (1 - curve.averages->below_grid - curve.averages->above_grid);
    const double error = std::abs(curve.on_grid->area - expected) / share;
    if (!(error > area_tolerance)) return;
    warnings.push_back(warning(
        distribution.name.source,
        fmt::format("distributions.{}: {} has an area of {:.6g} on the grid, but {:.6g} in closed form; they "
                    "differ by {:.4g} % of its mass, more than {:g} %: the curve is narrower than the steps "
                    "of the grid; expected more points or a smaller longest_chain",
                    results.name, curve.name, curve.on_grid->area, expected, 100 * error,
                    100 * area_tolerance)));
}

void warn_of_segment_weight(const Distribution& distribution, double stream_weight,
                            std::vector<Diagnostic>& warnings)
{
    if (!distribution.segment_weight || !(stream_weight > 0)) return;
    const Quantity own{fmt::format("distributions.{}.segment_weight", distribution.name.id),
                       *distribution.segment_weight, "g/mol"};
    const Quantity other{
        fmt::format("the mean segment weight of the polymer of stream {}", distribution.stream->id),
        stream_weight, "g/mol"};
    if (agree(own.value, other.value)) return;
    warnings.push_back(warning(distribution.stream->source,
                               fmt::format("{}, but {}; {}; the distribution uses its segment_weight",
                                           shown(own), shown(other), difference(own, other))));
}

}  // namespace

std::string section_curve_name(const DistributionSection& section)
{
    return "section " + section.name.id;
}

std::string site_curve_name(const DistributionSection& section, std::size_t site)
{
    const auto& name = section.sites[site].id;
    return section.name.id.empty() ? "site " + name : section.name.id + ": site " + name;
}

// Site moments belong to the sites of one section.
std::vector<CurveCheck> curve_checks(const Distribution& distribution, const DistributionResults& results,
                                     const routines::StreamMoments& moments)
{
    std::vector<CurveCheck> checks;
    if (distribution.sections.size() == 1 && moments.sites() == distribution.sections.front().sites.size()) {
        std::size_t entry = 0;
        for (const auto& curve : results.curves)
            if (curve.kind == Curve::Kind::site) add_check(curve, moments, entry++, checks);
    }
    add_check(results.composite(), moments, moments.sites(), checks);
    return checks;
}

// Growing chains have 1 + 1/(tau + beta) segments when they end, as whole numbers; tau + beta/2 chains form
// per segment.
std::vector<std::string> distribution_notes(const Distribution& distribution)
{
    const auto [tau, beta, site] = shortest_chains(distribution);
    if (!site) return {};
    const double chains = tau + beta / 2;
    return {fmt::format(
        "tau of site {} is {:g}, greater than {:g}: averages take the chain length as continuous, Pn = "
        "1/(tau + beta/2) = {:.6g}; whole chain lengths give Pn = (1 + tau + beta)/(tau + beta/2) = "
        "{:.6g}, which is 1 + 1/tau for beta = 0",
        site->id, tau, short_chain_tau, 1 / chains, (1 + tau + beta) / chains)};
}

std::vector<Diagnostic> distribution_warnings(const Distribution& distribution,
                                              const DistributionResults& results, double stream_weight)
{
    std::vector<Diagnostic> warnings;
    warn_of_segment_weight(distribution, stream_weight, warnings);
    for (const auto& check : results.checks) warn_of_moments(distribution, check, warnings);
    for (const auto& curve : results.curves) warn_of_grid(distribution, results, curve, warnings);
    for (const auto& curve : results.curves) warn_of_coarse_grid(distribution, results, curve, warnings);
    if (distribution.mark_houwink_exponent && !results.segment_weight)
        warnings.push_back(warning(
            distribution.name.source,
            fmt::format(
                "distributions.{}.mark_houwink_exponent is not used: there is no segment weight to give "
                "Mv in g/mol; expected a segment_weight, or a stream with polymer",
                distribution.name.id)));
    return warnings;
}

}  // namespace app
