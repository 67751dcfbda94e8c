// Sums for the averages of a chain-length distribution by the trapezoid rule, each trapezoid weighted by the
// chain length at its right-hand end.
//
//   a(k) = 0.5·(h(k) + h(k+1))·(x(k+1) − x(k))     k = 1..n−1
//   Area = Σ a(k)      Σ a(k)/x(k+1)      Σ a(k)·x(k+1)
//
// x and h are callables by point number. Sums run in ascending order.
#pragma once

#include <cstdint>

namespace polyprops::numeric {

// Calls visit(area, left-hand length, right-hand length) for each trapezoid, in ascending order.
template <class Length, class Height, class Visit>
void visit_trapezoids(std::int64_t n, Length x, Height h, Visit visit)
{
    if (n < 2) return;
    double left = h(1);
    for (std::int64_t k = 1; k < n; ++k) {
        const double right = h(k + 1);
        visit(0.5 * (left + right) * (x(k + 1) - x(k)), x(k), x(k + 1));
        left = right;
    }
}

struct TrapezoidSums {
    double area = 0.0;
    double over_length = 0.0;
    double times_length = 0.0;

    void add(double trapezoid_area, double right_length)
    {
        area += trapezoid_area;
        over_length += trapezoid_area / right_length;
        times_length += trapezoid_area * right_length;
    }
};

template <class Length, class Height>
TrapezoidSums trapezoid_sums(std::int64_t n, Length x, Height h)
{
    TrapezoidSums sums;
    visit_trapezoids(n, x, h, [&](double area, double, double right) { sums.add(area, right); });
    return sums;
}

}  // namespace polyprops::numeric
