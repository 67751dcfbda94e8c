// How the mixture routines begin their outputs.
#pragma once

#include "host/polymer_data.h"

namespace polyprops::mixture {

// Writes the run's segment list as component indices.
inline void write_segment_list(const PolymerData& data, Int* first)
{
    const Vector<Int> segments{first, data.segments().count()};
    for (Int m = 1; m <= data.segments().count(); ++m) segments(m) = data.segments()(m).index;
}

// Clears a segment list and a segment-count matrix, locates the polymer data and writes the segment list.
inline PolymerData begin_counts(Int components, Int& segment_count, Int* segment_list, Real* counts)
{
    clear(segment_list, components);
    clear_square(counts, components);
    const auto data = PolymerData::locate(PolymerData::every_part);
    segment_count = data.segments().count();
    write_segment_list(data, segment_list);
    return data;
}

// Writes value(m) to the row's element of the segment at each position m of the run's segment list.
template <class Value>
void write_row(const PolymerData& data, SegmentCountMatrix<Real> counts, Component row, Value value)
{
    for (Int m = 1; m <= data.segments().count(); ++m) counts(row, data.segments()(m)) = value(m);
}

}  // namespace polyprops::mixture
