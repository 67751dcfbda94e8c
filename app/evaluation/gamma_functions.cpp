#include "app/evaluation/gamma_functions.h"

#include <cmath>
#include <limits>

namespace app {

namespace {

constexpr double epsilon = std::numeric_limits<double>::epsilon();

// ln Γ(z) less (z − ½) ln z − z + ½ ln 2π, to the term in 1/z⁵.
double stirling_remainder(double z)
{
    const double square = z * z;
    return (1.0 / 12 - (1.0 / 360 - 1.0 / (1260 * square)) / square) / z;
}

// x^shape e^−x / Γ(shape + 1)
double leading_factor(double shape, double x)
{
    return std::exp(shape * std::log(x) - x - log_gamma_ratio(1, shape));
}

// Converges for x < shape + 1.
double lower_by_series(double shape, double x)
{
    double term = 1;
    double sum = 1;
    for (double n = 1; term > epsilon * sum; ++n) {
        term *= x / (shape + n);
        sum += term;
    }
    return leading_factor(shape, x) * sum;
}

// The continued fraction 1/(x+1−s − 1(1−s)/(x+3−s − 2(2−s)/(x+5−s − …))) for x ≥ s + 1, from its beginning on
// (modified Lentz method).
double upper_by_fraction(double shape, double x)
{
    constexpr double tiny = 1e-300;
    double b = x + 1 - shape;
    double c = 1 / tiny;
    double d = 1 / b;
    double value = d;
    double change = 0;
    for (double n = 1; std::abs(change - 1) > 4 * epsilon; ++n) {
        const double a = -n * (n - shape);
        b += 2;
        d = a * d + b;
        d = 1 / (std::abs(d) < tiny ? tiny : d);
        c = b + a / c;
        c = std::abs(c) < tiny ? tiny : c;
        change = c * d;
        value *= change;
    }
    return leading_factor(shape, x) * shape * value;
}

}  // namespace

double log_gamma_ratio(double z, double a)
{
    // Stirling's series has all digits from here on; Γ(z + 1) = z Γ(z) leads there.
    constexpr double large = 40;
    double shift = 0;
    for (; z < large; ++z) shift -= std::log1p(a / z);
    return shift + (z - 0.5) * std::log1p(a / z) + a * (std::log(z + a) - 1) + stirling_remainder(z + a) -
           stirling_remainder(z);
}

IncompleteGamma incomplete_gamma(double shape, double x)
{
    if (!(x > 0)) return {0, 1};
    if (x < shape + 1) {
        const double lower = lower_by_series(shape, x);
        return {lower, 1 - lower};
    }
    const double upper = upper_by_fraction(shape, x);
    return {1 - upper, upper};
}

}  // namespace app
