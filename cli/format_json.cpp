// The report for programs. A change that breaks a reader raises the schema version; new keys do not.
#include <nlohmann/json.hpp>

#include "cli/report.h"

namespace cli {

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

Json section_object(const Section& section)
{
    Json object{{"name", section.name}};
    for (const auto& [key, text] : section.facts) object[key] = text;
    for (const auto& table : section.tables) {
        object[table.key] = Json::array();
        for (const auto& row : table.rows) object[table.key].push_back(row_object(table, row));
    }
    return object;
}

Json units(const Report& report)
{
    auto units = Json::object();
    for (const auto& section : report.sections)
        for (const auto& table : section.tables)
            for (const auto& column : table.columns)
                if (!column.unit.empty()) units[table.key][column.key] = column.unit;
    return units;
}

}  // namespace

std::string format_json(const Report& report)
{
    Json json{{"schema_version", schema_version}, {"title", report.title}, {"units", units(report)}};
    json["streams"] = Json::array();
    for (const auto& section : report.sections) json[section.kind + "s"].push_back(section_object(section));
    return json.dump(2) + "\n";
}

}  // namespace cli
