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

// The text of the named column, empty in a table without it.
std::string text_of(const Table& table, const std::vector<Cell>& row, std::string_view key)
{
    for (std::size_t i = 0; i < row.size(); ++i)
        if (table.columns[i].key == key) return field(std::get<std::string>(row[i]));
    return {};
}

void write_row(const std::string& stream, const Table& table, const std::vector<Cell>& row, std::string& csv)
{
    for (std::size_t i = 0; i < row.size(); ++i)
        if (const auto* value = std::get_if<double>(&row[i]))
            csv += fmt::format("{},{},{},{},{},{},{}\n", field(stream), table.key,
                               text_of(table, row, "component"), text_of(table, row, "segment"),
                               table.columns[i].key, *value, table.columns[i].unit);
}

}  // namespace

std::string format_csv(const Report& report)
{
    std::string csv = "stream,table,component,segment,quantity,value,unit\n";
    for (const auto& stream : report.streams)
        for (const auto& table : stream.tables)
            for (const auto& row : table.rows) write_row(stream.stream, table, row, csv);
    return csv;
}

}  // namespace cli
