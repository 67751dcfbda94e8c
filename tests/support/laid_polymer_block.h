// Lays a polymer block with its four lists straight from plain data, also such as no paragraph check would
// build.
#pragma once

#include <map>
#include <vector>

#include "minihost/store_words.h"

namespace minihost {
class Store;
}

namespace support {

using minihost::BlockId;
using minihost::Int;

// Segment types as the segment list holds them.
enum class SegmentType : Int { end = 1, repeat = 2, branch3 = 3, branch4 = 4 };

// The polymer data of a run, by component index.
struct PolymerLists {
    struct Segment {
        Int component;
        SegmentType type = SegmentType::repeat;
    };
    struct Oligomer {
        Int component;
        std::map<Int, double> counts;  // segments per molecule, by the segment's component index
    };
    std::vector<Segment> segments;  // by component index
    std::vector<Int> polymers;
    std::vector<Oligomer> oligomers;
    std::vector<Int> end_segments;
    Int sites = 0;  // catalyst site types
};

// Lays the lists in the order given and returns the id of the block.
BlockId lay_polymer_block(minihost::Store& store, const PolymerLists& lists);

}  // namespace support
