// What the paragraph check built, read from the blocks that it left in the host's store.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "minihost/embedded_host.h"

namespace minihost {

struct ListedSegment {
    std::string id;
    Int type;
    Int position;  // in the segment list
};

struct ListedOligomer {
    std::string id;
    std::vector<double> counts;  // by segment-list position
};

struct ListedCatalyst {
    std::string id;
    double value;
};

struct SiteData {
    Int count;
    std::array<Int, 3> integers;
    double real;
};

// One of the groups that lie end to end in an attribute vector.
struct AttributeGroup {
    Int start;
    Int length;
};

struct ListedDistribution {
    std::string polymer;
    Int type;
    std::array<Int, 3> integers;
    double real;
};

struct PolymerInput {
    std::vector<std::string> segment_list;
    std::vector<ListedSegment> segments;  // type by type
    std::vector<std::string> polymers;
    std::vector<ListedOligomer> oligomers;
    std::vector<ListedCatalyst> catalysts;
    std::vector<std::string> initiators;
    SiteData sites = {};
    std::vector<AttributeGroup> attribute_layout;
    std::vector<ListedDistribution> distributions;  // type by type
};

// All empty in a run without polymer block.
PolymerInput read_polymer_input(Host& host);

// IDs of one of its lists alone.
std::vector<std::string> segment_list(Host& host);
std::vector<std::string> end_segment_list(Host& host);

}  // namespace minihost
