// Requests for chain-length distributions: a directory with one block for each of four types. A block holds
// its requests column by column: polymer, type, three further integers; and one real for each.
#pragma once

#include "input/polymer_block_room.h"

namespace polyprops::input {

// A request of another type than 1 to 4 is neither stored nor reported.
void write_distribution_requests(const Sentence& requests, const PolymerBlock& block);

}  // namespace polyprops::input
