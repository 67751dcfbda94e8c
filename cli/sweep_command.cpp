#include "cli/sweep_command.h"

#include <memory>

#include <fmt/format.h>
#include <unistd.h>

#include <stdexcept>

#include "app/io/output_check.h"
#include "app/sweep/sweep_journal.h"
#include "cli/command.h"

namespace cli {

namespace {

int sweep_unguarded(const app::SweepOptions& options, std::FILE* errors)
{
    app::OutputCheck check{{options.file}};
    check.add_file("--out", options.out);
    if (const auto journal = app::SweepJournal::file_for(options.out); !journal.empty())
        check.add_own_file("--out: the journal", journal);
    if (!check.reason().empty()) return refuse(check.reason(), errors);
    const bool is_shown = ::isatty(::fileno(errors)) != 0;
    const auto outcome = app::sweep(options, [&](std::size_t done, std::size_t cases) {
        if (!is_shown) return;
        fmt::print(errors, "\r{} of {} cases{}", done, cases, done == cases ? "\n" : "");
        std::fflush(errors);
    });
    if (!outcome.is_complete()) {
        fmt::print(errors, "polyprops: interrupted after {} of {} cases; {}\n", outcome.done, outcome.cases,
                   outcome.journal.empty()
                       ? "nothing is kept, since the result is not a file"
                       : fmt::format("the same command goes on from there ({})", outcome.journal.string()));
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

void add_sweep_command(CLI::App& program, int& status)
{
    const auto options = std::make_shared<app::SweepOptions>();
    auto* command = add_case_command(program, "sweep", "Run a case with every combination of given numbers",
                                     options->file);
    command->add_option("--set", options->sets, "Number of the case and its n values from a to b")
        ->required()
        ->allow_extra_args(false)
        ->type_name("KEY=a:b:n");
    command->add_option("--out", options->out, "CSV file, a row for each case")
        ->required()
        ->type_name("FILE");
    add_csv_safe(*command, options->csv_texts);
    command->add_option("--processes", options->processes, "Cases at a time (default: one for each core)")
        ->check(CLI::Range(1, 1024));
    command->callback([options, &status] { status = sweep(*options, stderr); });
}

}  // namespace cli
