// The command `check`: checks the polymer paragraph and prints the input as checked.
#pragma once

#include "cli/command.h"

namespace cli {

// Prints no tables as text or CSV when a check had a message.
int check(const std::filesystem::path& file, app::Format format, std::FILE* out, std::FILE* errors,
          Strictness strictness = Strictness::normal, app::CsvTexts texts = app::CsvTexts::exact);

// Registers the subcommand: its options, and a callback that runs it and sets the exit status.
void add_check_command(CLI::App& program, int& status);

}  // namespace cli
