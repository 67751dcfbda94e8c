// The oligomers of the paragraph, in ascending order of their component indices, and the number of each
// segment in one molecule: a table with one row per entry of the segment list and one column per oligomer.
#pragma once

#include "input/polymer_block_room.h"
#include "input/workspace.h"

namespace polyprops::input {

// Returns the number of distinct oligomers accepted. Without oligomer entries an earlier block stays as it
// is.
Int list_oligomers(const Sentence& oligomers, const PolymerBlock& block, const Workspace& work);

}  // namespace polyprops::input
