#include "cli/sweep_command.h"

#include <fmt/format.h>
#include <unistd.h>

#include <stdexcept>

#include "cli/command.h"

namespace cli {

namespace {

int sweep_unguarded(const app::SweepOptions& options, std::FILE* errors)
{
    const bool is_shown = ::isatty(::fileno(errors)) != 0;
    const auto outcome = app::sweep(options, [&](std::size_t done, std::size_t cases) {
        if (!is_shown) return;
        fmt::print(errors, "\r{} of {} cases{}", done, cases, done == cases ? "\n" : "");
        std::fflush(errors);
    });
    if (!outcome.is_complete()) {
        fmt::print(errors,
                   "polyprops: interrupted after {} of {} cases; the same command goes on from there ({})\n",
                   outcome.done, outcome.cases, outcome.journal.string());
        return exit_interrupted;
    }
    if (outcome.failed == 0) return exit_success;
    fmt::print(errors, "polyprops: {} of {} cases failed; their rows hold the error\n", outcome.failed,
               outcome.cases);
    return exit_case_error;
}

}  // namespace

int sweep(const app::SweepOptions& options, std::FILE* errors)
{
    const auto command = [&] {
        try {
            return sweep_unguarded(options, errors);
        } catch (const std::invalid_argument& error) {
            return refuse(error.what(), errors);
        }
    };
    return guarded(command, errors);
}

}  // namespace cli
