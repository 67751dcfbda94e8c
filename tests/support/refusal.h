#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

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

inline void expect_refusals(const std::vector<std::pair<std::function<void()>, std::string>>& cases)
{
    for (const auto& [action, text] : cases) EXPECT_EQ(refusal(action), text);
}

}  // namespace support
