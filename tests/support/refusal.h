// What the embedded host says when it refuses.
#pragma once

#include <functional>
#include <string>

#include "minihost/error.h"

namespace support {

// The text of the error that an action throws, empty without one.
inline std::string refusal(const std::function<void()>& action)
{
    try {
        action();
    } catch (const minihost::Error& error) {
        return error.what();
    }
    return "";
}

}  // namespace support
