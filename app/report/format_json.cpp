// The report for programs. A change that breaks a reader raises the schema version; new keys do not.
#include <nlohmann/json.hpp>

#include "app/report/format.h"

namespace app {

namespace {

using Json = nlohmann::ordered_json;

constexpr int schema_version = 1;

Json row_object(const Table& table, const std::vector<Cell>& row)
{
    auto object = Json::object();
    for (std::size_t i = 0; i < row.size(); ++i)
        std::visit([&](const auto& value) { object[table.columns[i].key] = value; }, row[i]);
    return object;
}

void add_units(const std::vector<Table>& tables, Json& units)
{
    for (const auto& table : tables)
        for (const auto& column : table.columns)
            if (!column.unit.empty()) units[table.key][column.key] = column.unit;
}

Json units(const Report& report)
{
    auto units = Json::object();
    add_units(report.input, units);
    for (const auto& section : report.sections) add_units(section.tables, units);
    return units;
}

void add_tables(const std::vector<Table>& tables, Json& object)
{
    for (const auto& table : tables) {
        object[table.key] = Json::array();
        for (const auto& row : table.rows) object[table.key].push_back(row_object(table, row));
    }
}

Json section_object(const Section& section)
{
    Json object{{"name", section.name}};
    for (const auto& [key, text] : section.facts) object[key] = text;
    add_tables(section.tables, object);
    return object;
}

Json message_object(const InputMessage& placed, const std::string& file)
{
    const auto& [source, hint, message] = placed;
    return {{"file", file},
            {"line", source.line},
            {"column", source.column},
            {"routine", message.routine},
            {"number", message.number},
            {"severity", message.severity},
            {"lines", message.lines}};
}

}  // namespace

std::string format_json(const Report& report)
{
    Json json{{"schema_version", schema_version}, {"title", report.title}, {"units", units(report)}};
    json["messages"] = Json::array();
    for (const auto& message : report.messages)
        json["messages"].push_back(message_object(message, report.file));
    if (!report.input.empty()) add_tables(report.input, json["input"]);
    for (const auto& section : report.sections) json[section.kind + "s"].push_back(section_object(section));
    return json.dump(2) + "\n";
}

}  // namespace app
