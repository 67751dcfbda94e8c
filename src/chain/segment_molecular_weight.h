#pragma once

#include "host/species.h"

namespace polyprops::chain {

// Parts of the polymer data that mean_segment_molecular_weight reads.
inline constexpr unsigned mean_segment_molecular_weight_parts =
    PolymerData::segment_list | PolymerData::polymer_list | PolymerData::oligomer_block;

// Molecular weight per segment of a listed component, g/mol; its own molecular weight when it has no
// segments.
Real mean_segment_molecular_weight(const PolymerData& data, const Species& species);

}  // namespace polyprops::chain
