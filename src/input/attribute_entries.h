// The ATTR-COMPS entries of the paragraph: a component and the names of the attributes that it is to carry.
//
// A polymer needs ZMOM and SFLOW, a catalyst CPSFLOW and CVSFLOW; EFRAC needs an end segment. An entry that
// fails is left out with a message; every other one goes to the host's property semantics. When the host
// suppresses a message, the entry is taken as though the check had passed.
#pragma once

#include "input/polymer_block_room.h"
#include "input/workspace.h"

namespace polyprops::input {

// Notes for each component whether some entry names it, accepted or not.
void forward_attribute_entries(const Sentence& attributes, const PolymerBlock& block, const void* context,
                               const Workspace& work);

// Reports the accepted polymers and the catalysts that no entry names.
void report_missing_attribute_entries(const PolymerBlock& block, const Workspace& work);

}  // namespace polyprops::input
