#include "app/sweep/sweep.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <new>
#include <stdexcept>
#include <thread>
#include <unordered_map>

#include "app/case/case_document.h"
#include "app/evaluation/evaluation.h"
#include "app/io/file_contents.h"
#include "app/report/make_report.h"
#include "app/report/result_numbers.h"
#include "app/sweep/checksum.h"
#include "app/sweep/process_pool.h"
#include "app/sweep/sweep_grid.h"
#include "app/sweep/sweep_journal.h"

namespace app {

namespace {

volatile std::sig_atomic_t is_interrupted = 0;

// While it lives, an interruption lets the running cases end instead of ending the program.
class Interruption {
public:
    Interruption()
    {
        is_interrupted = 0;
        struct sigaction action {};
        action.sa_handler = [](int) { is_interrupted = 1; };
        for (std::size_t i = 0; i < signals.size(); ++i) ::sigaction(signals[i], &action, &before_[i]);
    }
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;
    ~Interruption()
    {
        for (std::size_t i = 0; i < signals.size(); ++i) ::sigaction(signals[i], &before_[i], nullptr);
    }

private:
    static constexpr std::array signals{SIGHUP, SIGINT, SIGTERM};
    std::array<struct sigaction, signals.size()> before_;
};

std::string one_line(const std::vector<std::string>& lines)
{
    auto text = fmt::format("{}", fmt::join(lines, "; "));
    std::ranges::replace(text, '\n', ' ');
    return text;
}

std::vector<std::string> error_lines(const Report& report)
{
    std::vector<std::string> lines;
    for (const auto& found : report.diagnostics)
        if (found.severity != Severity::warning) lines.push_back(line(found, report.file));
    return lines;
}

// Curves are left out: their rows have no names that hold from case to case.
std::vector<ResultNumber> swept_numbers(const Report& report)
{
    auto all = result_numbers(report);
    std::erase_if(all, [](const ResultNumber& n) { return n.table->is_long; });
    return all;
}

class Sweep {
public:
    Sweep(const SweepOptions& options, SweepGrid grid)
        : options_(options),
          grid_(std::move(grid)),
          text_(input_file_contents(options.file)),
          document_(text_, options.file.string())
    {
    }

    // Columns are those of the unchanged case, which therefore must be free of errors.
    void learn_columns()
    {
        run_tasks(
            {0}, {}, [this](std::size_t) { return columns_of_case(); },
            [this](const TaskOutcome& outcome) {
                if (!outcome.result)
                    throw std::runtime_error{
                        fmt::format("{}: {}; it is the unchanged case, which gives the columns",
                                    options_.file.string(), outcome.why)};
                if (outcome.result->starts_with('!')) throw std::runtime_error{outcome.result->substr(1)};
                add_columns(*outcome.result);
            });
        for (const auto& range : grid_.ranges()) document_.number(range.key);  // keys that lead nowhere
    }

    SweepOutcome run(const SweepProgress& progress)
    {
        const Interruption interruption;
        SweepJournal journal{options_.out, identity(), grid_.size()};
        std::vector<std::size_t> missing;
        for (std::size_t number = 1; number <= grid_.size(); ++number)
            if (!journal.rows().contains(number)) missing.push_back(number);
        run_tasks(
            missing, {processes(), [] { return is_interrupted != 0; }},
            [this](std::size_t number) { return row(number); },
            [&](const TaskOutcome& outcome) {
                // Why a process ended need not be a property of the case.
                if (outcome.result)
                    journal.add(outcome.task, *outcome.result);
                else
                    journal.add_for_now(outcome.task, failed_row(outcome.task, outcome.why));
                progress(journal.rows().size(), grid_.size());
            });
        return conclude(journal);
    }

private:
    std::size_t processes() const
    {
        return options_.processes > 0 ? options_.processes
                                      : std::max(1U, std::thread::hardware_concurrency());
    }

    Report report(const std::vector<Override>& overrides) const
    {
        auto document = document_;
        for (const auto& [key, value] : overrides) document.set_number(key, value);
        Diagnostics diagnostics;
        const auto input = document.read(diagnostics);
        if (!diagnostics.empty()) throw std::runtime_error{one_line(diagnostics.lines(input.file))};
        EvaluationOptions options;
        options.library_output = false;
        return make_report(input, evaluate(input, options));
    }

    std::string columns_of_case() const
    {
        try {
            const auto made = report({});
            if (has_errors(made)) return "!" + one_line(error_lines(made));
            std::string columns;
            for (const auto& n : swept_numbers(made)) columns += n.key() + "\n";
            return columns;
        } catch (const std::bad_alloc& /*error*/) {
            throw;
        } catch (const std::exception& error) {
            return std::string{"!"} + error.what();
        }
    }

    void add_columns(const std::string& text)
    {
        for (std::size_t at = 0; at < text.size();) {
            const auto end = text.find('\n', at);
            if (places_.emplace(text.substr(at, end - at), columns_.size()).second)
                columns_.push_back(text.substr(at, end - at));
            at = end + 1;
        }
    }

    std::string field(const std::string& text) const { return csv_field(text, options_.csv_texts); }

    std::string header() const
    {
        std::string line = "case";
        for (const auto& range : grid_.ranges()) line += "," + field(range.key);
        for (const auto& column : columns_) line += "," + field(column);
        return line + ",error";
    }

    std::string lead(std::size_t number) const
    {
        auto line = std::to_string(number);
        for (const auto& change : grid_.overrides(number - 1)) line += fmt::format(",{}", change.value);
        return line;
    }

    std::string failed_row(std::size_t number, const std::string& why) const
    {
        return lead(number) + std::string(columns_.size(), ',') + "," + field(why);
    }

    // Runs in a process of its own.
    std::string row(std::size_t number) const
    {
        try {
            const auto made = report(grid_.overrides(number - 1));
            std::vector<std::string> values(columns_.size());
            std::size_t unknown = 0;
            for (const auto& n : swept_numbers(made)) {
                const auto place = places_.find(n.key());
                if (place == places_.end())
                    ++unknown;
                else
                    values[place->second] = text(n.value);
            }
            auto errors = error_lines(made);
            if (unknown > 0)
                errors.push_back(
                    fmt::format("{} results have no column: the unchanged case lacks them", unknown));
            auto line = lead(number);
            for (const auto& value : values) line += "," + value;
            return line + "," + field(one_line(errors));
        } catch (const std::bad_alloc& /*error*/) {
            throw;  // not a property of the case
        } catch (const std::exception& error) {
            return failed_row(number, one_line({error.what()}));
        }
    }

    // Names this sweep of this very case, with these columns.
    std::string identity() const
    {
        auto line = fmt::format("{:016x} {:016x}", checksum(text_), checksum(header()));
        for (const auto& range : grid_.ranges()) line += " " + range.text();
        return options_.csv_texts == CsvTexts::guarded ? line + " csv-safe" : line;
    }

    SweepOutcome conclude(SweepJournal& journal) const
    {
        SweepOutcome outcome{grid_.size(), journal.rows().size(), 0, journal.file()};
        if (!outcome.is_complete()) return outcome;
        journal.finish(header());
        const auto has_failed = [](const auto& row) { return !row.second.ends_with(','); };
        outcome.failed = static_cast<std::size_t>(std::ranges::count_if(journal.rows(), has_failed));
        return outcome;
    }

    const SweepOptions& options_;
    SweepGrid grid_;
    std::string text_;
    CaseDocument document_;
    std::vector<std::string> columns_;
    std::unordered_map<std::string, std::size_t> places_;
};

}  // namespace

SweepOutcome sweep(const SweepOptions& options, const SweepProgress& progress)
{
    std::vector<SweepRange> ranges;
    for (const auto& set : options.sets) ranges.push_back(parse_range(set));
    Sweep sweep{options, SweepGrid{std::move(ranges)}};
    sweep.learn_columns();
    return sweep.run(progress);
}

}  // namespace app
