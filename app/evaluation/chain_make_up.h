// Chains by their segments: the segment-count matrix of a stream, and chain weights from it beside those from
// the attributes.
#pragma once

#include <string>
#include <vector>

#include "app/evaluation/stream_list.h"

namespace app {

struct ChainMakeUp {
    std::string component;
    std::vector<double> counts;  // segments per chain, in the order of the segment list
};

struct SegmentCountMatrix {
    std::vector<std::string> segments;
    std::vector<ChainMakeUp> chains;
};

// One average of a chain's weight on two ways, g/mol.
struct WeightComparison {
    std::string component;
    std::string average;  // key of the same quantity in the chain averages
    double from_counts;
    double from_attributes;
    double difference;  // relative to the weight from the attributes
};

SegmentCountMatrix segment_counts(const StreamList& list, const minihost::Host& host);

// Of the selected stream.
std::vector<WeightComparison> chain_weights(const StreamList& list, const minihost::Host& host);

}  // namespace app
