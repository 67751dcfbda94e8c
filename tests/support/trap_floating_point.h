// Division by zero, invalid operations and overflow end the process while one of these exists, as in a host
// that traps floating-point exceptions.
#pragma once

#include <cfenv>

namespace support {

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

}  // namespace support
