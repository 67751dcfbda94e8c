// Chains by their segments: the segment-count matrix of a stream, and averages of chains from it and from the
// attributes.
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

// One average of a chain computed in two ways, g/mol.
struct ChainAverageComparison {
    std::string component;
    std::string average;  // key of the same quantity in the chain averages
    double from_counts;
    double from_attributes;
    double difference;  // relative to the average from the attributes
};

SegmentCountMatrix segment_count_matrix(const StreamList& list, const minihost::Host& host);

// Of the selected stream.
std::vector<ChainAverageComparison> chain_average_comparisons(const StreamList& list,
                                                              const minihost::Host& host);

}  // namespace app
