// Replays the seeds of a fuzz target.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string_view>

#include "support/files.h"

namespace support {

inline void replay(const char* target, void (*check)(std::string_view))
{
    int seeds = 0;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::filesystem::path{POLYPROPS_FUZZ_SEEDS} / target)) {
        SCOPED_TRACE(entry.path());
        EXPECT_NO_THROW(check(content(entry.path())));
        ++seeds;
    }
    EXPECT_GT(seeds, 0) << target;
}

}  // namespace support
