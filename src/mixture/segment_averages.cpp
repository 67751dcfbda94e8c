// Segment values of a property averaged over a row of a segment-count matrix.
//
//   Σ SCM(J, s) Q(s) / Σ SCM(J, s)                  by number of segments
//   Σ SCM(J, s) Q(s) WT(s) / Σ SCM(J, s) WT(s)      by mass, when WT holds molecular weights
//
// Sums run in the order of the caller's segments.
#include "mixture/segment_averages.h"

#include "host/words.h"
#include "polyprops/polyprops.h"

namespace polyprops::mixture {

WeightedSum sum_by_number(SegmentCountMatrix<const Real> counts, const ComponentList& segments, Component row,
                          ByComponent<const Real> property)
{
    WeightedSum sum;
    for (Int k = 1; k <= segments.count(); ++k) {
        const Component s = segments(k);
        sum.weight += counts(row, s);
        sum.total += counts(row, s) * property(s);
    }
    return sum;
}

namespace {

Real average_by_mass(SegmentCountMatrix<const Real> counts, const ComponentList& segments, Component row,
                     ByComponent<const Real> property, ByComponent<const Real> weights)
{
    WeightedSum sum;
    for (Int k = 1; k <= segments.count(); ++k) {
        const Component s = segments(k);
        sum.weight += counts(row, s) * weights(s);
        sum.total += counts(row, s) * property(s) * weights(s);
    }
    return sum.average();
}

Real average_or_own(SegmentCountMatrix<const Real> counts, const ComponentList& segments, Component j,
                    ByComponent<const Real> property, FlagArray flags)
{
    if (!flags.is_flagged(j)) return property(j);
    const WeightedSum sum = sum_by_number(counts, segments, j, property);
    return above(sum.weight, zero_bound()) ? sum.total / sum.weight : property(j);
}

}  // namespace

}  // namespace polyprops::mixture

using namespace polyprops;

void POLY_GETMAVG(const Int* LD, const Real* Q, const Int* NK, const Int* IK, const Real* SCM, const Int* NJ,
                  const Int* IJ, Real* OUT, const Int* IFLAG)
{
    const ComponentList components{*NJ, IJ};
    const Vector out{OUT, *NJ};
    for (Int i = 1; i <= components.count(); ++i)
        out(i) =
            mixture::average_or_own({SCM, *LD}, {*NK, IK}, components(i), ByComponent{Q}, FlagArray{IFLAG});
}

void POLY_GETFAVG(const Int* LD, const Int* NK, const Int* IK, const Real* SCM, const Int* J, const Real* Q,
                  Real* OUT)
{
    *OUT = mixture::sum_by_number({SCM, *LD}, {*NK, IK}, {*J}, ByComponent{Q}).average();
}

void POLY_GETFAVGT(const Int* LD, const Int* NK, const Int* IK, const Real* SCM, const Int* J, const Real* Q,
                   Real* OUT)
{
    *OUT = mixture::sum_by_number({SCM, *LD}, {*NK, IK}, {*J}, ByComponent{Q}).average();
}

void POLY_GETSAVG(const Int* LD, const Real* WT, const Int* NK, const Int* IK, const Real* SCM, const Int* J,
                  const Real* Q, Real* OUT)
{
    *OUT = mixture::average_by_mass({SCM, *LD}, {*NK, IK}, {*J}, ByComponent{Q}, ByComponent{WT});
}

void POLY_GETPOLQ(const Int* LD, const Real* WT, const Int* NK, const Int* IK, const Real* SCM, const Int* J,
                  const Real* Q, Real* OUT)
{
    const Component j{*J};
    const ByComponent own{Q};
    *OUT = is_between_bounds(own(j))
               ? own(j)
               : mixture::average_by_mass({SCM, *LD}, {*NK, IK}, j, own, ByComponent{WT});
}
