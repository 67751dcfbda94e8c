// The report for programs. A change that breaks a reader raises the schema version; new keys do not.
#include "app/report/format.h"
#include "app/report/json_value.h"

namespace app {

namespace {

constexpr int schema_version = 2;

template <typename Value>
JsonValue json_of(const Value& value)
{
    return JsonValue::scalar(value);
}

JsonValue json_of(const NoData& /*null*/)
{
    return {};
}

JsonValue row_object(const Table& table, const std::vector<Cell>& row)
{
    auto object = JsonValue::object();
    for (std::size_t i = 0; i < row.size(); ++i)
        object[table.columns[i].key] = std::visit([](const auto& value) { return json_of(value); }, row[i]);
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
    for (const auto& [key, names] : section.lists) {
        auto& list = object[key] = JsonValue::array();
        for (const auto& name : names) list.push_back(JsonValue::scalar(name));
    }
    for (const auto& [key, excerpt] : section.excerpts) object.set(key, excerpt);
    add_tables(section.tables, object);
    return object;
}

JsonValue place_object(const SourcePosition& source, const std::string& file)
{
    JsonValue object;
    object.set("file", file);
    object.set("line", source.line);
    object.set("column", source.column);
    return object;
}

JsonValue warning_object(const Diagnostic& warning, const std::string& file)
{
    auto object = place_object(warning.source, warning.file.empty() ? file : warning.file);
    object.set("key", warning.source.key);
    object.set("text", warning.text);
    return object;
}

JsonValue message_object(const InputMessage& placed, const std::string& file)
{
    const auto& [source, hint, message] = placed;
    auto object = place_object(source, file);
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
    auto& warnings = json["warnings"] = JsonValue::array();
    for (const auto& found : report.diagnostics)
        if (found.severity == Severity::warning) warnings.push_back(warning_object(found, report.file));
    if (!report.input.empty()) add_tables(report.input, json["input"]);
    for (const auto& section : report.sections) json[section.kind + "s"].push_back(section_object(section));
    return json.dump() + "\n";
}

}  // namespace app
