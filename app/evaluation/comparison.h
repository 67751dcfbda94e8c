// Two values of one quantity in a warning.
#pragma once

#include <string>

namespace app {

struct Quantity {
    std::string name;
    double value;           // 0 or greater
    std::string unit = {};  // empty for a ratio
};

// Of two values from 0, relative to the larger.
double relative_difference(double a, double b);

// Whether the values differ by at most 0.01 % of the larger: numbers of a case file are rounded. Values that
// are not finite agree with everything, since they are reported as such.
bool agree(double a, double b);

// "NAME is 1.5 kmol/h"
std::string shown(const Quantity& quantity);

// "they differ by 5 % of the larger", or "they agree".
std::string difference(const Quantity& a, const Quantity& b);

}  // namespace app
