// Handles of case.h with owners, and the reading of diagnostics.
#pragma once

#include <polyprops/case.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "fuzz/cases.h"

namespace polyprops_fuzz {

struct Free {
    void operator()(polyprops_case* handle) const { polyprops_case_free(handle); }
    void operator()(polyprops_run* handle) const { polyprops_run_free(handle); }
};
using CaseHandle = std::unique_ptr<polyprops_case, Free>;
using RunHandle = std::unique_ptr<polyprops_run, Free>;

// One line for each diagnostic: file, line, column, key, severity and text.
template <typename Handle, typename Ask>
std::vector<std::string> lines(const Handle* handle, std::size_t count, const Ask& ask)
{
    std::vector<std::string> all;
    polyprops_diagnostic d{};
    for (std::size_t i = 0; i < count; ++i) {
        require(ask(handle, i, &d) == POLYPROPS_OK, "a counted diagnostic is missing");
        require(d.file && d.key && d.text && *d.text != '\0', "a diagnostic lacks a text");
        const auto place = std::to_string(d.line) + ":" + std::to_string(d.column);
        all.push_back(std::string{d.file} + ":" + place + " [" + d.key + "] " + std::to_string(d.severity) +
                      " " + d.text);
    }
    require(ask(handle, count, &d) != POLYPROPS_OK, "there is a diagnostic past the last");
    return all;
}
inline std::vector<std::string> diagnostics(const CaseHandle& handle)
{
    return lines(handle.get(), polyprops_case_diagnostic_count(handle.get()), polyprops_case_diagnostic);
}
inline std::vector<std::string> diagnostics(const RunHandle& handle)
{
    return lines(handle.get(), polyprops_run_diagnostic_count(handle.get()), polyprops_run_diagnostic);
}

// Asks for what has any key, and for every counted diagnostic, number and array by its own.
inline void read_run(const RunHandle& handle, const std::string& key)
{
    diagnostics(handle);
    const polyprops_run* const run = handle.get();
    double value = 0;
    polyprops_run_number(run, key.c_str(), &value);
    for (std::size_t i = 0; i < polyprops_run_number_count(run); ++i) {
        require(polyprops_run_number(run, polyprops_run_number_key(run, i), &value) == POLYPROPS_OK,
                "a number has no value");
        require(polyprops_run_status(run) != POLYPROPS_OK || std::isfinite(value),
                "a result of a good run is not finite");
    }
    const double* values = nullptr;
    std::size_t rows = 0;
    std::size_t columns = 0;
    polyprops_run_array(run, key.c_str(), &values, &rows, &columns);
    for (std::size_t i = 0; i < polyprops_run_array_count(run); ++i) {
        const char* const name = polyprops_run_array_key(run, i);
        require(polyprops_run_array(run, name, &values, &rows, &columns) == POLYPROPS_OK,
                "an array has no values");
        require(rows * columns == 0 || !std::isnan(values[rows * columns - 1]),
                "an array ends with what is not a number");
    }
}

}  // namespace polyprops_fuzz
