#pragma once

#include "host/views.h"

namespace polyprops::mixture {

// True (per chain) mole fractions from apparent ones, by position: true amounts over their sum. An entry
// whose chain molecular weight is exactly 0 keeps its apparent fraction; a sum of exactly 0 is not divided
// by.
void true_mole_fractions(const ComponentList& components, Vector<const Real> apparent_fractions,
                         ByComponent<const Real> molecular_weights,
                         Vector<const Real> chain_molecular_weights, Vector<Real> true_fractions);

}  // namespace polyprops::mixture
