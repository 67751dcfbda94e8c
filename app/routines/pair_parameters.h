// Binary interaction parameters of all ordered pairs of some components.
#pragma once

#include "app/routines/component.h"

namespace app::routines {

// A value per ordered pair of components, first subscript fastest.
using PairMatrix = Reals;

// Coefficients by position, first component, second component. Positions count from 1; a reference position
// of 0 means that every pair refers to 298.15 K.
struct PairCoefficients {
    Int components = 0;
    Int positions = 0;
    Int reference_position = 0;
    Reals values;
};

// Fills in pairs given in one order from the other: positions up to `leading` are antisymmetric or symmetric,
// the others symmetric.
void complete_pairs(PairCoefficients& coefficients, Int leading, bool is_antisymmetric);

PairMatrix pair_parameters(const PairCoefficients& coefficients, double temperature);  // K
PairMatrix pair_slopes(const PairCoefficients& coefficients, double temperature);      // T·dK/dT

// The general form with a reference position: the parameter and dK/dT.
PairMatrix general_pair_parameters(const PairCoefficients& coefficients, double temperature);
PairMatrix general_pair_derivatives(const PairCoefficients& coefficients, double temperature);

}  // namespace app::routines
