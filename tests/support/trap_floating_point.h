// Division by zero, invalid operations and overflow end the process while one of these exists, as in a host
// that traps floating-point exceptions.
#ifndef TESTS_SUPPORT_TRAP_FLOATING_POINT_H
#define TESTS_SUPPORT_TRAP_FLOATING_POINT_H

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

#endif
