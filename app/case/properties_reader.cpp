// The [properties] section: segment values, and how a chain makes its own of them.
#include "app/case/case_reader.h"

namespace app {

namespace {

constexpr Word<Averaging> averagings[] = {{"number", Averaging::number}, {"mass", Averaging::mass}};

std::vector<ComponentValue> read_values(TableReader& table, std::string_view key, Range range)
{
    const auto values = table.table(key);
    return values ? read_component_values(*values, range) : std::vector<ComponentValue>{};
}

Averaging read_averaging(TableReader& table)
{
    const auto word = table.entry("averaging");
    const auto factors = table.entry("weight_factors");
    if (word && factors)
        table.diagnostics().add(factors->source, factors->path + " and " + word->path +
                                                     " are both given; expected one of the two");
    if (factors) return Averaging::weight_factors;
    if (!word) return Averaging::number;
    return read_word(*word, averagings, table.diagnostics()).value_or(Averaging::number);
}

std::optional<Property> read_property(const Entry& entry, TableReader table)
{
    Property property;
    property.name = {entry.key, entry.source};
    property.unit = table.text("unit").value_or(property.unit);
    property.averaging = read_averaging(table);
    property.segment_values = read_values(table, "segments", Range::any);
    property.weight_factors = read_values(table, "weight_factors", Range::positive);
    property.own_values = read_values(table, "components", Range::any);
    if (!table.finish()) return {};
    return property;
}

// Empty: a diagnostic told what was expected.
PlacedName read_stream_name(const Entry& entry, Diagnostics& diagnostics)
{
    const auto name = read_text(entry, diagnostics);
    if (!name) return {};
    if (name->empty()) diagnostics.add(entry.source, entry.path + " is \"\"; expected the name of a stream");
    return {*name, entry.source};
}

PlacedName read_stream_name(TableReader& table, std::string_view key)
{
    table.missing(key, "the name of a stream");
    const auto entry = table.entry(key);
    return entry ? read_stream_name(*entry, table.diagnostics()) : PlacedName{};
}

std::vector<PlacedName> read_inlets(TableReader& table)
{
    const auto list = table.entry("inlets");
    if (!list) return {read_stream_name(table, "inlet")};
    auto& diagnostics = table.diagnostics();
    if (const auto one = table.entry("inlet"))
        diagnostics.add(list->source,
                        list->path + " and " + one->path + " are both given; expected one of the two");
    std::vector<PlacedName> inlets;
    for (const auto& element : read_array(*list, diagnostics, "the name of at least one stream"))
        inlets.push_back(read_stream_name(element, diagnostics));
    return inlets;
}

}  // namespace

std::vector<Property> read_properties(TableReader table)
{
    std::vector<Property> properties;
    for (const auto& entry : table.entries())
        if (const auto reader = read_table(entry, table.diagnostics()))
            if (auto property = read_property(entry, *reader)) properties.push_back(std::move(*property));
    return properties;
}

std::vector<Reactor> read_reactors(TableReader table)
{
    std::vector<Reactor> reactors;
    for (const auto& entry : table.entries()) {
        auto reactor = read_table(entry, table.diagnostics());
        if (!reactor) continue;
        auto inlets = read_inlets(*reactor);
        auto outlet = read_stream_name(*reactor, "outlet");
        if (!reactor->finish()) continue;
        reactors.push_back({{entry.key, entry.source}, std::move(inlets), std::move(outlet)});
    }
    return reactors;
}

}  // namespace app
