// Calls a routine with its arguments by address, as a host that traps floating-point exceptions:
//
//   call(POLY_GETRAT, 1, 2, ids, fractions, ratio);
#pragma once

#include <concepts>

#include "support/guarded.h"
#include "support/trap_floating_point.h"

namespace support {

using Ints = std::vector<std::int64_t>;
using Values = std::vector<double>;

// A segment-count matrix of n components, 0 where nothing is set.
struct CountMatrix {
    explicit CountMatrix(std::int64_t components) : n(components), elements(static_cast<std::size_t>(n * n))
    {
    }
    double& at(std::int64_t row, std::int64_t column)
    {
        return elements.at(static_cast<std::size_t>((column - 1) * n + row - 1));
    }

    const double* data() const { return elements.data(); }

    std::int64_t n;
    Values elements;
};

// Integers and reals stand for themselves, vectors for their elements, nullptr for an argument that is not
// read.
inline const std::int64_t* address(const std::int64_t& value)
{
    return &value;
}
template <typename Argument>
requires(!std::same_as<Argument, int>) auto address(Argument& argument)
{
    if constexpr (requires { argument.data(); })
        return argument.data();
    else if constexpr (std::is_convertible_v<Argument, const double*>)
        return argument;
    else
        return &argument;
}

template <typename Routine, typename... Arguments>
void call(Routine* routine, Arguments&&... arguments)
{
    const TrapFloatingPoint trap;
    routine(address(arguments)...);
}

}  // namespace support
