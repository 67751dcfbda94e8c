#include "app/report/make_report.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "app/io/distinct_name.h"
#include "app/report/distribution_tables.h"
#include "app/report/fit_tables.h"
#include "app/report/input_tables.h"
#include "app/report/parameter_tables.h"
#include "app/report/result_numbers.h"
#include "app/report/stream_tables.h"

namespace app {

namespace {

Report start(const Case& input, const std::vector<InputMessage>& messages)
{
    Report report{input.title, input.file, messages, {}, {}, {}};
    for (const auto& message : messages) report.diagnostics.push_back(diagnostic(message));
    return report;
}

void append(const std::vector<Diagnostic>& diagnostics, Report& report)
{
    report.diagnostics.insert(report.diagnostics.end(), diagnostics.begin(), diagnostics.end());
}

// The place in the file where the subject of a section is defined.
template <typename Named>
SourcePosition source_of(const std::vector<Named>& all, const std::string& name)
{
    const auto found = std::ranges::find_if(all, [&](const auto& named) { return named.name.id == name; });
    return found == all.end() ? SourcePosition{} : found->name.source;
}

SourcePosition source_of(const Section& section, const Case& input)
{
    if (section.kind == "stream") return source_of(input.streams, section.name);
    if (section.kind == "reactor") return source_of(input.reactors, section.name);
    if (section.kind == "distribution") return source_of(input.distributions, section.name);
    return source_of(input.parameter_sets, section.name);
}

bool is_finite(const Cell& cell)
{
    const auto* value = std::get_if<double>(&cell);
    return !value || std::isfinite(*value);
}

// Of a curve the first such number is enough.
void add_not_finite(const Section& section, const Table& table, const Case& input, Report& report)
{
    for (const auto& row : table.rows)
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (is_finite(row[i])) continue;
            report.diagnostics.push_back(
                {source_of(section, input),
                 fmt::format("{}s.{}: {} of {} is {}; expected a finite result", section.kind, section.name,
                             table.columns[i].key, text(row.front()), text(row[i]))});
            if (table.is_long) return;
        }
}

// Columns are named by segments, properties and curves too, which may have the name of another one.
void keep_columns_apart(Report& report)
{
    for (auto& section : report.sections)
        for (auto& table : section.tables) {
            std::set<std::string> taken;
            for (auto& column : table.columns) column.key = distinct_name(column.key, taken);
        }
}

void add_not_finite(const Case& input, Report& report)
{
    for (const auto& section : report.sections)
        for (const auto& table : section.tables) add_not_finite(section, table, input, report);
}

}  // namespace

bool has_errors(const Report& report)
{
    return std::ranges::any_of(report.diagnostics,
                               [](const auto& found) { return found.severity != Severity::warning; });
}

bool has_warnings(const Report& report)
{
    return std::ranges::find(report.diagnostics, Severity::warning, &Diagnostic::severity) !=
           report.diagnostics.end();
}

Report make_report(const Case& input, const Results& results)
{
    auto report = start(input, results.messages);
    append(results.errors, report);
    for (const auto& stream : results.streams) report.sections.push_back(stream_section(stream, input));
    for (const auto& reactor : results.reactors) report.sections.push_back(reactor_section(reactor));
    for (const auto& distribution : results.distributions)
        report.sections.push_back(distribution_section(distribution));
    for (const auto& set : results.parameters) report.sections.push_back(parameter_section(set));
    keep_columns_apart(report);
    add_not_finite(input, report);
    append(results.warnings, report);
    return report;
}

Report make_fit_report(const Case& input, const FitResults& results)
{
    Report report{input.title, results.file, {}, {}, {}, {fit_section(results)}};
    add_not_finite({}, report);
    append(input.warnings, report);
    for (auto& warning : report.diagnostics)
        if (warning.severity == Severity::warning) warning.file = input.file;
    for (const auto& warning : results.warnings)
        report.diagnostics.push_back({no_position(), warning, Severity::warning});
    return report;
}

Report make_input_report(const Case& input, const InputResults& results)
{
    auto report = start(input, results.messages);
    if (results.messages.empty()) report.input = input_tables(input, results);
    append(input.warnings, report);
    return report;
}

Report make_conversion_report(const Case& input, const ConversionResults& results)
{
    auto report = start(input, results.messages);
    append(results.errors, report);
    if (results.is_complete)
        report.sections.push_back(conversion_section(results.stream, results.compositions));
    add_not_finite(input, report);
    append(results.warnings, report);
    return report;
}

}  // namespace app
