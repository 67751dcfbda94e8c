// Catalysts and initiators of the paragraph. An entry keeps its place also when its ID is unknown: the place
// then holds 0, so that nothing of an earlier paragraph shows through.
#pragma once

#include "input/polymer_block_room.h"

namespace polyprops::input {

void list_catalysts(const Sentence& catalysts, const PolymerBlock& block);
void list_initiators(const Sentence& initiators, const PolymerBlock& block);

}  // namespace polyprops::input
