// Conversions between the apparent, true and segment bases. All vectors are by position in the list unless a
// comment says otherwise; molecular weights in g/mol.
#pragma once

#include "app/routines/segment_count_matrix.h"

namespace app::routines {

// Entries of a full composition by component index that belong to the list, scaled to a sum of 1.
Reals sub_composition(const Reals& by_component, const Components& list);

// Mass fractions from mole fractions on the apparent basis, with the host's molecular weights.
Reals apparent_mass_fractions(const Components& list, const Reals& mole_fractions);
// The same on any basis, with molecular weights by position.
Reals mass_fractions(const Reals& mole_fractions, const Reals& molecular_weights);

// True mole fractions from apparent ones; apparent molecular weights by component index.
Reals true_mole_fractions(const Components& list, const Reals& apparent_weights, const Reals& apparent);

// A quantity per apparent mole as a quantity per mole of chains; apparent molecular weights by component
// index, number-average molecular weights by position.
Reals per_true_mole(const Components& list, const Reals& apparent_weights,
                    const Reals& number_average_molecular_weights, const Reals& quantity);

// Chains taken apart into their segments: components and segments with their flows or mole fractions.
struct SegmentBasis {
    Components list;
    Reals flows;
    Reals mole_fractions;
};
SegmentBasis segment_basis(const Components& list, const SegmentCounts& counts, const Reals& true_flows,
                           const Reals& true_fractions);

}  // namespace app::routines
