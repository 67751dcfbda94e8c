// True mole fractions of a list of components.
//
//   XT(i) = y(i) / Σ y      y(i) = X(i) · MW(IDX(i)) / Mn(i)
//
// An apparent mole of a polymer has the mass MW of its component; a true mole has that of its chains, Mn.
#include "mixture/true_fractions.h"

#include "basis/true_amount.h"
#include "host/totals.h"
#include "polyprops/polyprops.h"

namespace polyprops::mixture {

void true_mole_fractions(const ComponentList& components, Vector<const Real> apparent_fractions,
                         ByComponent<const Real> molecular_weights,
                         Vector<const Real> chain_molecular_weights, Vector<Real> true_fractions)
{
    const Int n = components.count();
    const Real total = write_values(true_fractions, n, [&](Int i) {
        const Real x = apparent_fractions(i);
        const Real mn = chain_molecular_weights(i);
        return mn == 0.0 ? x : basis::true_amount(x, molecular_weights(components(i)), mn);
    });
    if (total != 0.0) divide(true_fractions, n, total);
}

}  // namespace polyprops::mixture

using namespace polyprops;

void POLY_GETPMIX1(const Int* J, const Real* MWJ, const Int* N, const Int* IDX, const Real* X, Real* XT,
                   Real* MWN, const void* /*UNUSED1*/, const Real* MW)
{
    const Component polymer{*J};
    const ComponentList components{*N, IDX};
    const Vector chain_molecular_weights{MWN, *N};
    for (Int i = 1; i <= components.count(); ++i)
        if (components(i) == polymer) chain_molecular_weights(i) = *MWJ;
    mixture::true_mole_fractions(components, Vector{X, *N}, ByComponent{MW}, Vector<const Real>{MWN, *N},
                                 Vector{XT, *N});
}
