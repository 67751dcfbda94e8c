// The command `fit`: prints the sites whose sum is a measured curve.
#pragma once

#include "app/case/measured_curve.h"
#include "app/fit/deconvolution.h"
#include "cli/command.h"

namespace cli {

struct FitCommandOptions {
    std::filesystem::path file;
    app::Format format = app::Format::text;
    Strictness strictness = Strictness::normal;
    app::CsvTexts csv_texts = app::CsvTexts::exact;
    std::filesystem::path gpc;
    app::MeasuredCurveOptions measured;        // how to read it
    app::FitOptions fit;                       // number of sites
    std::optional<double> segment_weight;      // g/mol; empty: that of the distribution
    std::string distribution;                  // empty: the only one
    std::optional<std::filesystem::path> out;  // directory for the files of the fit
};

// As `run`.
int fit(const FitCommandOptions& options, std::FILE* out, std::FILE* errors);

// Registers the subcommand.
void add_fit_command(CLI::App& program, int& status);

}  // namespace cli
