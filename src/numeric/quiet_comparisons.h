// Comparisons of reals that raise no floating-point exception for a NaN, as <, <=, > and >= do: a host may
// trap it. They are false when either side is a NaN.
#pragma once

#include <cmath>

namespace polyprops {

// Keeps a comparison out of vector code: vector instructions of x86 raise the exception after all.
inline void stay_scalar()
{
    asm volatile("");  // NOLINT(hicpp-no-assembler): no instruction, but nothing that can be made a vector
}

inline bool above(double value, double bound)
{
    stay_scalar();
    return std::isgreater(value, bound);
}
inline bool at_least(double value, double bound)
{
    stay_scalar();
    return std::isgreaterequal(value, bound);
}
inline bool below(double value, double bound)
{
    stay_scalar();
    return std::isless(value, bound);
}
inline bool at_most(double value, double bound)
{
    stay_scalar();
    return std::islessequal(value, bound);
}

}  // namespace polyprops
