#include "app/evaluation/distribution_averages.h"

#include <cmath>
#include <numbers>

#include "src/numeric/trapezoid_averages.h"

namespace app {

namespace {

// Calls visit(area, left-hand length, right-hand length) for each trapezoid of a curve.
template <class Visit>
void visit_trapezoids(const DistributionResults& r, const Curve& curve, Visit visit)
{
    const auto point = [](Int k) { return static_cast<std::size_t>(k - 1); };
    polyprops::numeric::visit_trapezoids(
        std::ssize(r.lengths), [&](Int k) { return r.lengths[point(k)]; },
        [&](Int k) { return r.height(curve, point(k)); }, visit);
}

double percent_off(double seen, double exact)
{
    return 100 * (seen / exact - 1);
}

std::optional<GridAverages> grid_averages(const DistributionResults& r, const Curve& curve)
{
    polyprops::numeric::TrapezoidSums sums;
    visit_trapezoids(r, curve, [&](double area, double, double right) { sums.add(area, right); });
    if (!(sums.area > 0)) return {};
    const double share = curve.amount / r.composite().amount;
    GridAverages result{sums.area, share / sums.over_length, sums.times_length / share, 0, 0, 0};
    result.pdi = result.pw / result.pn;
    if (curve.averages) {
        result.pn_grid_error = percent_off(result.pn, curve.averages->pn);
        result.pw_grid_error = percent_off(result.pw, curve.averages->pw);
    }
    return result;
}

std::vector<double> cumulative(const DistributionResults& r)
{
    std::vector<double> sums{0.0};
    visit_trapezoids(r, r.composite(),
                     [&](double area, double, double) { sums.push_back(sums.back() + area); });
    return sums;
}

std::vector<double> chromatogram(const DistributionResults& r, const Curve& curve)
{
    std::vector<double> values;
    for (std::size_t k = 0; k < r.lengths.size(); ++k)
        values.push_back(std::numbers::ln10 * (r.lengths[k] * r.height(curve, k)));
    return values;
}

}  // namespace

std::optional<DistributionAverages> closed_averages(const MassWeightedMeans& means,
                                                    std::optional<double> segment_weight,
                                                    std::optional<double> exponent)
{
    const auto mean = means.mean();
    if (!mean) return {};
    DistributionAverages a;
    a.pn = 1 / mean->inverse;
    a.pw = mean->first;
    a.pz = mean->second / mean->first;
    a.pz1 = mean->third / mean->second;
    a.pdi = a.pw / a.pn;
    a.below_grid = mean->below;
    a.above_grid = mean->above;
    if (!segment_weight) return a;
    a.mn = a.pn * *segment_weight;
    a.mw = a.pw * *segment_weight;
    a.mz = a.pz * *segment_weight;
    a.mz1 = a.pz1 * *segment_weight;
    if (exponent) a.mv = std::pow(mean->viscosity, 1 / *exponent) * *segment_weight;
    return a;
}

void add_grid_averages(DistributionResults& results)
{
    for (auto& curve : results.curves) {
        curve.on_grid = grid_averages(results, curve);
        curve.chromatogram = chromatogram(results, curve);
    }
    results.cumulative = cumulative(results);
}

}  // namespace app
