#pragma once

#include "host/species.h"

namespace polyprops::chain {

// Parts of the polymer data that degree_of_polymerization reads.
inline constexpr unsigned degree_of_polymerization_parts =
    PolymerData::segment_list | PolymerData::oligomer_block | PolymerData::end_segment_list;

// Segments per chain of a listed component.
Real degree_of_polymerization(const PolymerData& data, const Species& species);

// The component's own DPN parameter; 1 when the run has none.
Real degree_of_polymerization_parameter(Component c);
// Whether a DPN parameter was left at 1, so that an oligomer takes its length from its make-up.
bool counts_as_one(Real parameter);

// Amount of chains: "ZMOM", or half the flow of the end segments for a polymer without it. Element e of the
// segment flows is taken by the entry number of the end segment, so the estimate is the half sum of the end
// segments' flows when the end segments lead the segment list.
Real chain_count(const PolymerData& data, const Species& polymer);

// When "FMOM" gives the amount of segments of a polymer; its segment flows do otherwise.
enum class FirstMomentCounts { when_present, when_not_below_chains };

// No molecule has less than one segment. A NaN counts as less.
inline Real at_least_one(Real length)
{
    return above(length, 1.0) ? length : 1.0;
}

// Segments over chains of a polymer, at least 1; 1 unless the chains are above the zero bound.
Real length_from_moments(const PolymerData& data, const Species& polymer, FirstMomentCounts first_moment);

// Segments in one molecule of the oligomer in a column of the oligomer table.
Real oligomer_length(const PolymerData& data, Int column);

}  // namespace polyprops::chain
