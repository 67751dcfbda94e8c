#pragma once

#include <cstdint>
#include <string_view>

namespace app {

// FNV-1a, 64 bits; texts that differ in a single byte have different sums.
constexpr std::uint64_t checksum(std::string_view text, std::uint64_t before = 14695981039346656037U)
{
    for (const char c : text) before = (before ^ static_cast<unsigned char>(c)) * 1099511628211U;
    return before;
}

}  // namespace app
