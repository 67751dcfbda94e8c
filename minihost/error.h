#pragma once

#include <stdexcept>

namespace minihost {

// A refusal. The text names the thing refused, the value seen and the value expected.
class Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace minihost
