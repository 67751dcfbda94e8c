// The command `selfcheck`: does this build give known answers, and the versions that a bug report needs.
#pragma once

#include <CLI/CLI.hpp>

#include <cstdio>

namespace cli {

int selfcheck(std::FILE* out);

// Registers the subcommand: its options, and a callback that runs it and sets the exit status.
void add_selfcheck_command(CLI::App& program, int& status);

}  // namespace cli
