// The polymers of the paragraph.
#pragma once

#include "input/polymer_block_room.h"
#include "input/workspace.h"

namespace polyprops::input {

// Lists the accepted polymers in the order of the sentence.
void list_polymers(const Sentence& polymers, const PolymerBlock& block, const Workspace& work);

}  // namespace polyprops::input
