// The command `check`: checks the polymer paragraph and prints the input as checked.
#pragma once

#include "cli/command.h"

namespace cli {

// Prints no tables as text or CSV when a check had a message.
int check(const std::filesystem::path& file, app::Format format, std::FILE* out, std::FILE* errors);

}  // namespace cli
