// The grid of chain lengths on which distributions are carried, and the mixing of two distributions on it.
//
//   x(k) = trunc(10^(k·L/n)),   L = log10(longest chain)     whole numbers on a logarithmic scale
//   y(k) = (y1(k)·w1 + y2(k)·w2) / (w1 + w2)
//
// Where the logarithmic spacing is finer than 1 the grid takes the next whole number instead.
#include <algorithm>
#include <cmath>

#include "host/words.h"
#include "polyprops/polyprops.h"

namespace polyprops::distribution {

namespace {

// The largest exponent whose power of ten is a double; the logarithm of the largest double rounds to beyond
// it.
constexpr Real largest_exponent = 0x1.34413509f79fep+8;

void number_consecutively(Vector<Real> grid, Int n)
{
    for (Int k = 1; k <= n; ++k) grid(k) = static_cast<Real>(k);
}

void space_logarithmically(Vector<Real> grid, Int n, Real longest_chain)
{
    const Real exponent = std::log10(longest_chain);
    Real previous = 0.0;
    for (Int k = 1; k <= n; ++k) {
        const Real fraction = static_cast<Real>(k) * exponent / static_cast<Real>(n);
        const Real length = std::trunc(std::pow(10.0, std::min(fraction, largest_exponent)));
        previous = above(length, previous) ? length : previous + 1.0;
        grid(k) = previous;
    }
}

void lay_grid(Vector<Real> grid, Int n, Real longest_chain)
{
    if (above(longest_chain, 0.0) && std::isfinite(longest_chain))
        space_logarithmically(grid, n, longest_chain);
    else
        number_consecutively(grid, n);
}

struct Weighted {
    Vector<const Real> distribution;
    Real weight;
};

void mix(const Weighted& first, const Weighted& second, Real total_weight, Vector<Real> mixture, Int n)
{
    for (Int k = 1; k <= n; ++k)
        mixture(k) =
            (first.distribution(k) * first.weight + second.distribution(k) * second.weight) / total_weight;
}

}  // namespace

}  // namespace polyprops::distribution

using namespace polyprops;

void POLY_CSDINI(const Int* N, const Int* M, Real* X, const Real* PMAX, Real* W, Real* Y, Real* COL)
{
    distribution::lay_grid(Vector{X}, *N, *PMAX);
    if (*N >= 1) {
        clear(Y, *N);
        if (*M >= 1) clear(COL, *N * *M);
    }
    clear(W, *M + 1);
}

void POLY_CSDADD(const Int* N, const Real* Y1, const Real* W1, const Real* Y2, const Real* W2, Real* Y,
                 Real* W)
{
    const distribution::Weighted first{Vector{Y1}, *W1};
    const distribution::Weighted second{Vector{Y2}, *W2};
    const Real total = first.weight + second.weight;
    *W = total;
    if (above(total, zero_bound())) distribution::mix(first, second, total, Vector{Y}, *N);
}
