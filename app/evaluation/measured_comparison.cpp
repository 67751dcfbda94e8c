#include "app/evaluation/measured_comparison.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <stdexcept>

namespace app {

namespace {

using Values = std::vector<double>;

// Trapezoids over log10(M) of values that fit(k) scales.
template <typename Function>
double integral(const Values& m, Function value)
{
    double sum = 0;
    for (std::size_t k = 0; k + 1 < m.size(); ++k)
        sum += 0.5 * (value(k) + value(k + 1)) * std::log10(m[k + 1] / m[k]);
    return sum;
}

// dw/dlog10(M) at the chain length x: linear in log(x) between grid points, 0 outside the grid.
double interpolated(const CompositeCurve& composite, double x)
{
    const auto& grid = composite.lengths;
    const auto& heights = composite.heights;
    // The last digit of x = M/M0 must not push the ends of an exported curve off the grid.
    constexpr double rounding = 1e-12;
    if (x < grid.front() * (1 - rounding) || x > grid.back() * (1 + rounding)) return 0;
    const auto above = std::ranges::upper_bound(grid.begin() + 1, grid.end() - 1, x);
    const auto k = static_cast<std::size_t>(above - grid.begin());
    const double share = std::clamp(std::log(x / grid[k - 1]) / std::log(grid[k] / grid[k - 1]), 0.0, 1.0);
    return std::numbers::ln10 * (heights[k - 1] + share * (heights[k] - heights[k - 1]));
}

void scale_to_area_one(const Values& m, Values& values, const std::string& what)
{
    const double area = integral(m, [&](std::size_t k) { return values[k]; });
    if (!(area > 0) || !std::isfinite(area))
        throw std::runtime_error{
            fmt::format("{} has area {} over log10 of molecular weight; expected more than 0", what, area)};
    for (auto& value : values) value /= area;
}

void add_residual(MeasuredComparison& c)
{
    const auto difference = [&](std::size_t k) { return c.measured[k] - c.calculated[k]; };
    const double largest = *std::ranges::max_element(c.measured);
    const double range = std::log10(c.molecular_weight.back() / c.molecular_weight.front());
    const double squares =
        integral(c.molecular_weight, [&](std::size_t k) { return difference(k) * difference(k); });
    c.residual = std::sqrt(squares / range) / largest;
    for (std::size_t k = 0; k < c.measured.size(); ++k)
        c.largest_difference = std::max(c.largest_difference, std::abs(difference(k)) / largest);
}

}  // namespace

MolecularWeightAverages averages_over_log10(const Values& m, const Values& curve,
                                            std::optional<double> mark_houwink_exponent)
{
    // ∫wM^power over log10(M).
    const auto moment = [&](double power) {
        return integral(m, [&](std::size_t k) { return curve[k] * std::pow(m[k], power); });
    };
    const double area = moment(0);
    MolecularWeightAverages averages;
    averages.mn = area / moment(-1);
    averages.mw = moment(1) / area;
    averages.mz = moment(2) / moment(1);
    averages.mz1 = moment(3) / moment(2);
    averages.pdi = averages.mw / averages.mn;
    if (mark_houwink_exponent)
        averages.mv = std::pow(moment(*mark_houwink_exponent) / area, 1 / *mark_houwink_exponent);
    return averages;
}

std::vector<std::string> cut_ends(const MeasuredCurve& curve)
{
    constexpr double tolerance = 0.1;
    std::vector<std::string> warnings;
    const double largest = std::ranges::max(curve.signal);
    for (const std::size_t k : {std::size_t{0}, curve.size() - 1})
        if (curve.signal[k] > tolerance * largest)
            warnings.push_back(
                fmt::format("the curve is cut off at {:.6g} g/mol, where the signal is {:.3g} % of its "
                            "largest value; expected at "
                            "most {:g} %: averages leave out the chains beyond",
                            curve.molecular_weight[k], 100 * curve.signal[k] / largest, 100 * tolerance));
    return warnings;
}

MeasuredComparison compare(const MeasuredCurve& measured, const CompositeCurve& composite)
{
    MeasuredComparison c;
    c.file = measured.file;
    c.notes = measured.notes;
    c.molecular_weight = measured.molecular_weight;
    c.measured = measured.signal;
    for (const double m : c.molecular_weight) {
        c.chain_length.push_back(m / composite.segment_weight);
        c.calculated.push_back(interpolated(composite, m / composite.segment_weight));
    }
    scale_to_area_one(c.molecular_weight, c.measured, measured.file + ": the signal");
    scale_to_area_one(
        c.molecular_weight, c.calculated,
        fmt::format("distributions.{}: the composite in the measured range, {} to {} g/mol,",
                    composite.distribution, c.molecular_weight.front(), c.molecular_weight.back()));
    for (std::size_t k = 0; k < c.measured.size(); ++k)
        c.overlay.push_back(c.measured[k] / std::numbers::ln10 / (composite.is_gpc ? 1 : c.chain_length[k]));
    c.measured_averages = averages_over_log10(c.molecular_weight, c.measured, measured.mark_houwink_exponent);
    c.calculated_averages =
        averages_over_log10(c.molecular_weight, c.calculated, measured.mark_houwink_exponent);
    add_residual(c);
    return c;
}

}  // namespace app
