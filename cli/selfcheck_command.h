// The command `selfcheck`: does this build give known answers, and the versions that a bug report needs.
#pragma once

#include <CLI/CLI.hpp>

#include <cstdio>
#include <string_view>

namespace cli {

// Equal masses of polystyrene of 10 000, 30 000 and 100 000 g/mol, each of one chain length; a site whose
// chains end with the probability 0.1 on the grid 10, 100; a pair at its reference temperature.
extern const std::string_view built_in_case;

// Compares the results of a case with the known answers of the built-in one.
int selfcheck(std::FILE* out, std::string_view case_text = built_in_case);

// Registers the subcommand: its options, and a callback that runs it and sets the exit status.
void add_selfcheck_command(CLI::App& program, int& status);

}  // namespace cli
