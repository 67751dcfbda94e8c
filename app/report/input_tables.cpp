// Counts, codes and places have no unit, and the values that a paragraph only hands on have none that is
// known here.
#include "app/report/input_tables.h"

#include "app/report/columns.h"

namespace app {

namespace {

using minihost::PolymerInput;

using columns::attribute;
using columns::component;
using columns::segment;

// Adds columns for the numbers that the host carries without reading them.
std::vector<Column> and_carried_numbers(std::vector<Column> columns)
{
    for (const auto* number : {"1", "2", "3"})
        columns.push_back({std::string{"integer_"} + number, std::string{"Integer "} + number, ""});
    columns.push_back({"real", "Real", ""});
    return columns;
}

std::string type_name(Int type)
{
    constexpr std::string_view names[] = {"end", "repeat", "branch3", "branch4"};
    return std::string{names[type - 1]};
}

Table segments(const PolymerInput& paragraph)
{
    Table table{"segments",
                "Segments by type",
                {segment,
                 {"type_name", "Type", ""},
                 {"type", "Code", ""},
                 {"position", "Place in the segment list", ""}},
                {}};
    for (const auto& s : paragraph.segments)
        table.rows.push_back({s.id, type_name(s.type), s.type, s.position});
    return table;
}

Table numbered(std::string key, std::string heading, const std::vector<std::string>& ids)
{
    Table table{std::move(key), std::move(heading), {component, {"position", "Place", ""}}, {}};
    for (const auto& id : ids) table.rows.push_back({id, static_cast<Int>(table.rows.size()) + 1});
    return table;
}

// Segments that an oligomer does not hold are left out; one without any still shows that it is known.
Table make_up(const PolymerInput& paragraph)
{
    Table table{"oligomers",
                "Oligomers by their segments per molecule",
                {component, segment, {"count", "Count", ""}},
                {}};
    for (const auto& oligomer : paragraph.oligomers) {
        const auto before = table.rows.size();
        for (std::size_t s = 0; s < oligomer.counts.size(); ++s)
            if (oligomer.counts[s] != 0)
                table.rows.push_back({oligomer.id, paragraph.segment_ids[s], oligomer.counts[s]});
        if (table.rows.size() == before) table.rows.push_back({oligomer.id, std::string{}, 0.0});
    }
    return table;
}

Table catalysts(const PolymerInput& paragraph)
{
    Table table{"catalysts", "Catalysts", {component, {"value", "Value", ""}}, {}};
    for (const auto& catalyst : paragraph.catalysts) table.rows.push_back({catalyst.id, catalyst.value});
    return table;
}

Table sites(const Case& input, const PolymerInput& paragraph)
{
    Table table{"sites", "Catalyst sites", and_carried_numbers({{"count", "Site types", ""}}), {}};
    const auto& [count, integers, real] = paragraph.sites;
    if (input.paragraph && input.paragraph->sites)
        table.rows.push_back({count, integers[0], integers[1], integers[2], real});
    return table;
}

Table carried_attributes(const std::vector<CarriedAttribute>& attributes)
{
    Table table{
        "attributes", "Attributes of the components", {component, attribute, {"values", "Values", ""}}, {}};
    for (const auto& a : attributes) table.rows.push_back({a.component, a.attribute, a.values});
    return table;
}

Table attribute_layout(const PolymerInput& paragraph)
{
    Table table{"attribute_layout",
                "Groups of the attribute layout",
                {{"group", "Group", ""}, {"start", "Start", ""}, {"length", "Length", ""}},
                {}};
    for (const auto& [start, length] : paragraph.attribute_layout)
        table.rows.push_back({static_cast<Int>(table.rows.size()) + 1, start, length});
    return table;
}

Table distributions(const PolymerInput& paragraph)
{
    Table table{
        "distributions", "Distribution requests", and_carried_numbers({component, {"type", "Type", ""}}), {}};
    for (const auto& [polymer, type, integers, real] : paragraph.distributions)
        table.rows.push_back({polymer, type, integers[0], integers[1], integers[2], real});
    return table;
}

Table catalyst_scaling(const std::vector<ScaledElement>& elements)
{
    Table table{"catalyst_scaling",
                "Scaled catalyst attributes",
                {component,
                 attribute,
                 {"element", "Element", ""},
                 {"first", "First value", ""},
                 {"second", "Second value", ""}},
                {}};
    for (const auto& e : elements)
        table.rows.push_back({e.component, e.attribute, e.element, e.first, e.second});
    return table;
}

}  // namespace

std::vector<Table> input_tables(const Case& input, const InputResults& results)
{
    const auto& paragraph = results.polymer_input;
    return {segments(paragraph),
            numbered("polymers", "Polymers", paragraph.polymers),
            make_up(paragraph),
            catalysts(paragraph),
            numbered("initiators", "Initiators", paragraph.initiators),
            sites(input, paragraph),
            carried_attributes(results.attributes),
            attribute_layout(paragraph),
            distributions(paragraph),
            catalyst_scaling(results.catalyst_scaling)};
}

}  // namespace app
