// Aligned tables for people: text to the left, numbers to the right, six significant digits.
#include <fmt/format.h>

#include <algorithm>

#include "cli/report.h"

namespace cli {

namespace {

constexpr std::size_t gap = 2;

std::string shown(const Cell& cell)
{
    if (const auto* value = std::get_if<double>(&cell)) return fmt::format("{:.6g}", *value);
    if (const auto* value = std::get_if<Int>(&cell)) return fmt::format("{}", *value);
    return std::get<std::string>(cell);
}

std::vector<std::string> shown(const std::vector<Cell>& row)
{
    std::vector<std::string> texts;
    for (const auto& cell : row) texts.push_back(shown(cell));
    return texts;
}

std::string unit(const Column& column)
{
    return column.unit == "1" ? "-" : column.unit;
}

std::vector<std::vector<std::string>> lines(const Table& table)
{
    std::vector<std::vector<std::string>> all(2);
    for (const auto& column : table.columns) {
        all[0].push_back(column.heading);
        all[1].push_back(unit(column));
    }
    for (const auto& row : table.rows) all.push_back(shown(row));
    return all;
}

std::string aligned(const Table& table)
{
    const auto all = lines(table);
    std::vector<std::size_t> widths(table.columns.size());
    for (const auto& line : all)
        for (std::size_t i = 0; i < line.size(); ++i) widths[i] = std::max(widths[i], line[i].size());
    std::string text;
    for (const auto& line : all) {
        std::string row;
        for (std::size_t i = 0; i < line.size(); ++i) {
            const bool is_text = table.columns[i].unit.empty();
            row += std::string(gap, ' ') + (is_text ? fmt::format("{:<{}}", line[i], widths[i])
                                                    : fmt::format("{:>{}}", line[i], widths[i]));
        }
        text += row.substr(0, row.find_last_not_of(' ') + 1) + "\n";
    }
    return text;
}

}  // namespace

std::string format_text(const Report& report)
{
    std::string text = report.title.empty() ? "" : fmt::format("{}\n", report.title);
    for (const auto& section : report.sections) {
        text += fmt::format("{}{}\n", text.empty() ? "" : "\n", section.heading);
        if (std::ranges::all_of(section.tables, [](const Table& t) { return t.rows.empty(); }))
            text += fmt::format("\nNothing flows in this {}.\n", section.kind);
        for (const auto& table : section.tables)
            if (!table.rows.empty() && !table.is_long) text += fmt::format("\n{}\n{}", table.heading, aligned(table));
    }
    return text;
}

}  // namespace cli
