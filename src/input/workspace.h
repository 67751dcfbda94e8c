// Notes that the steps of one paragraph check share, apart from the blocks that they build.
#pragma once

#include "input/scratch.h"

namespace polyprops::input {

struct ComponentNote {
    bool is_polymer;
    bool is_segment;
    bool is_oligomer;
    bool has_attribute_entry;
    Int segment_type;
    Int oligomer_column;
};

// One accepted count of an oligomer's make-up.
struct MakeUpEntry {
    Component oligomer;
    Int segment_position;
    Real segments;
};

struct Workspace {
    Workspace(Int components, Int make_up_entries) : notes(components), make_up(make_up_entries) {}

    bool is_allocated() const { return notes.is_allocated() && make_up.is_allocated(); }

    Scratch<ComponentNote> notes;  // by component
    Scratch<MakeUpEntry> make_up;
};

}  // namespace polyprops::input
