// The exponential of an exponent limited to −250 … 80.59.
//
// At its limits the exponential is a constant: long chains, whose exponent is below the lower limit, cost
// none. The constants are the C library's own exponentials of the limits.
#pragma once

#include <cmath>

#include "host/views.h"

namespace polyprops::distribution {

inline Real bounded_exponential(Real exponent)
{
    if (at_most(exponent, -250.0)) return 0x1.40f531e1e6723p-361;
    if (at_least(exponent, 80.59)) return 0x1.34005f3449a0ap+116;
    return std::exp(exponent);
}

}  // namespace polyprops::distribution
