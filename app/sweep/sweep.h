// A sweep: a case with every combination of given numbers, one row of a CSV file each.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "app/report/result_numbers.h"

namespace app {

struct SweepOptions {
    std::filesystem::path file;
    std::vector<std::string> sets;  // KEY=a:b:n
    std::filesystem::path out;
    std::size_t processes = 0;  // 0: one for each core
    CsvTexts csv_texts = CsvTexts::exact;
};

struct SweepOutcome {
    std::size_t cases = 0;
    std::size_t done = 0;    // less than `cases` after an interruption
    std::size_t failed = 0;  // their rows hold the error
    std::filesystem::path journal;

    bool is_complete() const { return done == cases; }
};

// Called with the number of cases done so far and that of all.
using SweepProgress = std::function<void(std::size_t done, std::size_t cases)>;

// Rows are kept in a journal next to `out` as they come: an interrupted sweep (SIGINT, SIGTERM) continues
// where it was when the same sweep is started again. Throws std::invalid_argument for options that make no
// sweep, such as a key that leads to no number, and std::runtime_error for a case in error and for files that
// cannot be read or written.
SweepOutcome sweep(const SweepOptions& options, const SweepProgress& progress);

}  // namespace app
