#pragma once

#include "host/views.h"

namespace polyprops::mixture {

// True (per chain) mole fractions from apparent ones, by position: x · apparent weight / chain weight over
// the sum of these. An entry whose chain weight is exactly 0 keeps its apparent fraction; a sum of exactly 0
// is not divided by.
void true_mole_fractions(const ComponentList& components, Vector<const Real> apparent_fractions,
                         ByComponent<const Real> apparent_weights, Vector<const Real> chain_weights,
                         Vector<Real> true_fractions);

}  // namespace polyprops::mixture
