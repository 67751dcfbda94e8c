// The report for programs. A change that breaks a reader raises the schema version; new keys do not.
#include "app/report/format.h"
#include "app/report/json_value.h"

namespace app {

namespace {

constexpr int schema_version = 2;

JsonValue row_object(const Table& table, const std::vector<Cell>& row)
{
    auto object = JsonValue::object();
    for (std::size_t i = 0; i < row.size(); ++i)
        std::visit(
            [&](const auto& value) {
                if constexpr (std::is_same_v<decltype(value), const std::monostate&>)
                    object.set(table.columns[i].key, nullptr);
                else
                    object.set(table.columns[i].key, value);
            },
            row[i]);
    return object;
}

void add_units(const std::vector<Table>& tables, JsonValue& units)
{
    for (const auto& table : tables)
        for (const auto& column : table.columns)
            if (!column.unit.empty()) units[table.key].set(column.key, column.unit);
}

JsonValue units(const Report& report)
{
    auto units = JsonValue::object();
    add_units(report.input, units);
    for (const auto& section : report.sections) add_units(section.tables, units);
    return units;
}

void add_tables(const std::vector<Table>& tables, JsonValue& object)
{
    for (const auto& table : tables) {
        auto& rows = object[table.key] = JsonValue::array();
        for (const auto& row : table.rows) rows.push_back(row_object(table, row));
    }
}

JsonValue section_object(const Section& section)
{
    JsonValue object;
    object.set("name", section.name);
    for (const auto& [key, text] : section.facts) object.set(key, text);
    add_tables(section.tables, object);
    return object;
}

JsonValue message_object(const InputMessage& placed, const std::string& file)
{
    const auto& [source, hint, message] = placed;
    JsonValue object;
    object.set("file", file);
    object.set("line", source.line);
    object.set("column", source.column);
    object.set("routine", message.routine);
    object.set("number", message.number);
    object.set("severity", message.severity);
    auto& lines = object["lines"] = JsonValue::array();
    for (const auto& line : message.lines) lines.push_back(JsonValue::scalar(line));
    return object;
}

}  // namespace

std::string format_json(const Report& report)
{
    JsonValue json;
    json.set("schema_version", schema_version);
    json.set("title", report.title);
    json["units"] = units(report);
    auto& messages = json["messages"] = JsonValue::array();
    for (const auto& message : report.messages) messages.push_back(message_object(message, report.file));
    if (!report.input.empty()) add_tables(report.input, json["input"]);
    for (const auto& section : report.sections) json[section.kind + "s"].push_back(section_object(section));
    return json.dump() + "\n";
}

}  // namespace app
