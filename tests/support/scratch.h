// A folder for the files of one test process, so that tests may run side by side.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

namespace support {

inline std::filesystem::path scratch()
{
    const auto folder =
        std::filesystem::path{testing::TempDir()} / ("polyprops_" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    return folder;
}

}  // namespace support
