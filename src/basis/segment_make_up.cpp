#include "basis/segment_make_up.h"

#include "polyprops/polyprops.h"

namespace polyprops::basis {

void list_segments(const PolymerData& data, const Species& species, Int& segment_count, Vector<Int> segments,
                   Vector<Real> counts)
{
    if (!data.lists_chains()) return;
    for (Int m = 1; m <= data.segments().count(); ++m) segments(m) = 0;
    segment_count = 0;
    visit_segments(data, species, [&](Component segment, Real count) {
        ++segment_count;
        segments(segment_count) = segment.index;
        counts(segment_count) = count;
    });
}

}  // namespace polyprops::basis
