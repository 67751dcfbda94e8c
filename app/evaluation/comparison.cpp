#include "app/evaluation/comparison.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace app {

namespace {

constexpr double tolerance = 1e-4;

}  // namespace

double relative_difference(double a, double b)
{
    const double larger = std::max(a, b);
    return larger > 0 ? std::abs(a - b) / larger : 0;
}

bool agree(double a, double b)
{
    return !std::isfinite(a) || !std::isfinite(b) || relative_difference(a, b) <= tolerance;
}

std::string shown(const Quantity& quantity)
{
    return fmt::format("{} is {:.6g}{}{}", quantity.name, quantity.value, quantity.unit.empty() ? "" : " ",
                       quantity.unit);
}

std::string difference(const Quantity& a, const Quantity& b)
{
    if (agree(a.value, b.value)) return "they agree";
    return fmt::format("they differ by {:.3g} % of the larger", 100 * relative_difference(a.value, b.value));
}

}  // namespace app
