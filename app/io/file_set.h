// Files that are written together.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace app {

struct OutputFile {
    std::string name;
    std::string content;
};

// Writes all of them, each whole, or none: they take their names only when every one has reached the disk.
// Makes the directory. Throws std::runtime_error with the path and the system's reason.
void write_files(const std::filesystem::path& directory, const std::vector<OutputFile>& files);

}  // namespace app
