// Files of the tests folder, and a folder for those that a test writes.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace support {

inline std::string content(const std::filesystem::path& path)
{
    std::stringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

// A file named from the tests folder.
inline std::string stored(const std::string& name)
{
    return content(std::filesystem::path{POLYPROPS_TEST_FILES} / name);
}

// A folder of the test process, so that tests may run side by side.
inline std::filesystem::path scratch()
{
    const auto folder =
        std::filesystem::path{testing::TempDir()} / ("polyprops_" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    return folder;
}

}  // namespace support
