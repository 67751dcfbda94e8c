// What the paragraph check built, read from the blocks that it left in the host's store.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "minihost/host.h"

namespace cli {

struct BuiltSegment {
    std::string id;
    minihost::Int type;
    minihost::Int position;  // in the segment list
};

struct BuiltOligomer {
    std::string id;
    std::vector<double> counts;  // by segment-list position
};

struct BuiltCatalyst {
    std::string id;
    double value;
};

struct BuiltSites {
    minihost::Int count;
    std::array<minihost::Int, 3> integers;
    double real;
};

// One of the groups that lie end to end in an attribute vector.
struct BuiltGroup {
    minihost::Int start;
    minihost::Int length;
};

struct BuiltRequest {
    std::string polymer;
    minihost::Int type;
    std::array<minihost::Int, 3> integers;
    double real;
};

struct Built {
    std::vector<std::string> segment_list;
    std::vector<BuiltSegment> segments;  // type by type
    std::vector<std::string> polymers;
    std::vector<BuiltOligomer> oligomers;
    std::vector<BuiltCatalyst> catalysts;
    std::vector<std::string> initiators;
    BuiltSites sites = {};
    std::vector<BuiltGroup> attribute_layout;
    std::vector<BuiltRequest> distributions;  // type by type
};

// All empty in a run without polymer block.
Built read_built(minihost::Host& host);

// IDs of one of its lists alone.
std::vector<std::string> segment_list(minihost::Host& host);
std::vector<std::string> end_segment_list(minihost::Host& host);

}  // namespace cli
