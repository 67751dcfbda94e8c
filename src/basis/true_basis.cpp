// Apparent and true bases, mole and mass fractions.
//
//   x_true ∝ x_apparent · MW / Mn      one apparent mole of a polymer or oligomer is MW / Mn moles of chains
//   v_true = Mn · v_apparent / MW      a quantity per mole
//   w      ∝ x · MW                    mass is the same on both bases
//
// Components that are not polymers or oligomers count the same on both bases. The treatment of a vanishing
// sum differs on purpose: exactly 0 or the zero bound, raw values or zeros.
#include "basis/true_amount.h"
#include "chain/molecular_weight.h"
#include "host/totals.h"
#include "polyprops/polyprops.h"

namespace polyprops::basis {

namespace {

Real chain_amount(PolymerData& data, Component c, ByComponent<const Real> molecular_weights, Real amount)
{
    const Species species{own_selector, c};
    if (!species.has_chains()) return amount;
    data.ensure(chain::molecular_weight_parts);
    const Real mn = chain::number_average_molecular_weight(data, species);
    return mn == 0.0 ? amount : true_amount(amount, molecular_weights(c), mn);
}

void fractions_from_attributes(const ComponentList& components, ByComponent<const Real> molecular_weights,
                               Vector<const Real> apparent, Vector<Real> out)
{
    auto data = PolymerData::locate(0);
    const Int n = components.count();
    const Real total = write_values(out, n, [&](Int i) {
        return data.exists() ? chain_amount(data, components(i), molecular_weights, apparent(i))
                             : apparent(i);
    });
    if (data.exists() && total != 0.0) divide(out, n, total);
}

void fractions_from_counts(const ComponentList& components, ByComponent<const Real> molecular_weights,
                           const ComponentList& segments, FlagArray flags,
                           SegmentCountMatrix<const Real> counts, Vector<const Real> apparent,
                           Vector<Real> out)
{
    const Int n = components.count();
    const Real total = write_values(out, n, [&](Int i) {
        const Component c = components(i);
        if (!flags.is_flagged(c)) return apparent(i);
        const Real mn = chain::molecular_weight_from_counts(counts, molecular_weights, segments, c);
        return true_amount(apparent(i), molecular_weights(c), mn);
    });
    if (total != 0.0) divide(out, n, total);
}

enum class Mode : Int { per_mole = 0, mole_fractions = 1 };

// Values to the true basis with number-average molecular weights by position; is_chain(c) is true of polymers
// and oligomers. Any other mode writes nothing.
template <class IsChain>
void values_to_true_basis(Mode mode, const ComponentList& components,
                          ByComponent<const Real> molecular_weights,
                          Vector<const Real> chain_molecular_weights, Vector<const Real> values,
                          Vector<Real> out, IsChain is_chain)
{
    const Int n = components.count();
    if (mode == Mode::per_mole)
        for (Int i = 1; i <= n; ++i) {
            const Component c = components(i);
            out(i) = is_chain(c) ? chain_molecular_weights(i) * values(i) / molecular_weights(c) : values(i);
        }
    if (mode == Mode::mole_fractions) {
        const Real total = write_values(out, n, [&](Int i) {
            const Component c = components(i);
            return is_chain(c) ? true_amount(values(i), molecular_weights(c), chain_molecular_weights(i))
                               : values(i);
        });
        if (above(total, zero_bound())) divide(out, n, total);
    }
}

void mass_fractions(const ComponentList& components, Vector<const Real> fractions, Vector<Real> out)
{
    const Int n = components.count();
    const Real total =
        write_values(out, n, [&](Int i) { return fractions(i) * molecular_weight(components(i)); });
    if (above(total, zero_bound())) divide(out, n, total);
}

void mass_fractions(Int n, Vector<const Real> fractions, Vector<const Real> molecular_weights,
                    Vector<Real> out)
{
    Real total = 0.0;
    for (Int i = 1; i <= n; ++i) total += fractions(i) * molecular_weights(i);
    const bool vanishes = !above(total, zero_bound());
    for (Int i = 1; i <= n; ++i) out(i) = vanishes ? 0.0 : fractions(i) * molecular_weights(i) / total;
}

}  // namespace

}  // namespace polyprops::basis

using namespace polyprops;

void POLY_XATOXT(const Int* N, const Int* IDX, const Real* MW, const Real* XA, Real* XT)
{
    basis::fractions_from_attributes({*N, IDX}, ByComponent{MW}, Vector{XA, *N}, Vector{XT, *N});
}

void POLY_GETXTRUE(const Int* N, const Int* IDX, const Real* XA, const Int* LD, const Real* MW,
                   const Int* NSEG, const Int* ISEG, const Int* IFLAG, const Real* SCM, Real* XT)
{
    basis::fractions_from_counts({*N, IDX}, ByComponent{MW}, {*NSEG, ISEG}, FlagArray{IFLAG}, {SCM, *LD},
                                 Vector{XA, *N}, Vector{XT, *N});
}

void POLY_VATOVT(const Int* N, const Int* IDX, const Real* MW, const Real* MWN, const Real* V, Real* VT,
                 const Int* MODE)
{
    basis::values_to_true_basis(basis::Mode{*MODE}, {*N, IDX}, ByComponent{MW}, Vector{MWN, *N},
                                Vector{V, *N}, Vector{VT, *N}, [](Component c) {
                                    return Species{own_selector, c}.has_chains();
                                });
}

void POLY_VATOVX(const Int* N, const Int* IDX, const Real* MW, const Real* MWN, const Real* V, Real* VT,
                 const Int* MODE, const void* /*UNUSED1*/, const Int* IFLAG)
{
    const FlagArray flags{IFLAG};
    basis::values_to_true_basis(basis::Mode{*MODE}, {*N, IDX}, ByComponent{MW}, Vector{MWN, *N},
                                Vector{V, *N}, Vector{VT, *N},
                                [&](Component c) { return flags.is_flagged(c); });
}

void POLY_XATOWT(const Real* XA, const Int* N, const Int* IDX, Real* WT)
{
    basis::mass_fractions({*N, IDX}, Vector{XA, *N}, Vector{WT, *N});
}

void POLY_XTTOWT(const Int* N, const Real* XT, const Real* MWT, Real* WT)
{
    basis::mass_fractions(*N, Vector{XT, *N}, Vector{MWT, *N}, Vector{WT, *N});
}
