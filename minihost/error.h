#pragma once

#include <stdexcept>

namespace minihost {

// What the host refuses. The text names the thing refused, what was seen and what was expected.
class Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace minihost
