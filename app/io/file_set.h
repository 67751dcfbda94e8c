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

// Writes all of them, or none, and makes the directory. Readers see the old set or the new one: a directory
// with the new files, and all others under a second name, takes the place of the old one. It cannot where the
// directory contains a directory, is the working directory or a mount point, has an access control list or an
// owner that cannot be kept, or where the file system has no hard links or no exchange. The files are then
// replaced one after another, each of them whole. Links, pipes and devices are written through, after all
// others.
//
// Throws std::runtime_error with the path and the system's reason.
void write_files(const std::filesystem::path& directory, const std::vector<OutputFile>& files);

}  // namespace app
