// The counts of the paragraph and the values of its catalyst-site sentence.
#pragma once

#include "input/polymer_block_room.h"

namespace polyprops::input {

// The number of site types and the real are always written; any other value only when it is not zero, so that
// the one of an earlier paragraph stays.
void write_parameters(const Sentences& sentences, Int oligomer_count, const PolymerBlock& block);

}  // namespace polyprops::input
