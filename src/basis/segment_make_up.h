// The segments of one polymer or oligomer and the number of each in a molecule.
#pragma once

#include "host/species.h"

namespace polyprops::basis {

// Parts of the polymer data that the make-up of a component reads.
inline constexpr unsigned segment_make_up_parts =
    PolymerData::segment_list | PolymerData::polymer_list | PolymerData::oligomer_block;

// Average counts per chain; 1 each when the chains are not counted.
template <class Visit>
void visit_polymer_segments(Int segment_count, const Species& polymer, Visit visit)
{
    const Real chains = polymer.attribute(AttributeName::zmom).value();
    const Attribute flows = polymer.attribute(AttributeName::sflow);
    for (Int m = 1; m <= segment_count; ++m)
        if (const Real flow = flows(m); above(flow, 0.0)) visit(m, above(chains, 0.0) ? flow / chains : 1.0);
}

// The make-up in the oligomer list, column after column when the component is there more than once.
template <class Visit>
void visit_oligomer_segments(Int segment_count, const OligomerTable& oligomers, Component c, Visit visit)
{
    for (Int e = 1; e <= oligomers.count(); ++e) {
        if (oligomers.list()(e) != c) continue;
        for (Int m = 1; m <= segment_count; ++m)
            if (const Real count = oligomers.segments(m, e); above(count, 0.0)) visit(m, count);
    }
}

// Calls visit(segment position, segments per molecule) for each segment with a positive amount, in the order
// of the segment list. Any component but a polymer counts as an oligomer, and has no segments without a
// make-up.
template <class Visit>
void visit_segments(const PolymerData& data, const Species& species, Visit visit)
{
    const Int segment_count = data.segments().count();
    if (species.is_polymer())
        visit_polymer_segments(segment_count, species, visit);
    else
        visit_oligomer_segments(segment_count, data.oligomers(), species.component(), visit);
}

// Writes the make-up as a list of segments with their counts. Without polymers and oligomers in the run
// nothing is written, the number of segments included.
void list_segments(const PolymerData& data, const Species& species, Int& segment_count, Vector<Int> segments,
                   Vector<Real> counts);

}  // namespace polyprops::basis
