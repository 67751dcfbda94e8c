// The result of the paragraph check, read back from the polymer block for display.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "minihost/store_words.h"

namespace minihost {

class Host;

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

// A group of elements of an attribute vector.
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
    std::vector<std::string> segment_ids;  // in the order of the segment list
    std::vector<ListedSegment> segments;   // type by type
    std::vector<std::string> polymers;
    std::vector<ListedOligomer> oligomers;
    std::vector<ListedCatalyst> catalysts;
    std::vector<std::string> initiators;
    SiteData sites = {};
    std::vector<AttributeGroup> attribute_layout;
    std::vector<ListedDistribution> distributions;  // type by type
};

// Empty without a polymer block. Catalysts and initiators whose ID no component has are left out.
PolymerInput read_polymer_input(Host& host);

// The IDs in the segment list and in the list of end segments. Empty without a polymer block.
std::vector<std::string> segment_ids(Host& host);
std::vector<std::string> end_segment_ids(Host& host);

}  // namespace minihost
