// Segment-count matrices for special cases.
//
//   SCM(J, s) = n(s) · R / Σ n     R = MWJ / W, W = Σ MW(s) n(s) / Σ n: one polymer J by its chain weight MWJ
//   B(j, s) = A(j, s)              for oligomers only; every other component is one unit
//
// n(s) is the number of segments s per molecule of J.
#include "basis/segment_make_up.h"
#include "mixture/outputs.h"
#include "polyprops/polyprops.h"

namespace polyprops::mixture {

namespace {

// Writes the row of a polymer whose chains weigh chain_weight; without segments or weight it stays zero.
void write_row_of_weight(Real chain_weight, const ComponentList& segments, Vector<const Real> numbers,
                         ByComponent<const Real> weights, Component row, SegmentCountMatrix<Real> counts)
{
    Real total = 0.0;
    Real mass = 0.0;
    for (Int m = 1; m <= segments.count(); ++m) {
        total += numbers(m);
        mass += weights(segments(m)) * numbers(m);
    }
    const Real mean_weight = total != 0.0 ? mass / total : 0.0;
    if (mean_weight == 0.0) return;
    const Real length = chain_weight / mean_weight;
    for (Int m = 1; m <= segments.count(); ++m) counts(row, segments(m)) = numbers(m) * length / total;
}

void copy_positive_counts(const ComponentList& segments, SegmentCountMatrix<const Real> from, Component row,
                          SegmentCountMatrix<Real> to)
{
    for (Int m = 1; m <= segments.count(); ++m)
        if (const Real count = from(row, segments(m)); count > 0.0) to(row, segments(m)) = count;
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
    const ComponentList components{*N, IDX};
    const ByComponent flags{IFLAG, *NC};
    const SegmentCountMatrix counts{SCM, *NC};
    for (Int i = 1; i <= components.count(); ++i) {
        const Component k = components(i);
        flags(k) = k == polymer ? 1 : 0;
        if (k != polymer) counts.own_count(k) = 1.0;
    }
    if (components.position_of(polymer) > 0)
        mixture::write_row_of_weight(*MWJ, {*NSEG, ISEG}, Vector<const Real>{FRAC, *NSEG}, ByComponent{MW},
                                     polymer, counts);
}

void POLY_GETOLI(const Int* N, const Int* IDX, const Int* NC, const Real* A, Int* NSEG, Int* ISEG, Real* B,
                 Int* IFLAG)
{
    clear(IFLAG, *NC);
    clear_square(B, *NC);
    const auto data = PolymerData::locate(PolymerData::segment_list | PolymerData::oligomer_block);
    *NSEG = data.segments().count();
    if (!data.exists()) return;
    const ComponentList components{*N, IDX};
    const ByComponent flags{IFLAG, *NC};
    const SegmentCountMatrix counts{A, *NC};
    const SegmentCountMatrix oligomer_counts{B, *NC};
    bool listed = false;
    for (Int i = 1; i <= components.count(); ++i) {
        const Component j = components(i);
        if (!host_says_oligomer(j)) {
            oligomer_counts.own_count(j) = 1.0;
            continue;
        }
        flags(j) = 1;
        if (!listed) mixture::write_segment_list(data, ISEG);
        listed = true;
        if (data.oligomers().column_of(j) > 0)
            mixture::copy_positive_counts(data.segments(), counts, j, oligomer_counts);
    }
}
