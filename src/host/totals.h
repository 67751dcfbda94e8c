// Values that are written and summed on the way, and shared out by their sum.
#pragma once

#include "host/views.h"

namespace polyprops {

// Writes value(i) for i = 1..n and returns the sum.
template <class Value>
Real write_values(Vector<Real> out, Int n, Value value)
{
    Real total = 0.0;
    for (Int i = 1; i <= n; ++i) {
        out(i) = value(i);
        total += out(i);
    }
    return total;
}

inline void divide(Vector<Real> values, Int n, Real total)
{
    for (Int i = 1; i <= n; ++i) values(i) /= total;
}

}  // namespace polyprops
