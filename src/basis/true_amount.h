// An apparent amount on the true basis.
//
//   x_true ∝ x · MW / Mn      one apparent mole of a polymer or oligomer is MW / Mn moles of chains
#pragma once

#include "host/views.h"

namespace polyprops::basis {

// mw: molecular weight of the component; mn: number-average molecular weight of its chains.
inline Real true_amount(Real apparent, Real mw, Real mn)
{
    return apparent * mw / mn;
}

}  // namespace polyprops::basis
