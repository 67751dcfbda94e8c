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

// The text of the named column, empty in a table without it.
std::string text_of(const Table& table, const std::vector<Cell>& row, std::string_view key)
{
    for (std::size_t i = 0; i < row.size(); ++i)
        if (table.columns[i].key == key) return field(std::get<std::string>(row[i]));
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
            csv += fmt::format("{}{},{},{}\n", lead, table.columns[i].key, number_of(row[i]),
                               table.columns[i].unit);
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
    if (report.streams.empty()) return input_csv(report.input);
    std::string csv = "stream,table,component,segment,quantity,value,unit\n";
    for (const auto& stream : report.streams)
        for (const auto& table : stream.tables)
            for (const auto& row : table.rows)
                write_row(fmt::format("{},{},", field(stream.stream), table.key), {"component", "segment"},
                          table, row, csv);
    return csv;
}

}  // namespace cli
