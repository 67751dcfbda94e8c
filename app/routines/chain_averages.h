// Chain averages of listed components of the selected stream, by position in the list.
#pragma once

#include "app/routines/component.h"

namespace app::routines {

Reals degrees_of_polymerization(const Components& components);         // 1
Reals mean_segment_weights(const Components& components);              // g/mol
Reals number_average_molecular_weights(const Components& components);  // g/mol
Reals weight_average_molecular_weights(const Components& components);  // g/mol
Reals polydispersity_indices(const Components& components);            // 1
Reals crystallinity_parameters(const Components& components);          // 1

// Of one polymer or oligomer, in the order of the segment list.
Reals segment_mole_fractions(Component chain, std::size_t segments);
// Of several, chain after chain.
Reals segment_mass_fractions(const Components& chains, std::size_t segments);

}  // namespace app::routines
