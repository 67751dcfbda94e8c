#include "app/evaluation/distribution_checks.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace app {

namespace {

// Rounding, and what a sum of trapezoids leaves open besides the choice of its sides.
constexpr double grid_tolerance = 1e-5;
// A composite is the sum of its sites point by point: six digits.
constexpr double sum_tolerance = 1e-6;

// Mass-weighted sums of 1/Pn and Pw.
struct Sums {
    double amount = 0;
    double over = 0;
    double times = 0;

    void add(const SiteIncrement& site)
    {
        const double s = site.tau + site.beta;
        amount += site.amount;
        over += site.amount * (site.tau + site.beta / 2);
        times += site.amount * (2 * site.tau + 3 * site.beta) / (s * s);
    }
    void add(const Sums& other)
    {
        amount += other.amount;
        over += other.over;
        times += other.times;
    }
};

class Checks {
public:
    explicit Checks(const DistributionResults& results) : results_(results) {}

    void add(const std::string& curve, std::string source, double pn, double pw)
    {
        const auto& averages = averages_of(curve);
        checks_.push_back({curve, std::move(source), averages, pn, pw, averages.pn_spread + grid_tolerance,
                           averages.pw_spread + grid_tolerance});
    }

    void add(const std::string& curve, const Sums& sums)
    {
        if (sums.amount > 0) add(curve, "site parameters", sums.amount / sums.over, sums.times / sums.amount);
    }

    // A stream without polymer, or without second moments, says nothing.
    void add(const std::string& curve, const routines::StreamMoments& moments, std::size_t entry)
    {
        const double z = moments.zeroth[entry];
        const double f = moments.first[entry];
        const double s = moments.second[entry];
        if (z > 0 && f > 0 && s > 0) add(curve, "stream moments", f / z, s / f);
    }

    // The averages of the composite from those of its sites, on the same grid.
    void add_sum_of_sites()
    {
        double over = 0;
        double times = 0;
        double share = 1;  // of the section, whose curves follow it
        int sites = 0;
        for (const auto& curve : results_.curves) {
            if (curve.kind == Curve::Kind::section) share = curve.amount / results_.composite().amount;
            if (curve.kind != Curve::Kind::site || !(curve.averages.area > 0)) continue;
            over += share * curve.averages.area / curve.averages.pn;
            times += share * curve.averages.area * curve.averages.pw;
            ++sites;
        }
        if (sites > 1)
            checks_.push_back({"composite", "sum of the sites", averages_of("composite"), 1 / over, times,
                               sum_tolerance, sum_tolerance});
    }

    std::vector<CurveCheck> take() { return std::move(checks_); }

private:
    const CurveAverages& averages_of(const std::string& curve) const
    {
        return std::ranges::find(results_.curves, curve, &Curve::name)->averages;
    }

    const DistributionResults& results_;
    std::vector<CurveCheck> checks_;
};

void check_parameters(const Distribution& distribution, Checks& checks)
{
    Sums all;
    for (const auto& section : distribution.sections) {
        Sums whole;
        for (std::size_t j = 0; j < section.sites.size(); ++j) {
            Sums site;
            for (const auto& increment : section.increments) site.add(increment[j]);
            checks.add(site_curve_name(section, j), site);
            whole.add(site);
        }
        if (!section.name.id.empty()) checks.add(section_curve_name(section), whole);
        all.add(whole);
    }
    checks.add("composite", all);
}

// Site moments belong to the sites of one section.
void check_moments(const Distribution& distribution, const routines::StreamMoments& moments, Checks& checks)
{
    const auto& section = distribution.sections.front();
    if (distribution.sections.size() == 1 && moments.sites() == section.sites.size())
        for (std::size_t j = 0; j < section.sites.size(); ++j)
            checks.add(site_curve_name(section, j), moments, j);
    checks.add("composite", moments, moments.sites());
}

}  // namespace

bool CurveCheck::agrees() const
{
    return std::abs(pn_difference()) <= pn_tolerance && std::abs(pw_difference()) <= pw_tolerance;
}

std::string section_curve_name(const DistributionSection& section)
{
    return "section " + section.name.id;
}

std::string site_curve_name(const DistributionSection& section, std::size_t site)
{
    const auto& name = section.sites[site].id;
    return section.name.id.empty() ? "site " + name : section.name.id + ": site " + name;
}

std::vector<CurveCheck> curve_checks(const Distribution& distribution, const DistributionResults& results,
                                     const routines::StreamMoments* moments)
{
    Checks checks{results};
    checks.add_sum_of_sites();
    check_parameters(distribution, checks);
    if (moments) check_moments(distribution, *moments, checks);
    return checks.take();
}

std::vector<Diagnostic> disagreements(const Distribution& distribution, const DistributionResults& results)
{
    std::vector<Diagnostic> found;
    for (const auto& check : results.checks)
        if (std::isfinite(check.pn) && std::isfinite(check.pw) && !check.agrees())
            found.push_back(
                {distribution.name.source,
                 fmt::format(
                     "distributions.{}: {} has Pn {:.6g} and Pw {:.6g} on the grid; by its {} they are "
                     "{:.6g} and {:.6g}: more points or a greater longest_chain may be needed",
                     results.name, check.curve, check.averages.pn, check.averages.pw, check.source, check.pn,
                     check.pw),
                 Severity::warning});
    return found;
}

}  // namespace app
