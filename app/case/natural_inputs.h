// Masses, chains and mixtures of streams as flows and attribute values.
#pragma once

#include "app/case/case_model.h"

namespace app {

// Adds to `flows` and `attributes` of each stream what its mass flows, chains and mix say. An attribute that
// is given as well keeps its value; a difference becomes a warning of the case. The case must have passed
// the checks of its names.
void apply_natural_inputs(Case& input, Diagnostics& diagnostics);

}  // namespace app
