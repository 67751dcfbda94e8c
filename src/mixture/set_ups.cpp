// Segment-count matrices for special cases.
//
//   SCM(J, s) = n(s) · R / Σ n     one polymer J by the molecular weight MWJ of its chains
//   R = MWJ / M                    segments per chain
//   M = Σ MW(s) n(s) / Σ n         mean segment molecular weight
//   B(j, s) = A(j, s)              for oligomers only; every other component is one unit
//
// n(s) is the number of segments s per molecule of J.
#include "basis/segment_make_up.h"
#include "mixture/outputs.h"
#include "polyprops/polyprops.h"

namespace polyprops::mixture {

namespace {

struct Listed {
    ComponentList components;
    ByComponent<Int> flags;
    SegmentCountMatrix<Real> counts;
};

// ---- one polymer ----

struct MakeUp {
    ComponentList segments;
    Vector<const Real> per_molecule;
    ByComponent<const Real> molecular_weights;
};

// Writes the row of a polymer whose chains have the molecular weight mwj. Without segments, or when their
// mean molecular weight is 0, the row stays zero.
void write_row_by_molecular_weight(Real mwj, const MakeUp& make_up, Component row,
                                   SegmentCountMatrix<Real> counts)
{
    Real total = 0.0;
    Real mass = 0.0;
    for (Int m = 1; m <= make_up.segments.count(); ++m) {
        total += make_up.per_molecule(m);
        mass += make_up.molecular_weights(make_up.segments(m)) * make_up.per_molecule(m);
    }
    const Real mean = total != 0.0 ? mass / total : 0.0;
    if (mean == 0.0) return;
    const Real length = mwj / mean;
    for (Int m = 1; m <= make_up.segments.count(); ++m)
        counts(row, make_up.segments(m)) = make_up.per_molecule(m) * length / total;
}

// Flags the polymer; every other listed component is one unit.
void separate_polymer(Component polymer, const Listed& listed)
{
    for (Int i = 1; i <= listed.components.count(); ++i) {
        const Component k = listed.components(i);
        listed.flags(k) = k == polymer ? 1 : 0;
        if (k != polymer) listed.counts.own_count(k) = 1.0;
    }
}

// ---- oligomers ----

void copy_positive_counts(const ComponentList& segments, SegmentCountMatrix<const Real> from, Component row,
                          SegmentCountMatrix<Real> to)
{
    for (Int m = 1; m <= segments.count(); ++m)
        if (const Real count = from(row, segments(m)); above(count, 0.0)) to(row, segments(m)) = count;
}

// Flags the oligomers and copies the rows of those with a known make-up; every other component is one unit.
// Returns whether there are any oligomers.
bool copy_oligomers(const PolymerData& data, SegmentCountMatrix<const Real> counts, const Listed& listed)
{
    bool any = false;
    for (Int i = 1; i <= listed.components.count(); ++i) {
        const Component j = listed.components(i);
        if (!host_says_oligomer(j)) {
            listed.counts.own_count(j) = 1.0;
            continue;
        }
        any = true;
        listed.flags(j) = 1;
        if (data.oligomers().column_of(j) > 0)
            copy_positive_counts(data.segments(), counts, j, listed.counts);
    }
    return any;
}

}  // namespace

}  // namespace polyprops::mixture

using namespace polyprops;

void POLY_GETPMIX(const Int* J, const Real* MWJ, const Int* N, const Int* IDX, const Int* NC, const Real* MW,
                  Int* IFLAG, Real* SCM, Int* NSEG, Int* ISEG, Real* FRAC)
{
    const Component polymer{*J};
    clear_square(SCM, *NC);
    *NSEG = 0;
    const auto data = PolymerData::locate(basis::segment_make_up_parts);
    basis::list_segments(data, Species{own_selector, polymer}, *NSEG, Vector{ISEG}, Vector{FRAC});
    const mixture::Listed listed{{*N, IDX}, ByComponent{IFLAG, *NC}, {SCM, *NC}};
    mixture::separate_polymer(polymer, listed);
    if (listed.components.position_of(polymer) > 0)
        mixture::write_row_by_molecular_weight(
            *MWJ, {{*NSEG, ISEG}, Vector<const Real>{FRAC, *NSEG}, ByComponent{MW}}, polymer, listed.counts);
}

void POLY_GETOLI(const Int* N, const Int* IDX, const Int* NC, const Real* A, Int* NSEG, Int* ISEG, Real* B,
                 Int* IFLAG)
{
    clear(IFLAG, *NC);
    clear_square(B, *NC);
    const auto data = PolymerData::locate(PolymerData::segment_list | PolymerData::oligomer_block);
    *NSEG = data.segments().count();
    if (!data.exists()) return;
    const mixture::Listed listed{{*N, IDX}, ByComponent{IFLAG, *NC}, {B, *NC}};
    if (mixture::copy_oligomers(data, {A, *NC}, listed)) mixture::write_segment_list(data, ISEG);
}
