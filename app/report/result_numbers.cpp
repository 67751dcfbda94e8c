#include "app/report/result_numbers.h"

#include <fmt/format.h>

namespace app {

namespace {

// A number that leads its row, such as a chain length or a temperature, or else its first text that is
// neither a component nor a segment, and its source. The class of a component tells no rows apart.
std::string item_of(const Table& table, const std::vector<Cell>& row)
{
    if (is_number(row.front())) return text(row.front());
    for (std::size_t i = 0; i < row.size(); ++i) {
        const auto& key = table.columns[i].key;
        if (!std::holds_alternative<std::string>(row[i]) || key == "component" || key == "segment" ||
            key == "class")
            continue;
        const auto source = text_of(table, row, "source");
        return std::get<std::string>(row[i]) + (source.empty() ? "" : "." + source);
    }
    return {};
}

void add_row(const Section& section, const Table& table, const std::vector<Cell>& row,
             std::vector<ResultNumber>& all)
{
    const ResultNumber lead{&section,
                            &table,
                            item_of(table, row),
                            text_of(table, row, "component"),
                            text_of(table, row, "segment"),
                            nullptr,
                            {}};
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (std::holds_alternative<std::string>(row[i])) continue;
        all.push_back(lead);
        all.back().quantity = &table.columns[i];
        all.back().value = row[i];
    }
}

}  // namespace

bool is_number(const Cell& cell)
{
    return std::holds_alternative<double>(cell) || std::holds_alternative<Int>(cell);
}

std::string text(const Cell& cell)
{
    return std::visit(
        [](const auto& value) -> std::string {
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, NoData>)
                return {};
            else
                return fmt::format("{}", value);
        },
        cell);
}

std::string text_of(const Table& table, const std::vector<Cell>& row, std::string_view key)
{
    for (std::size_t i = 0; i < row.size(); ++i)
        if (const auto* text = std::get_if<std::string>(&row[i]); text && table.columns[i].key == key)
            return *text;
    return {};
}

std::string ResultNumber::key() const
{
    std::string key = section->kind + "s";
    for (const auto& part : {section->name, table->key, item, component, segment, quantity->key})
        if (!part.empty()) key += "." + part;
    return key;
}

std::vector<ResultNumber> result_numbers(const Report& report)
{
    std::vector<ResultNumber> all;
    for (const auto& section : report.sections)
        for (const auto& table : section.tables)
            for (const auto& row : table.rows) add_row(section, table, row, all);
    return all;
}

std::string csv_field(const std::string& text, CsvTexts texts)
{
    constexpr std::string_view formula_starts = "=+-@\t\r\n";
    if (texts == CsvTexts::guarded && !text.empty() &&
        formula_starts.find(text.front()) != std::string_view::npos)
        return csv_field("'" + text);
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string quoted = "\"";
    for (const char c : text) quoted += c == '"' ? "\"\"" : std::string{c};
    return quoted + "\"";
}

}  // namespace app
