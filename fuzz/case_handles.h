// Handles of case.h with owners, and the reading of diagnostics.
#pragma once

#include <polyprops/case.h>

#include <memory>

#include "fuzz/cases.h"

namespace polyprops_fuzz {

struct Free {
    void operator()(polyprops_case* handle) const { polyprops_case_free(handle); }
    void operator()(polyprops_run* handle) const { polyprops_run_free(handle); }
};
using CaseHandle = std::unique_ptr<polyprops_case, Free>;
using RunHandle = std::unique_ptr<polyprops_run, Free>;

template <typename Handle, typename Ask>
void read_diagnostics(const Handle* handle, std::size_t count, const Ask& ask)
{
    polyprops_diagnostic found{};
    for (std::size_t i = 0; i < count; ++i) {
        require(ask(handle, i, &found) == POLYPROPS_OK, "a counted diagnostic is missing");
        require(found.file && found.key && found.text && *found.text != '\0', "a diagnostic lacks a text");
    }
    require(ask(handle, count, &found) != POLYPROPS_OK, "there is a diagnostic past the last");
}
inline void read_diagnostics(const polyprops_case* handle)
{
    read_diagnostics(handle, polyprops_case_diagnostic_count(handle), polyprops_case_diagnostic);
}
inline void read_diagnostics(const polyprops_run* handle)
{
    read_diagnostics(handle, polyprops_run_diagnostic_count(handle), polyprops_run_diagnostic);
}

// Every counted number and array of a run can be asked for by its key.
inline void read_results(const polyprops_run* run)
{
    double value = 0;
    const double* values = nullptr;
    std::size_t rows = 0, columns = 0;
    for (std::size_t i = 0; i < polyprops_run_number_count(run); ++i)
        require(polyprops_run_number(run, polyprops_run_number_key(run, i), &value) == POLYPROPS_OK,
                "a number has no value");
    for (std::size_t i = 0; i < polyprops_run_array_count(run); ++i) {
        const char* const name = polyprops_run_array_key(run, i);
        require(polyprops_run_array(run, name, &values, &rows, &columns) == POLYPROPS_OK,
                "an array has no values");
        require(rows * columns == 0 || values[rows * columns - 1] == values[rows * columns - 1],
                "an array ends with what is not a number");
    }
}

}  // namespace polyprops_fuzz
