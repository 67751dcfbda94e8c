#include "app/evaluation/distributions.h"

#include <fmt/format.h>
#include <polyprops/polyprops.h>

#include <cmath>

#include "app/evaluation/distribution_checks.h"
#include "app/evaluation/stream_moments.h"
#include "src/numeric/trapezoid_averages.h"

namespace app {

namespace {

using minihost::Host;
using minihost::Int;

// Running arrays of one section.
struct Accumulated {
    std::vector<double> weights;  // by site, the total last
    std::vector<double> composite;
    std::vector<double> columns;  // site after site
};

class Grid {
public:
    explicit Grid(const Distribution& distribution)
        : points_(distribution.points),
          longest_(distribution.longest_chain),
          mode_(distribution.is_gpc ? 1 : 0)
    {
        lengths_.resize(size());
    }

    Accumulated accumulate(const DistributionSection& section)
    {
        const auto sites = section.sites.size();
        const auto count = static_cast<Int>(sites);
        Accumulated a{std::vector<double>(sites + 1), std::vector<double>(size()),
                      std::vector<double>(size() * sites)};
        POLY_CSDINI(&points_, &count, lengths_.data(), &longest_, a.weights.data(), a.composite.data(),
                    a.columns.data());
        for (const auto& increment : section.increments) add(increment, count, a);
        return a;
    }

    const std::vector<double>& lengths() const { return lengths_; }
    std::size_t size() const { return static_cast<std::size_t>(points_); }
    const Int& points() const { return points_; }

private:
    void add(const Increment& increment, Int count, Accumulated& a) const
    {
        std::vector<double> tau;
        std::vector<double> beta;
        std::vector<double> amount;
        for (const auto& site : increment) {
            tau.push_back(site.tau);
            beta.push_back(site.beta);
            amount.push_back(site.amount);
        }
        POLY_CSDCAL(&points_, &count, &mode_, tau.data(), beta.data(), amount.data(), lengths_.data(),
                    a.weights.data(), a.composite.data(), a.columns.data());
    }

    Int points_;
    double longest_;
    Int mode_;
    std::vector<double> lengths_;
};

void add_section(const DistributionSection& section, const Accumulated& a, std::size_t points,
                 DistributionResults& results)
{
    if (!section.name.id.empty())
        results.curves.push_back(
            {section_curve_name(section), Curve::Kind::section, a.weights.back(), a.composite, {}});
    for (std::size_t j = 0; j < section.sites.size(); ++j) {
        const auto column = a.columns.begin() + static_cast<std::ptrdiff_t>(j * points);
        results.curves.push_back({site_curve_name(section, j),
                                  Curve::Kind::site,
                                  a.weights[j],
                                  {column, column + static_cast<std::ptrdiff_t>(points)},
                                  {}});
    }
}

void mix_in(const Grid& grid, const Accumulated& a, Curve& composite)
{
    POLY_CSDADD(&grid.points(), composite.values.data(), &composite.amount, a.composite.data(),
                &a.weights.back(), composite.values.data(), &composite.amount);
}

// Calls visit(area, left-hand length, right-hand length) for each trapezoid of a curve.
template <class Visit>
void visit_trapezoids(const DistributionResults& r, const Curve& curve, Visit visit)
{
    const auto point = [](Int k) { return static_cast<std::size_t>(k - 1); };
    polyprops::numeric::visit_trapezoids(
        std::ssize(r.lengths), [&](Int k) { return r.lengths[point(k)]; },
        [&](Int k) { return r.height(curve, point(k)); }, visit);
}

CurveAverages averages(const DistributionResults& r, const Curve& curve)
{
    polyprops::numeric::TrapezoidSums sums;
    double over_left = 0;
    double times_left = 0;
    visit_trapezoids(r, curve, [&](double area, double left, double right) {
        sums.add(area, right);
        over_left += area / left;
        times_left += area * left;
    });
    CurveAverages result;
    result.area = sums.area;
    if (!(result.area > 0)) return {};  // made nothing, or nothing that the grid reaches
    // The report does not divide those of a composite by its area.
    const double share = curve.kind == Curve::Kind::site ? result.area : 1.0;
    result.pn = share / sums.over_length;
    result.pw = sums.times_length / share;
    result.pdi = result.pw / result.pn;
    result.pn_spread = over_left / sums.over_length - 1;
    result.pw_spread = 1 - times_left / sums.times_length;
    return result;
}

std::vector<double> cumulative(const DistributionResults& r)
{
    std::vector<double> sums{0.0};
    visit_trapezoids(r, r.composite(),
                     [&](double area, double, double) { sums.push_back(sums.back() + area); });
    return sums;
}

DistributionResults curves(const Distribution& distribution)
{
    DistributionResults results{
        distribution.name.id, distribution.is_gpc, distribution.segment_weight, {}, {}, {}, {}};
    Grid grid{distribution};
    results.curves.push_back(
        {"composite", Curve::Kind::composite, 0.0, std::vector<double>(grid.size()), {}});
    for (const auto& section : distribution.sections) {
        const auto accumulated = grid.accumulate(section);
        mix_in(grid, accumulated, results.curves.front());
        add_section(section, accumulated, grid.size(), results);
    }
    results.lengths = grid.lengths();
    return results;
}

DistributionResults evaluate(const Distribution& distribution, Host& host)
{
    auto results = curves(distribution);
    for (auto& curve : results.curves) curve.averages = averages(results, curve);
    results.cumulative = cumulative(results);
    if (distribution.stream && !results.segment_weight) {
        const double weight = polymer_results(distribution.stream->id, host).segment_weight.back();
        if (weight > 0) results.segment_weight = weight;
    }
    results.checks = curve_checks(distribution, results, host);
    return results;
}

}  // namespace

std::vector<DistributionResults> evaluate_distributions(const Case& input, Host& host)
{
    std::vector<DistributionResults> results;
    for (const auto& distribution : input.distributions) results.push_back(evaluate(distribution, host));
    return results;
}

void publish(const DistributionResults& results, Host& host)
{
    std::vector<double> values = results.composite().values;
    Int sections = 0;
    for (const auto& curve : results.curves) {
        if (curve.kind != Curve::Kind::section) continue;
        values.insert(values.end(), curve.values.begin(), curve.values.end());
        ++sections;
    }
    if (sections == 0) {  // one section without a name
        values.insert(values.end(), results.composite().values.begin(), results.composite().values.end());
        sections = 1;
    }
    const auto points = static_cast<Int>(results.lengths.size());
    const double scale = 1.0;
    const Int is_scaled = 0;
    const Int gpc = results.is_gpc ? 1 : 0;
    POLY_CSDPLOT(host.summary().context(results.name), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                 nullptr, nullptr, nullptr, &points, results.lengths.data(), values.data(), &sections, &scale,
                 &is_scaled, &gpc);
}

}  // namespace app
