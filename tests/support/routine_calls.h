// What a test of a routine needs: its host, and calls with arguments by address, as a host that traps
// floating-point exceptions:
//
//   call(POLY_GETRAT, 1, 2, ids, fractions, ratio);
#pragma once

#include <polyprops/host.h>
#include <polyprops/polyprops.h>

#include <cfenv>
#include <cmath>
#include <concepts>
#include <limits>

#include "minihost/service_log.h"
#include "support/guarded.h"
#include "support/world.h"

namespace support {

using Ints = std::vector<std::int64_t>;
using Values = std::vector<double>;

inline constexpr double infinity = std::numeric_limits<double>::infinity();
inline constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

// Division by zero, invalid operations and overflow end the process while one of these exists.
class TrapFloatingPoint {
public:
    TrapFloatingPoint()
    {
        std::feclearexcept(FE_ALL_EXCEPT);
        feenableexcept(trapped);
    }
    ~TrapFloatingPoint() { fedisableexcept(trapped); }
    TrapFloatingPoint(const TrapFloatingPoint&) = delete;
    TrapFloatingPoint& operator=(const TrapFloatingPoint&) = delete;

private:
    static constexpr int trapped = FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW;
};

// While it exists, the host is asked for each block, class and attribute at most once.
struct AskedOnce {
    ~AskedOnce()
    {
        for (const char* service :
             {"ST_FIND_I", "ST_FIND_M", "CC_FIND_ATTR", "CC_IS_POLYMER", "CC_IS_OLIGOMER"})
            EXPECT_TRUE(log.repeated(service).empty()) << service;
        EXPECT_LE(log.count("CC_POLYMER_BLOCK"), 1);
        EXPECT_EQ(log.count("CC_INDEX"), 0);
    }
    minihost::ServiceLog log;
};

// A segment-count matrix of n components, 0 where nothing is set.
struct CountMatrix {
    explicit CountMatrix(Int components) : n(components), elements(static_cast<std::size_t>(n * n)) {}
    double& at(Int row, Int column)
    {
        return elements.at(static_cast<std::size_t>((column - 1) * n + row - 1));
    }
    const double* data() const { return elements.data(); }

    Int n;
    Values elements;
};

// Integers and reals stand for themselves, vectors for their elements, nullptr for an argument that is not
// read.
inline const Int* address(const Int& value)
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
