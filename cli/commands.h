// The commands of the program, without its command line.
#pragma once

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>

#include "app/evaluation/bases.h"
#include "app/report/report.h"

namespace cli {

using namespace app;

enum class Format { text, csv, json };

inline constexpr int exit_success = 0;
inline constexpr int exit_case_error = 1;
inline constexpr int exit_usage = 2;

std::string formatted(const Report& report, Format format);

// Throws std::runtime_error when not all of the text can be written.
void write(const std::string& text, std::FILE* out);

struct RunOptions {
    std::filesystem::path file;
    Format format = Format::text;
    std::optional<std::filesystem::path> out;         // directory for the files of the run
    std::optional<std::filesystem::path> gpc;         // measured curve to hold a composite against
    std::optional<std::filesystem::path> export_gpc;  // file for a composite in the same form
    std::string distribution;                         // whose composite; empty: the only one
};

// Checks the case and prints the results of its streams to `out`. What is wrong with it goes to `errors`: one
// line for each error of the file, which end the command, and the messages of the library's input checks,
// which drop what they name and let the rest of the case run. With either of them the exit status tells so.
int run_case(const RunOptions& options, std::FILE* out, std::FILE* errors);
int run(const std::filesystem::path& file, Format format, std::FILE* out, std::FILE* errors);

struct Conversion {
    std::string stream;
    Basis from;
    Basis to;
};

// Why there is no such conversion; empty when there is one.
std::string impossible(const Conversion& conversion);

// Prints one stream of the case on two bases. A stream that the case does not have is an error of usage.
int convert(const std::filesystem::path& file, const Conversion& conversion, Format format, std::FILE* out,
            std::FILE* errors);

// Stops after the input checks and prints what was built, unless one of them had something to report.
int check(const std::filesystem::path& file, Format format, std::FILE* out, std::FILE* errors);

}  // namespace cli
