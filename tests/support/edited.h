// Texts of cases with one place changed.
#pragma once

#include <gtest/gtest.h>

#include <string>

namespace support {

/// The text with the first `old` replaced; it has to be there.
inline std::string with(std::string text, const std::string& old, const std::string& replacement)
{
    const auto at = text.find(old);
    EXPECT_NE(at, std::string::npos) << old;
    return text.replace(at, old.size(), replacement);
}

}  // namespace support
