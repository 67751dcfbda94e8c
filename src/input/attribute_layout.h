// The attribute layout table: where each of eleven attribute groups begins in an attribute vector, and its
// length. Five groups have one element per segment, six one per catalyst site type, each with one more for
// the total.
#pragma once

#include "input/polymer_block_room.h"

namespace polyprops::input {

// Replaces the table of an earlier paragraph. A negative number of site types counts as 0.
void lay_out_attributes(Int site_types, const PolymerBlock& block);

}  // namespace polyprops::input
