// The command `run`: prints the results of a case.
#pragma once

#include "app/case/measured_curve.h"
#include "cli/command.h"

namespace cli {

struct RunOptions {
    std::filesystem::path file;
    app::Format format = app::Format::text;
    Strictness strictness = Strictness::normal;
    app::CsvTexts csv_texts = app::CsvTexts::exact;
    std::optional<std::filesystem::path> out;         // directory for the files of the run
    std::optional<std::filesystem::path> gpc;         // measured curve to compare a composite with
    app::MeasuredCurveOptions measured;               // how to read it
    std::optional<std::filesystem::path> export_gpc;  // file for a composite in the same form
    std::string distribution;                         // whose composite; empty: the only one
};

// Results go to `out`, errors, messages and warnings to `errors`: one line for each error of the file, which
// end the command, and the messages of the library's input checks, which drop the entry they name. The exit
// status tells of both.
int run(const RunOptions& options, std::FILE* out, std::FILE* errors);

// Registers the subcommand: its options, and a callback that runs it and sets the exit status.
void add_run_command(CLI::App& program, int& status);

}  // namespace cli
