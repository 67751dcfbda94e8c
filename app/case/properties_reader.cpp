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

Property read_property(const Entry& entry, TableReader table)
{
    Property property;
    property.name = {entry.key, entry.source};
    property.unit = table.text("unit").value_or(property.unit);
    property.averaging = read_averaging(table);
    property.segment_values = read_values(table, "segments", Range::any);
    property.weight_factors = read_values(table, "weight_factors", Range::positive);
    property.own_values = read_values(table, "components", Range::any);
    table.finish();
    return property;
}

// Empty: a diagnostic told what was expected.
PlacedName read_stream_name(TableReader& table, std::string_view key)
{
    table.missing(key, "the name of a stream");
    const auto name = table.text(key);
    if (!name) return {};
    const auto entry = *table.entry(key);
    if (name->empty())
        table.diagnostics().add(entry.source, entry.path + " is \"\"; expected the name of a stream");
    return {*name, entry.source};
}

}  // namespace

std::vector<Property> read_properties(TableReader table)
{
    std::vector<Property> properties;
    for (const auto& entry : table.entries())
        if (const auto property = read_table(entry, table.diagnostics()))
            properties.push_back(read_property(entry, *property));
    return properties;
}

std::vector<Reactor> read_reactors(TableReader table)
{
    std::vector<Reactor> reactors;
    for (const auto& entry : table.entries()) {
        auto reactor = read_table(entry, table.diagnostics());
        if (!reactor) continue;
        auto inlet = read_stream_name(*reactor, "inlet");
        auto outlet = read_stream_name(*reactor, "outlet");
        reactor->finish();
        reactors.push_back({{entry.key, entry.source}, std::move(inlet), std::move(outlet)});
    }
    return reactors;
}

}  // namespace app
