// Segment make-up of one polymer or oligomer: from the host's data, or from its row of a segment-count
// matrix.
//
//   CNT(s) = SFLOW(s) / ZMOM, or the oligomer's segment count          segments per molecule
//   SF(s)  = SCM(j, s) / Σ SCM(j, s)                                   mole fraction
//   SWF(s) = MW(s) · SCM(j, s) / Σ MW(s) · SCM(j, s)                   mass fraction
#include "basis/segment_make_up.h"

#include "polyprops/polyprops.h"

namespace polyprops::basis {

void list_segments(const PolymerData& data, const Species& species, Int& segment_count, Vector<Int> segments,
                   Vector<Real> counts)
{
    if (!data.lists_chains()) return;
    for (Int m = 1; m <= data.segments().count(); ++m) segments(m) = 0;
    segment_count = 0;
    visit_segments(data, species, [&](Int m, Real count) {
        ++segment_count;
        segments(segment_count) = data.segments()(m).index;
        counts(segment_count) = count;
    });
}

namespace {

// Writes amount(s) of each segment at its component index and divides by their sum, unless that is exactly 0.
template <class Amount>
void fractions_by_component(const ComponentList& segments, ByComponent<Real> out, Amount amount)
{
    Real total = 0.0;
    for (Int k = 1; k <= segments.count(); ++k) {
        const Component s = segments(k);
        out(s) = amount(s);
        total += out(s);
    }
    if (total == 0.0) return;
    for (Int k = 1; k <= segments.count(); ++k) out(segments(k)) /= total;
}

void mole_fractions(SegmentCountMatrix<const Real> counts, Component row, const ComponentList& segments,
                    ByComponent<Real> out)
{
    fractions_by_component(segments, out, [&](Component s) { return counts(row, s); });
}

void mass_fractions(SegmentCountMatrix<const Real> counts, ByComponent<const Real> molecular_weights,
                    Component row, const ComponentList& segments, ByComponent<Real> out)
{
    fractions_by_component(segments, out, [&](Component s) { return molecular_weights(s) * counts(row, s); });
}

}  // namespace

}  // namespace polyprops::basis

using namespace polyprops;

void POLY_GETSEG(const Int* SEL, const Int* J, Int* NSEG, Int* ISEG, Real* CNT)
{
    const auto data = PolymerData::locate(basis::segment_make_up_parts);
    basis::list_segments(data, Species{{*SEL}, {*J}}, *NSEG, Vector{ISEG}, Vector{CNT});
}

void POLY_GETMFS(const Int* LD, const Int* J, const Int* NSEG, const Int* ISEG, const Real* SCM, Real* SF)
{
    clear(SF, *LD);
    basis::mole_fractions({SCM, *LD}, {*J}, {*NSEG, ISEG}, ByComponent{SF, *LD});
}

void POLY_GETWFS(const Int* LD, const Int* J, const Real* MW, const Int* NSEG, const Int* ISEG,
                 const Real* SCM, Real* SWF)
{
    clear(SWF, *LD);
    basis::mass_fractions({SCM, *LD}, ByComponent{MW}, {*J}, {*NSEG, ISEG}, ByComponent{SWF, *LD});
}
