// The tables of what the paragraph check and the catalyst scaling left behind. Counts, codes and places have
// no unit, and the values that a paragraph only hands on have none that is known here.
#include "app/report/columns.h"
#include "app/report/report.h"
#include "minihost/polymer_input.h"

namespace app {

namespace {

using minihost::Host;
using minihost::PolymerInput;

using columns::attribute;
using columns::component;
using columns::segment;

// The columns of numbers that the host carries without reading them stand behind the others.
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

Table segments(const PolymerInput& built)
{
    Table table{"segments",
                "Segments by type",
                {segment,
                 {"type_name", "Type", ""},
                 {"type", "Code", ""},
                 {"position", "Place in the segment list", ""}},
                {}};
    for (const auto& s : built.segments) table.rows.push_back({s.id, type_name(s.type), s.type, s.position});
    return table;
}

Table numbered(std::string key, std::string heading, const std::vector<std::string>& ids)
{
    Table table{std::move(key), std::move(heading), {component, {"position", "Place", ""}}, {}};
    for (const auto& id : ids) table.rows.push_back({id, static_cast<Int>(table.rows.size()) + 1});
    return table;
}

// Segments that an oligomer does not hold are left out; one without any still shows that it is known.
Table make_up(const PolymerInput& built)
{
    Table table{"oligomers",
                "Oligomers by their segments per molecule",
                {component, segment, {"count", "Count", ""}},
                {}};
    for (const auto& oligomer : built.oligomers) {
        const auto before = table.rows.size();
        for (std::size_t s = 0; s < oligomer.counts.size(); ++s)
            if (oligomer.counts[s] != 0)
                table.rows.push_back({oligomer.id, built.segment_ids[s], oligomer.counts[s]});
        if (table.rows.size() == before) table.rows.push_back({oligomer.id, std::string{}, 0.0});
    }
    return table;
}

Table catalysts(const PolymerInput& built)
{
    Table table{"catalysts", "Catalysts", {component, {"value", "Value", ""}}, {}};
    for (const auto& catalyst : built.catalysts) table.rows.push_back({catalyst.id, catalyst.value});
    return table;
}

Table sites(const Case& input, const PolymerInput& built)
{
    Table table{"sites", "Catalyst sites", and_carried_numbers({{"count", "Site types", ""}}), {}};
    const auto& [count, integers, real] = built.sites;
    if (input.paragraph && input.paragraph->sites)
        table.rows.push_back({count, integers[0], integers[1], integers[2], real});
    return table;
}

Table carried_attributes(Host& host)
{
    Table table{
        "attributes", "Attributes of the components", {component, attribute, {"values", "Values", ""}}, {}};
    for (Int c = 1; c <= host.components().count(); ++c)
        for (const auto& carried : host.attributes().carried_by(c))
            table.rows.push_back({host.components().at(c).id, std::string{carried.kind->name},
                                  minihost::attribute_length(*carried.kind, host.dimensions())});
    return table;
}

Table attribute_layout(const PolymerInput& built)
{
    Table table{"attribute_layout",
                "Groups of the attribute layout",
                {{"group", "Group", ""}, {"start", "Start", ""}, {"length", "Length", ""}},
                {}};
    for (const auto& [start, length] : built.attribute_layout)
        table.rows.push_back({static_cast<Int>(table.rows.size()) + 1, start, length});
    return table;
}

Table distributions(const PolymerInput& built)
{
    Table table{
        "distributions", "Distribution requests", and_carried_numbers({component, {"type", "Type", ""}}), {}};
    for (const auto& [polymer, type, integers, real] : built.distributions)
        table.rows.push_back({polymer, type, integers[0], integers[1], integers[2], real});
    return table;
}

Table catalyst_scaling(const Case& input, Host& host)
{
    Table table{"catalyst_scaling",
                "Scaled catalyst attributes",
                {component,
                 attribute,
                 {"element", "Element", ""},
                 {"first", "First value", ""},
                 {"second", "Second value", ""}},
                {}};
    for (const auto& entry : input.catalyst_scaling) {
        const auto index = host.components().index(entry.component.id);
        // Not carried, and reported with a severity that the case does not print.
        if (!host.attributes().find(index, entry.attribute.id)) continue;
        const auto values = [&](Int column) {
            return host.attribute_blocks().values(index, entry.attribute.id, column);
        };
        const auto first = values(3);
        const auto second = values(1);
        for (std::size_t e = 0; e < first.size(); ++e)
            table.rows.push_back(
                {entry.component.id, entry.attribute.id, static_cast<Int>(e) + 1, first[e], second[e]});
    }
    return table;
}

}  // namespace

Report make_input_report(const Case& input, const CheckedInput& checked)
{
    Report report{input.title, input.file, checked.messages, {}, {}};
    if (!checked.messages.empty()) return report;
    auto& host = *checked.host;
    const auto built = minihost::read_polymer_input(host);
    report.input = {segments(built),
                    numbered("polymers", "Polymers", built.polymers),
                    make_up(built),
                    catalysts(built),
                    numbered("initiators", "Initiators", built.initiators),
                    sites(input, built),
                    carried_attributes(host),
                    attribute_layout(built),
                    distributions(built),
                    catalyst_scaling(input, host)};
    return report;
}

}  // namespace app
