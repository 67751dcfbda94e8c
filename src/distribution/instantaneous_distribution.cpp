// Chain-length distribution of the polymer that several site types make, averaged over all increments so far.
//
//   g(x) = e^c · x · s · (0.5·x·β·s + τ)         weight-fraction form
//   g(x) = e^c · x · x · s · (0.5·x·β·s + τ)     times the chain length once more (GPC form)
//
//   s = τ + β,   c = −s·x limited to −250 … 80.59
//
// Each increment enters in proportion to its amount: column = (g·f + column·W) / (W + F), with f the amount
// of the site type, F that of all site types, W what was accumulated before.
#include "distribution/bounded_exponential.h"
#include "host/words.h"
#include "polyprops/polyprops.h"

namespace polyprops::distribution {

namespace {

enum class Form { weight_fraction, gpc };

struct Site {
    Real tau;
    Real beta;
};

template <Form form>
Real instantaneous(Site site, Real x)
{
    const Real s = site.tau + site.beta;
    Real value = bounded_exponential(-s * x) * x;
    if constexpr (form == Form::gpc) value *= x;
    return value * s * (0.5 * x * site.beta * s + site.tau);
}

// One call adds f of one site type to W of all, which makes W + F.
struct Increment {
    Real amount;
    Real weight_before;
    Real weight_after;
};

template <Form form>
void average_in(Site site, const Increment& increment, Vector<const Real> x, Vector<Real> column, Int n)
{
    for (Int k = 1; k <= n; ++k)
        column(k) =
            (instantaneous<form>(site, x(k)) * increment.amount + column(k) * increment.weight_before) /
            increment.weight_after;
}

// A total weight of exactly 0 leaves the column as it is.
void add_increment(Form form, Site site, const Increment& increment, Vector<const Real> x,
                   Vector<Real> column, Int n)
{
    if (increment.weight_after == 0.0) return;
    if (form == Form::gpc)
        average_in<Form::gpc>(site, increment, x, column, n);
    else
        average_in<Form::weight_fraction>(site, increment, x, column, n);
}

Real sum(Vector<const Real> amounts, Int n)
{
    Real total = 0.0;
    for (Int j = 1; j <= n; ++j) total += amounts(j);
    return total;
}

// Column after column, as they lie in memory: every point still sums its sites in their order.
void sum_columns(const Matrix<const Real>& columns, Int sites, Vector<Real> composite, Int n)
{
    for (Int k = 1; k <= n; ++k) composite(k) = columns(k, 1);
    for (Int j = 2; j <= sites; ++j)
        for (Int k = 1; k <= n; ++k) composite(k) += columns(k, j);
}

}  // namespace

}  // namespace polyprops::distribution

using namespace polyprops;

void POLY_CSDCAL(const Int* N, const Int* NS, const Int* MODE, const Real* TAU, const Real* BETA,
                 const Real* F, const Real* X, Real* W, Real* Y, Real* COL)
{
    using namespace distribution;
    if (*NS < 1) return;
    const Vector amounts{F, *NS};
    const Real added = sum(amounts, *NS);
    if (below(added, zero_bound())) return;

    const Vector weights{W, *NS + 1};
    const Vector tau{TAU, *NS};
    const Vector beta{BETA, *NS};
    const Matrix columns{COL, *N};
    const Form form = (*MODE & 1) != 0 ? Form::gpc : Form::weight_fraction;
    const Real before = weights(*NS + 1);
    const Real after = before + added;
    for (Int j = 1; j <= *NS; ++j) {
        if (!at_least(amounts(j), zero_bound())) continue;
        add_increment(form, {tau(j), beta(j)}, {amounts(j), before, after}, Vector{X},
                      Vector{columns.column(j)}, *N);
        weights(j) += amounts(j);
    }
    if (!at_most(after, zero_bound())) sum_columns({COL, *N}, *NS, Vector{Y}, *N);
    weights(*NS + 1) = after;
}
