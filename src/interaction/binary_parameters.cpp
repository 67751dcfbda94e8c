// Binary interaction parameters of one pair or of all ordered pairs of a mixture at one temperature.
//
// A pair's block holds the coefficients P1..P5 at positions 1 to 5 and its reference temperature at position
// k. Matrices are walked column by column, as the blocks lie in memory; no element depends on another.
#include "interaction/correlation.h"
#include "interaction/pair_array.h"
#include "polyprops/polyprops.h"

namespace polyprops::interaction {

namespace {

constexpr Real default_reference_temperature = 298.15;  // K

using Parameters = PairArray<const Real>;

Coefficients coefficients(const Parameters& parameters, Int i, Int j)
{
    if (parameters.has_position(5))
        return {parameters(1, i, j), parameters(2, i, j), parameters(3, i, j), parameters(4, i, j),
                parameters(5, i, j)};
    return {parameters.value(1, i, j), parameters.value(2, i, j), parameters.value(3, i, j),
            parameters.value(4, i, j), parameters.value(5, i, j)};
}

// Which pairs of distinct components a matrix routine fills.
class Selection {
public:
    explicit Selection(const Real* selector) : selector_(selector) {}
    Selection(const Real* selector, const Int* mask) : selector_(selector), mask_(mask), has_mask_(true) {}

    bool has_row(Int i) const { return selector_(i) == 1.0 && is_unmasked(i); }
    bool has_column(Int j) const { return is_unmasked(j); }

private:
    bool is_unmasked(Int i) const { return !has_mask_ || mask_(i) == 0; }

    Vector<const Real> selector_;
    Vector<const Int> mask_{nullptr};
    bool has_mask_ = false;
};

// Calls visit(i, j, coefficients, reduced temperature) for each selected pair. With k = 0 every pair has the
// default reference temperature; with a k beyond the positions of a pair none has one, and no pair is
// visited.
template <class Visit>
void visit_selected(Real temperature, Int k, const Parameters& parameters, const Selection& selection,
                    Visit visit)
{
    if (k != 0 && !parameters.has_position(k)) return;
    ReducedTemperature reduced{temperature, default_reference_temperature};
    for (Int j = 1; j <= parameters.components(); ++j) {
        if (!selection.has_column(j)) continue;
        for (Int i = 1; i <= parameters.components(); ++i) {
            if (i == j || !selection.has_row(i)) continue;
            if (k != 0) reduced.refer_to(parameters(k, i, j));
            visit(i, j, coefficients(parameters, i, j), reduced);
        }
    }
}

// A pair without a usable reference temperature has no parameter; nothing is divided by it.
Real value_or_zero(const Parameters& parameters, Int k, Int i, Int j, ReducedTemperature& reduced)
{
    const Real reference = parameters.value(k, i, j);
    if (reference == 0.0 || !std::isfinite(reference)) return 0.0;
    reduced.refer_to(reference);
    if (!above(reduced.x(), 0.0)) return 0.0;
    return general_logarithm_first(coefficients(parameters, i, j), reduced);
}

}  // namespace

}  // namespace polyprops::interaction

using namespace polyprops;

void POLY_TBPARA(const Real* T, const Real* P1, const Real* P2, const Real* P3, const Real* P4,
                 const Real* P5, const Real* TR, const Int* MODE, Real* VALUE, Real* DERIV)
{
    const bool wants_value = *MODE == 1 || *MODE == 3;
    const bool wants_derivative = *MODE >= 2;
    Real value = 0.0;
    Real derivative = 0.0;
    if (wants_value || wants_derivative) {
        const interaction::Coefficients p{*P1, *P2, *P3, *P4, *P5};
        interaction::ReducedTemperature reduced{*T, *TR};
        if (wants_value) value = interaction::general_single_pair(p, reduced);
        if (wants_derivative) derivative = interaction::general_derivative(p, reduced);
    }
    *VALUE = value;
    *DERIV = derivative;
}

void POLY_TBKIJ3(const Real* T, const Int* N, const Int* K, const Int* M, const Real* P, Real* KIJ)
{
    const interaction::Parameters parameters{P, *N, *M};
    const Matrix values{KIJ, *M};
    interaction::ReducedTemperature reduced{*T};
    for (Int j = 1; j <= *M; ++j)
        for (Int i = 1; i <= *M; ++i)
            values(i, j) = interaction::value_or_zero(parameters, *K, i, j, reduced);
}

void POLY_TBKIJ4(const Real* T, const Int* N, const Int* K, const Int* M, const Real* P, Real* KIJ,
                 Real* DKIJ, const Int* MODE, const Real* SELECT)
{
    const Matrix values{KIJ, *M};
    const Matrix derivatives{DKIJ, *M};
    const bool wants_derivative = *MODE == 2;
    clear_square(KIJ, *M);
    clear_square(DKIJ, *M);
    if (*K == 0) return;  // there is no default reference temperature here
    interaction::visit_selected(*T, *K, {P, *N, *M}, interaction::Selection{SELECT},
                                [&](Int i, Int j, const auto& p, auto& reduced) {
                                    values(i, j) = interaction::general_logarithm_first(p, reduced);
                                    if (wants_derivative)
                                        derivatives(i, j) = interaction::general_derivative(p, reduced);
                                });
}

void POLY_KIJ5(const Real* T, const Int* N, const Int* K, const Int* M, const Real* P, const Real* SELECT,
               const Int* MASK, Real* KIJ)
{
    const Matrix values{KIJ, *M};
    const Int positions = *N;
    clear_square(KIJ, *M);
    interaction::visit_selected(*T, *K, {P, *N, *M}, {SELECT, MASK},
                                [&](Int i, Int j, const auto& p, auto& reduced) {
                                    values(i, j) = interaction::value_by_positions(positions, p, reduced);
                                });
}

void POLY_DKIJ5(const Real* T, const Int* N, const Int* K, const Int* M, const Real* P, const Real* SELECT,
                const Int* MASK, Real* DKIJ)
{
    const Matrix slopes{DKIJ, *M};
    const Int positions = *N;
    clear_square(DKIJ, *M);
    interaction::visit_selected(*T, *K, {P, *N, *M}, {SELECT, MASK},
                                [&](Int i, Int j, const auto& p, auto& reduced) {
                                    slopes(i, j) = interaction::slope_by_positions(positions, p, reduced);
                                });
}
