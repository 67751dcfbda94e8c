// Segment fractions by position of the segment list.
//
//   SMF(s) = v(s) / Σ v     v(s) = SFRAC(s), or SFLOW(s) without it; count(s) for an oligomer; SCM(j, s)
//   SWF(s) = v(s) / Σ v     v(s) = SFLOW(s) · MW(s);            MW(s) · count(s);          MW(s) · SCM(j, s)
//
// Values that vanish in total share equally, 1/NSEG each. The total of a polymer or of a matrix row is
// compared with the zero bound (a NaN total passes for the former only), that of an oligomer with exactly 0.
#include "chain/segment_fractions.h"

#include "host/totals.h"
#include "polyprops/polyprops.h"

namespace polyprops::chain {

namespace {

void share_equally(Vector<Real> out, Int n)
{
    for (Int s = 1; s <= n; ++s) out(s) = 1.0 / static_cast<Real>(n);
}

template <class Value>
void polymer_fractions(Vector<Real> out, Int n, Value value)
{
    const Real total = write_values(out, n, [&](Int s) {
        const Real v = value(s);
        return is_missing(v) ? 0.0 : v;
    });
    if (at_most(total, zero_bound()))
        share_equally(out, n);
    else
        divide(out, n, total);
}

template <class Value>
void oligomer_fractions(Vector<Real> out, Int n, Value value)
{
    const Real total = write_values(out, n, value);
    if (total == 0.0)
        share_equally(out, n);
    else
        divide(out, n, total);
}

// Fractions of a row of a segment-count matrix; a NaN total shares equally.
template <class Value>
void row_fractions(Vector<Real> out, Int n, Value value)
{
    if (n < 1) return;
    const Real total = write_values(out, n, value);
    if (above(total, zero_bound()))
        divide(out, n, total);
    else
        share_equally(out, n);
}

// Takes the polymer branch or, for a component with a known make-up, the oligomer branch.
template <class PolymerBranch, class OligomerBranch>
void choose_branch(const PolymerData& data, const Species& species, PolymerBranch polymer,
                   OligomerBranch oligomer)
{
    if (!data.lists_chains() || data.segments().count() < 1) return;
    if (species.is_polymer())
        polymer();
    else if (const Int column = data.oligomers().column_of(species.component()); column > 0)
        oligomer(column);
}

}  // namespace

void segment_mole_fractions(const PolymerData& data, const Species& species, Vector<Real> fractions)
{
    const Int n = data.segments().count();
    const auto of_polymer = [&] {
        Attribute values = species.attribute(AttributeName::sfrac);
        if (values.has_offset_zero()) values = species.attribute(AttributeName::sflow);
        polymer_fractions(fractions, n, values);
    };
    const auto of_oligomer = [&](Int column) {
        oligomer_fractions(fractions, n, [&](Int s) { return data.oligomers().segments(s, column); });
    };
    choose_branch(data, species, of_polymer, of_oligomer);
}

void segment_mass_fractions(const PolymerData& data, const Species& species, Vector<Real> fractions)
{
    const Int n = data.segments().count();
    const auto of_polymer = [&] {
        const Attribute flows = species.attribute(AttributeName::sflow);
        polymer_fractions(fractions, n, [&](Int s) { return flows(s) * data.segment_molecular_weight(s); });
    };
    const auto of_oligomer = [&](Int column) {
        oligomer_fractions(fractions, n, [&](Int s) {
            return data.segment_molecular_weight(s) * data.oligomers().segments(s, column);
        });
    };
    choose_branch(data, species, of_polymer, of_oligomer);
}

}  // namespace polyprops::chain

using namespace polyprops;

void POLY_GETSMF(const Int* SEL, const Int* C, Real* SMF)
{
    const auto data = PolymerData::locate(chain::segment_fraction_parts);
    chain::segment_mole_fractions(data, Species{{*SEL}, {*C}}, Vector{SMF});
}

void POLY_GETSWF(const Int* SEL, const Int* C, Real* SWF)
{
    const auto data = PolymerData::locate(chain::segment_fraction_parts);
    chain::segment_mass_fractions(data, Species{{*SEL}, {*C}}, Vector{SWF});
}

void POLY_SWFVEC(const Int* SEL, const Int* N, const Int* LD, const Int* IDX, Real* SWF)
{
    const ComponentList components{*N, IDX};
    if (components.count() < 1) return;
    const auto data = PolymerData::locate(chain::segment_fraction_parts);
    const Matrix fractions{SWF, *LD};
    for (Int i = 1; i <= components.count(); ++i)
        chain::segment_mass_fractions(data, Species{{*SEL}, components(i)}, Vector{fractions.column(i), *LD});
}

void POLY_GETSMF1(const Int* K, const Int* LD, const Real* SCM, const Int* NSEG, const Int* ISEG, Real* SMF)
{
    const SegmentCountMatrix counts{SCM, *LD};
    const ComponentList segments{*NSEG, ISEG};
    const Component row{*K};
    chain::row_fractions(Vector{SMF, *NSEG}, *NSEG, [&](Int m) { return counts(row, segments(m)); });
}

void POLY_GETSWF1(const Int* K, const Int* LD, const Real* MW, const Real* SCM, const Int* NSEG,
                  const Int* ISEG, Real* SWF)
{
    const SegmentCountMatrix counts{SCM, *LD};
    const ByComponent<const Real> molecular_weights{MW};
    const ComponentList segments{*NSEG, ISEG};
    const Component row{*K};
    chain::row_fractions(Vector{SWF, *NSEG}, *NSEG,
                         [&](Int m) { return molecular_weights(segments(m)) * counts(row, segments(m)); });
}
