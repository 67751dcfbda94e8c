// Aligned tables for people: text to the left, numbers to the right, six significant digits.
#include <fmt/format.h>

#include <algorithm>

#include "app/io/visible_text.h"
#include "app/report/format.h"

namespace app {

namespace {

constexpr std::size_t gap = 2;

std::string shown(const Cell& cell)
{
    if (const auto* value = std::get_if<double>(&cell)) return fmt::format("{:.6g}", *value);
    if (const auto* value = std::get_if<Int>(&cell)) return fmt::format("{}", *value);
    if (std::holds_alternative<NoData>(cell)) return "-";
    return visible(std::get<std::string>(cell));
}

std::vector<std::string> shown(const std::vector<Cell>& row)
{
    std::vector<std::string> texts;
    texts.reserve(row.size());
    for (const auto& cell : row) texts.push_back(shown(cell));
    return texts;
}

std::string unit(const Column& column)
{
    return column.unit == "1" ? "-" : column.unit;
}

// Characters of a UTF-8 text: bytes that do not continue one.
std::size_t character_count(const std::string& text)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

// Headings, units where a column has one, rows.
std::vector<std::vector<std::string>> lines(const Table& table)
{
    std::vector<std::vector<std::string>> all(1);
    for (const auto& column : table.columns) all[0].push_back(visible(column.heading));
    if (std::ranges::any_of(table.columns, [](const Column& column) { return !column.unit.empty(); })) {
        auto& units = all.emplace_back();
        for (const auto& column : table.columns) units.push_back(visible(unit(column)));
    }
    for (const auto& row : table.rows) all.push_back(shown(row));
    return all;
}

std::string aligned(const Table& table)
{
    const auto all = lines(table);
    std::vector<std::size_t> widths(table.columns.size());
    for (const auto& line : all)
        for (std::size_t i = 0; i < line.size(); ++i)
            widths[i] = std::max(widths[i], character_count(line[i]));
    std::string text;
    for (const auto& line : all) {
        std::string row;
        for (std::size_t i = 0; i < line.size(); ++i) {
            const bool is_text = std::holds_alternative<std::string>(table.rows.front()[i]);
            row += std::string(gap, ' ') + (is_text ? fmt::format("{:<{}}", line[i], widths[i])
                                                    : fmt::format("{:>{}}", line[i], widths[i]));
        }
        text += row.substr(0, row.find_last_not_of(' ') + 1) + "\n";
    }
    return text;
}

// Separates blocks by an empty line.
void add_block(std::string_view block, std::string& text)
{
    text += fmt::format("{}{}", text.empty() ? "" : "\n", block);
}

// False when no table has a row to show.
bool add_tables(const std::vector<Table>& tables, std::string& text)
{
    bool has_rows = false;
    for (const auto& table : tables) {
        if (table.rows.empty() || table.is_long) continue;
        add_block(fmt::format("{}\n{}", table.heading, aligned(table)), text);
        has_rows = true;
    }
    return has_rows;
}

}  // namespace

std::string format_text(const Report& report)
{
    std::string text = report.title.empty() ? "" : visible(report.title, true) + "\n";
    add_tables(report.input, text);
    for (const auto& section : report.sections) {
        add_block(visible(section.heading) + "\n", text);
        if (!add_tables(section.tables, text))
            add_block(fmt::format("Nothing flows in this {}.\n", section.kind), text);
        for (const auto& [key, excerpt] : section.excerpts) add_block(excerpt + "\n", text);
    }
    return text;
}

}  // namespace app
