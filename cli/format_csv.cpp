// One tidy table: a line for each number, with what it is the number of.
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
        if (std::holds_alternative<std::string>(row[i]) && !is_named(table.columns[i]) &&
            table.columns[i].key != "class")
            return field(std::get<std::string>(row[i]));
    return {};
}

void write_row(const Section& section, const Table& table, const std::vector<Cell>& row, std::string& csv)
{
    const auto lead =
        fmt::format("{},{},{},{},{},{}", section.kind, field(section.name), table.key, item_of(table, row),
                    text_of(table, row, "component"), text_of(table, row, "segment"));
    for (std::size_t i = 0; i < row.size(); ++i)
        if (const auto* value = std::get_if<double>(&row[i]))
            csv += fmt::format("{},{},{},{}\n", lead, field(table.columns[i].key), *value,
                               field(table.columns[i].unit));
}

}  // namespace

std::string format_csv(const Report& report)
{
    std::string csv = "section,name,table,item,component,segment,quantity,value,unit\n";
    for (const auto& section : report.sections)
        for (const auto& table : section.tables)
            for (const auto& row : table.rows) write_row(section, table, row, csv);
    return csv;
}

}  // namespace cli
