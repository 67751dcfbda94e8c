// The command `sweep`: a case with every combination of given numbers.
#pragma once

#include <CLI/CLI.hpp>

#include <cstdio>

#include "app/sweep/sweep.h"
#include "cli/exit_status.h"

namespace cli {

// The exit status tells that a case failed or that the sweep was interrupted.
int sweep(const app::SweepOptions& options, std::FILE* errors);

// Registers the subcommand: its options, and a callback that runs it and sets the exit status.
void add_sweep_command(CLI::App& program, int& status);

}  // namespace cli
