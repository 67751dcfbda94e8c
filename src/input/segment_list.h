// The segments of the paragraph: one list of all, in ascending order of their component indices with their
// types after them, and a list of each type in the order of the sentence.
#pragma once

#include "input/polymer_block_room.h"
#include "input/workspace.h"

namespace polyprops::input {

void list_segments(const Sentence& segments, const PolymerBlock& block, const Workspace& work);

}  // namespace polyprops::input
