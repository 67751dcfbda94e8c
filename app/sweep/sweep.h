// The command `sweep`: a case with every combination of given numbers, one row of a CSV file each.
#pragma once

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

namespace app {

inline constexpr int exit_success = 0, exit_case_error = 1, exit_usage = 2;  // moved with the commands
inline constexpr int exit_interrupted = 130;

struct SweepOptions {
    std::filesystem::path file;
    std::vector<std::string> sets;  // KEY=a:b:n
    std::filesystem::path out;
    std::size_t processes = 0;  // 0: one for each core
};

// Rows are kept beside `out` as they come: an interrupted sweep goes on where it was when the same command is
// given again. A case that fails has its error in its row; the exit status tells that there is one.
int sweep(const SweepOptions& options, std::FILE* errors);

}  // namespace app
