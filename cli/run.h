// The command `run`.
#pragma once

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>

#include "cli/commands.h"

namespace cli {

struct RunOptions {
    std::filesystem::path file;
    Format format = Format::text;
    std::optional<std::filesystem::path> out;         // directory for the files of the run
    std::optional<std::filesystem::path> gpc;         // measured curve to hold a composite against
    std::optional<std::filesystem::path> export_gpc;  // file for a composite in the same form
    std::string distribution;                         // whose composite; empty: the only one
};

int run(const RunOptions& options, std::FILE* out, std::FILE* errors);

}  // namespace cli
