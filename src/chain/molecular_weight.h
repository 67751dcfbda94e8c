#pragma once

#include <optional>

#include "chain/degree_of_polymerization.h"
#include "chain/segment_molecular_weight.h"

namespace polyprops::chain {

// Parts of the polymer data that number_average_molecular_weight and weight_average_molecular_weight read.
inline constexpr unsigned molecular_weight_parts =
    degree_of_polymerization_parts | mean_segment_molecular_weight_parts;
// Parts of the polymer data that averages from moments and segment flows read.
inline constexpr unsigned moment_parts = PolymerData::segment_list | PolymerData::polymer_list;

// Number-average molecular weight of a listed component, g/mol.
Real number_average_molecular_weight(const PolymerData& data, const Species& species);

// Chains, segments and second moment of a polymer, of which its polydispersity is made.
struct PolydispersityMoments {
    Real chains;
    Real segments;
    Real second;

    // Weight- over number-average chain length.
    Real index() const { return (second / segments) / (segments / chains); }
};
// Nothing for a component that keeps its PDI parameter.
std::optional<PolydispersityMoments> polydispersity_moments(const PolymerData& data, const Species& species);

// Weight- over number-average molecular weight of a listed component.
Real polydispersity(const PolymerData& data, const Species& species);

// The component's own PDI parameter; 1 when the run has none.
Real polydispersity_parameter(Component c);

// Molecular weight of a chain from its row of a segment-count matrix, g/mol: Σ MW(s) · SCM(j, s).
Real molecular_weight_from_counts(SegmentCountMatrix<const Real> counts,
                                  ByComponent<const Real> molecular_weights, const ComponentList& segments,
                                  Component row);

}  // namespace polyprops::chain
