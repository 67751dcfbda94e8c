// The [streams] section: flows and attribute values of each stream.
#include <fmt/format.h>

#include <algorithm>

#include "app/case/case_reader.h"

namespace app {

namespace {

// A number, an array by segment-list position, or a table by segment ID.
void read_elements(const Entry& entry, AttributeValue& attribute, Diagnostics& diagnostics)
{
    // An unusable element keeps its place: its length is not wrong as well.
    const auto add = [&](const Entry& element) {
        attribute.elements.push_back(read_number(element, Range::not_negative, diagnostics).value_or(0));
    };
    if (entry.node->is_table()) {
        for (const auto& element : read_table(entry, diagnostics)->entries()) {
            add(element);
            attribute.segments.push_back({element.key, element.source});
        }
    } else if (entry.node->is_array()) {
        for (const auto& element : read_array(entry, diagnostics)) add(element);
    } else {
        add(entry);
    }
}

std::vector<AttributeValue> read_attribute_values(TableReader table)
{
    auto& diagnostics = table.diagnostics();
    std::vector<AttributeValue> all;
    for (const auto& component : table.entries()) {
        auto values = read_table(component, diagnostics);
        if (!values) continue;
        for (const auto& entry : values->entries()) {
            AttributeValue attribute{{component.key, component.source}, {entry.key, entry.source}, {}, {}};
            read_elements(entry, attribute, diagnostics);
            all.push_back(std::move(attribute));
        }
    }
    return all;
}

// Reports every pair of keys of which only one may be given.
void refuse_both(TableReader& table, std::string_view key, std::initializer_list<std::string_view> others)
{
    const auto first = table.entry(key);
    for (const auto other : others)
        if (const auto second = table.entry(other); first && second)
            table.diagnostics().add(
                second->source,
                fmt::format("{} and {} are both given; expected one of the two", second->path, first->path));
}

std::optional<SegmentFractions> read_segment_fractions(TableReader& table)
{
    refuse_both(table, "mole_fractions", {"mass_fractions"});
    for (const std::string_view key : {"mole_fractions", "mass_fractions"})
        if (const auto values = table.table(key))
            return SegmentFractions{values->source(), key == "mass_fractions",
                                    read_component_values(*values, Range::not_negative)};
    return {};
}

std::optional<double> read_dispersity(TableReader& table)
{
    const auto value = table.number("dispersity", Range::positive);
    if (value && *value < 1) {
        const auto entry = *table.entry("dispersity");
        table.diagnostics().add(entry.source,
                                fmt::format("{} is {}; expected 1 or greater", entry.path, *value));
    }
    return value;
}

// A Poisson distribution has no dispersity to give.
std::optional<ChainLengthModel> read_type(TableReader& table)
{
    constexpr Word<ChainLengthModel> types[] = {{"log-normal", ChainLengthModel::log_normal},
                                                {"schulz-zimm", ChainLengthModel::schulz_zimm}};
    const auto entry = table.entry("type");
    return entry ? read_word(*entry, types, table.diagnostics()) : std::nullopt;
}

ChainFraction read_chain_fraction(TableReader& table, const std::optional<SegmentFractions>& segments)
{
    ChainFraction fraction;
    fraction.source = table.source();
    refuse_both(table, "mass", {"moles"});
    fraction.mass = table.number("mass", Range::not_negative);
    fraction.moles = table.number("moles", Range::not_negative);
    if (!table.entry("moles"))
        table.missing("mass", "the mass flow in kg/h, or moles, the flow of chains in kmol/h");
    fraction.segments = segments;
    fraction.mn = table.number("mn", Range::positive);
    fraction.mw = table.number("mw", Range::positive);
    fraction.mz = table.number("mz", Range::positive);
    fraction.dispersity = read_dispersity(table);
    fraction.dpn = table.number("dpn", Range::positive);
    fraction.type = read_type(table);
    return fraction;
}

// Fractions without segments of their own have those of the polymer.
std::vector<ChainFraction> read_chain_fractions(const Entry& list,
                                                const std::optional<SegmentFractions>& segments,
                                                Diagnostics& diagnostics)
{
    std::vector<ChainFraction> fractions;
    for (const auto& element : read_array(list, diagnostics, "at least one fraction")) {
        auto table = read_table(element, diagnostics);
        if (!table) continue;
        const auto own = read_segment_fractions(*table);
        fractions.push_back(read_chain_fraction(*table, own ? own : segments));
        table->finish_part();
    }
    return fractions;
}

PolymerChains read_polymer_chains(const Entry& entry, TableReader table)
{
    PolymerChains chains{{entry.key, entry.source}, {}};
    const auto segments = read_segment_fractions(table);
    if (const auto list = table.entry("fractions")) {
        refuse_both(table, "fractions", {"mass", "moles", "mn", "mw", "mz", "dispersity", "dpn", "type"});
        chains.fractions = read_chain_fractions(*list, segments, table.diagnostics());
    } else {
        chains.fractions.push_back(read_chain_fraction(table, segments));
    }
    table.finish_part();
    return chains;
}

std::vector<PolymerChains> read_chains(TableReader table)
{
    std::vector<PolymerChains> all;
    for (const auto& entry : table.entries())
        if (const auto chains = read_table(entry, table.diagnostics()))
            all.push_back(read_polymer_chains(entry, *chains));
    return all;
}

std::optional<Mix> read_mix(TableReader& table)
{
    const auto parts = table.table("mix");
    if (!parts) return {};
    refuse_both(table, "mix", {"flows", "mass_flows", "chains", "attributes"});
    Mix mix{table.entry("mix")->source, read_component_values(*parts, Range::not_negative)};
    if (parts->is_empty())
        table.diagnostics().add(mix.source, parts->path() + " is empty; expected at least one stream");
    return mix;
}

Stream read_stream(const Entry& entry, TableReader table)
{
    Stream stream;
    stream.name = {entry.key, entry.source};
    if (const auto flows = table.table("flows"))
        stream.flows = read_component_values(*flows, Range::not_negative);
    if (const auto masses = table.table("mass_flows"))
        stream.mass_flows = read_component_values(*masses, Range::not_negative);
    if (const auto chains = table.table("chains")) stream.chains = read_chains(*chains);
    stream.mix = read_mix(table);
    if (!table.entry("mass_flows") && !table.entry("chains") && !table.entry("mix"))
        table.missing("flows", "a table of component IDs and their mole flows");
    if (const auto attributes = table.table("attributes"))
        stream.attributes = read_attribute_values(*attributes);
    table.finish_part();
    return stream;
}

}  // namespace

std::vector<ComponentValue> read_component_values(TableReader table, Range range)
{
    std::vector<ComponentValue> values;
    // An unusable value keeps its place: it is not missing as well.
    for (const auto& entry : table.entries())
        values.push_back(
            {{entry.key, entry.source}, read_number(entry, range, table.diagnostics()).value_or(0)});
    return values;
}

std::vector<Stream> read_streams(TableReader table)
{
    std::vector<Stream> streams;
    for (const auto& entry : table.entries())
        if (const auto stream = read_table(entry, table.diagnostics()))
            streams.push_back(read_stream(entry, *stream));
    return streams;
}

}  // namespace app
