// Files that lie beside a test.
#pragma once

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

/// A file named from the directory of a test source.
inline std::string stored(const std::filesystem::path& test, const std::string& name)
{
    return content(test.parent_path() / name);
}

}  // namespace support
