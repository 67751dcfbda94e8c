#pragma once

#include "host/views.h"

namespace polyprops::mixture {

// A sum of weights and of weighted values.
struct WeightedSum {
    Real weight = 0.0;
    Real total = 0.0;

    // The undivided total when the weights sum to exactly 0.
    Real average() const { return weight != 0.0 ? total / weight : total; }
};

// Sums over a row of a segment-count matrix of a property by component, each segment counted once.
WeightedSum sum_by_number(SegmentCountMatrix<const Real> counts, const ComponentList& segments, Component row,
                          ByComponent<const Real> property);

}  // namespace polyprops::mixture
