// The segments of one polymer or oligomer and how many of each stand in a molecule.
#pragma once

#include "host/species.h"

namespace polyprops::basis {

// What the make-up of a component reads of the run.
inline constexpr unsigned segment_make_up_parts =
    PolymerData::segment_list | PolymerData::polymer_list | PolymerData::oligomer_block;

// Calls visit(segment position, segments per molecule) for each segment with a positive amount, in the order
// of the segment list: average counts per chain for a polymer (1 each when its chains are not counted), the
// make-up for any other component that stands in the oligomer list, column after column when it stands there
// more than once.
template <class Visit>
void visit_segments(const PolymerData& data, const Species& species, Visit visit)
{
    const ComponentList& segments = data.segments();
    if (species.is_polymer()) {
        const Real chains = species.attribute(AttributeName::zmom).value();
        const Attribute flows = species.attribute(AttributeName::sflow);
        for (Int m = 1; m <= segments.count(); ++m)
            if (const Real flow = flows(m); flow > 0.0) visit(m, chains > 0.0 ? flow / chains : 1.0);
        return;
    }
    const OligomerTable& oligomers = data.oligomers();
    for (Int e = 1; e <= oligomers.count(); ++e) {
        if (oligomers.list()(e) != species.component()) continue;
        for (Int m = 1; m <= segments.count(); ++m)
            if (const Real count = oligomers.segments(m, e); count > 0.0) visit(m, count);
    }
}

// Writes the make-up as a list of segments with their counts. Without polymers and oligomers in the run
// nothing is written, the number of segments included.
void list_segments(const PolymerData& data, const Species& species, Int& segment_count, Vector<Int> segments,
                   Vector<Real> counts);

}  // namespace polyprops::basis
