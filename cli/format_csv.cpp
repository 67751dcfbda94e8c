// One tidy table: a line for each number, with what it is the number of. The rows of an input table are
// numbered, since no text tells two entries for one component apart.
#include <fmt/format.h>

#include "cli/report.h"

namespace cli {

namespace {

// A field with a comma, a quote or a line end stands in quotes, its own quotes doubled.
std::string field(const std::string& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string quoted = "\"";
    for (const char c : text) quoted += c == '"' ? "\"\"" : std::string{c};
    return quoted + "\"";
}

bool is_named(const Column& column)
{
    return column.key == "component" || column.key == "segment";
}

// The text of the named column, empty in a table without it.
std::string text_of(const Table& table, const std::vector<Cell>& row, std::string_view key)
{
    for (std::size_t i = 0; i < row.size(); ++i)
        if (const auto* text = std::get_if<std::string>(&row[i]); text && table.columns[i].key == key)
            return field(*text);
    return {};
}

// What else tells the rows of a table apart: a basis, an average, a site type. The class of a component does
// not.
std::string item_of(const Table& table, const std::vector<Cell>& row)
{
    for (std::size_t i = 0; i < row.size(); ++i)
        if (const auto* text = std::get_if<std::string>(&row[i]);
            text && !is_named(table.columns[i]) && table.columns[i].key != "class")
            return field(*text);
    return {};
}

std::string number_of(const Cell& cell)
{
    if (const auto* value = std::get_if<Int>(&cell)) return fmt::format("{}", *value);
    return fmt::format("{}", std::get<double>(cell));
}

// `place` stands in front of every line, `keys` are the texts that lead to a number.
void write_row(const std::string& place, const std::vector<std::string>& keys, const Table& table,
               const std::vector<Cell>& row, std::string& csv)
{
    std::string lead = place;
    for (const auto& key : keys) lead += text_of(table, row, key) + ",";
    for (std::size_t i = 0; i < row.size(); ++i)
        if (!std::holds_alternative<std::string>(row[i]))
            csv += fmt::format("{}{},{},{}\n", lead, field(table.columns[i].key), number_of(row[i]),
                               field(table.columns[i].unit));
}

std::string input_csv(const std::vector<Table>& tables)
{
    std::string csv = "table,entry,component,segment,attribute,quantity,value,unit\n";
    for (const auto& table : tables)
        for (std::size_t r = 0; r < table.rows.size(); ++r)
            write_row(fmt::format("{},{},", table.key, r + 1), {"component", "segment", "attribute"}, table,
                      table.rows[r], csv);
    return csv;
}

}  // namespace

std::string format_csv(const Report& report)
{
    if (report.sections.empty()) return input_csv(report.input);
    std::string csv = "section,name,table,item,component,segment,quantity,value,unit\n";
    for (const auto& section : report.sections)
        for (const auto& table : section.tables)
            for (const auto& row : table.rows)
                write_row(fmt::format("{},{},{},{},", section.kind, field(section.name), table.key,
                                      item_of(table, row)),
                          {"component", "segment"}, table, row, csv);
    return csv;
}

}  // namespace cli
