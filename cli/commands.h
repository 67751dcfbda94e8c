// The commands of the program, without its command line.
#pragma once

#include <cstdio>
#include <filesystem>

namespace cli {

enum class Format { text, csv, json };

inline constexpr int exit_success = 0;
inline constexpr int exit_case_error = 1;
inline constexpr int exit_usage = 2;

// Loads the case and prints its results to `out`. What is wrong with the case goes to `errors`, one line
// each.
int run(const std::filesystem::path& file, Format format, std::FILE* out, std::FILE* errors);

}  // namespace cli
