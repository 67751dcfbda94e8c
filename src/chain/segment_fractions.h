#pragma once

#include "host/species.h"

namespace polyprops::chain {

// Parts of the polymer data that the segment fractions of a component read.
inline constexpr unsigned segment_fraction_parts =
    PolymerData::segment_list | PolymerData::polymer_list | PolymerData::oligomer_block;

// Segment mole or mass fractions of a polymer or oligomer by position of the segment list. A component that
// is neither, and any component of a run without segments, leaves the output untouched.
void segment_mole_fractions(const PolymerData& data, const Species& species, Vector<Real> fractions);
void segment_mass_fractions(const PolymerData& data, const Species& species, Vector<Real> fractions);

}  // namespace polyprops::chain
