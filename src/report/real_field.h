// Real fields of the report: 11 characters with 4 significant digits.
#pragma once

#include <array>
#include <string_view>

#include "host/views.h"

namespace polyprops::report {

class RealField {
public:
    // Written as the Fortran edit G11.4 writes it: fixed notation and four blanks where the rounded magnitude
    // is in 0.1 … 10^4, otherwise 0.dddd with an exponent. Zero of either sign is "  0.000    ". A value that
    // is not finite is NaN, Infinity or -Infinity, right-aligned.
    explicit RealField(Real value);

    std::string_view view() const { return {characters_.data(), characters_.size()}; }

private:
    std::array<char, 11> characters_;
};

}  // namespace polyprops::report
