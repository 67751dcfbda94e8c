#pragma once

#include "host/species.h"

namespace polyprops::chain {

// What mean_segment_weight reads of the run.
inline constexpr unsigned mean_segment_weight_parts =
    PolymerData::segment_list | PolymerData::polymer_list | PolymerData::oligomer_block;

// Molecular weight per segment of a listed component, g/mol; its own molecular weight when it has no
// segments.
Real mean_segment_weight(const PolymerData& data, const Species& species);

}  // namespace polyprops::chain
