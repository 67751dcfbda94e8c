// The files that a run leaves in a directory.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "app/evaluation/evaluation.h"

namespace app {

struct OutputFile {
    std::string name;
    std::string content;
};

// NAME.rpt, NAME.sum, NAME.csv, NAME.json, NAME.html, and NAME.DISTRIBUTION.csv with the curves of each
// distribution. The host's report and summary files receive what the library publishes.
std::vector<OutputFile> output_files(const std::string& name, Evaluation& evaluation);

// Writes all of them, each whole, or none: they take their names only when every one has reached the disk.
// Makes the directory. Throws std::runtime_error with the path and the system's reason.
void write_files(const std::filesystem::path& directory, const std::vector<OutputFile>& files);

}  // namespace app
