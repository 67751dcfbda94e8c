#pragma once

#include <functional>
#include <string>

#include "minihost/error.h"

namespace support {

// The text of the error that an action throws, empty without one.
template <typename Error = minihost::Error>
std::string refusal(const std::function<void()>& action)
{
    try {
        action();
    } catch (const Error& error) {
        return error.what();
    }
    return "";
}

}  // namespace support
