// The segment-count matrix of a list of components, and averages of chains from it.
#pragma once

#include "app/routines/component.h"

namespace app::routines {

// Segments of component k per molecule of j. Column 1 of a component without segments holds 1.
struct SegmentCounts {
    std::size_t components = 0;    // number of components of the case
    Components segments;           // in the order of the segment list
    std::vector<Int> chain_flags;  // by component index: 1 for a polymer or oligomer of the list
    Reals counts;                  // column-major, rows and columns by component index

    // The matrix of a list without chains has only its first column.
    bool is_chain(Component c) const { return chain_flags[at(c)] == 1; }
    double of(Component chain, Component segment) const
    {
        return counts[at(chain) + at(segment) * components];
    }
};

// From the attributes of the selected stream, not from its chain averages, so that the two can be compared.
SegmentCounts segment_counts(const Components& list, std::size_t components);

// Of a list without polymers and oligomers.
SegmentCounts no_segment_counts(std::size_t components);

// Averages of the listed chains by position, g/mol; molecular weights by component index, g/mol.
Reals mean_segment_weights(const SegmentCounts& counts, const Components& chains,
                           const Reals& molecular_weights);
Reals number_average_molecular_weights(const SegmentCounts& counts, const Components& chains,
                                       const Reals& molecular_weights);
Reals weight_average_molecular_weights(const SegmentCounts& counts, const Components& chains,
                                       const Reals& molecular_weights);

// The average of a property by component index over the segments of one chain, weighted by their number or
// by the given factors. Without segments the answer is `otherwise`.
double number_average(const SegmentCounts& counts, Component chain, const Reals& property, double otherwise);
double weighted_average(const SegmentCounts& counts, Component chain, const Reals& property,
                        const Reals& weighting_factors, double otherwise);

}  // namespace app::routines
