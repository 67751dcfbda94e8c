// The [polymers] section and the catalyst scaling: lists of named components, kept in the order and with the
// repeats of the file.
#include <algorithm>

#include "app/case/case_reader.h"

namespace app {

namespace {

// Far more than a catalyst has, and few enough for the tables of sites.
constexpr std::int64_t most_site_types = 1000;

constexpr Word<SegmentType> segment_types[] = {
    {"end", SegmentType::end},
    {"repeat", SegmentType::repeat},
    {"branch3", SegmentType::branch3},
    {"branch4", SegmentType::branch4},
};

std::vector<PlacedName> read_references(const std::vector<Entry>& entries, Diagnostics& diagnostics)
{
    std::vector<PlacedName> references;
    for (const auto& entry : entries)
        if (const auto id = read_text(entry, diagnostics)) references.push_back({*id, entry.source});
    return references;
}

std::optional<PlacedName> read_reference(TableReader& table, std::string_view key)
{
    const auto id = table.required_text(key);
    if (!id) return {};
    return PlacedName{*id, table.entry(key)->source};
}

std::optional<Segment> read_segment(const Entry& entry, Diagnostics& diagnostics)
{
    auto table = read_table(entry, diagnostics);
    if (!table) return {};
    const auto id = read_reference(*table, "id");
    const auto type = table->entry("type");
    if (!type) table->missing("type", "one of end, repeat, branch3, branch4");
    const auto known = type ? read_word(*type, segment_types, diagnostics) : std::nullopt;
    table->finish_part();
    if (!id) return {};
    // A segment of unknown type still counts: nothing else is wrong with the values given for it.
    return Segment{*id, known.value_or(SegmentType::repeat)};
}

struct Part {
    PlacedName segment;
    double count;
};

// A list of { id, count } may name a segment twice, a table cannot.
std::vector<Part> read_listed_parts(const Entry& list, Diagnostics& diagnostics)
{
    std::vector<Part> parts;
    for (const auto& entry : read_array(list, diagnostics)) {
        auto table = read_table(entry, diagnostics);
        if (!table) continue;
        const auto segment = read_reference(*table, "id");
        const auto count = table->required_number("count", Range::not_negative);
        table->finish_part();
        if (segment && count) parts.push_back({*segment, *count});
    }
    return parts;
}

std::vector<Part> read_keyed_parts(const Entry& keyed, Diagnostics& diagnostics)
{
    std::vector<Part> parts;
    auto table = read_table(keyed, diagnostics);
    if (!table) return parts;
    for (const auto& entry : table->entries())
        if (const auto count = read_number(entry, Range::not_negative, diagnostics))
            parts.push_back({{entry.key, entry.source}, *count});
    return parts;
}

std::vector<Part> read_parts(TableReader& table, Diagnostics& diagnostics)
{
    const auto segments = table.entry("segments");
    if (!segments) {
        table.missing("segments", "a table of segment IDs and their counts");
        return {};
    }
    const auto read = segments->node->is_array() ? read_listed_parts : read_keyed_parts;
    auto parts = read(*segments, diagnostics);
    if (parts.empty())
        diagnostics.add(segments->source, segments->path + " names no segment; expected at least one");
    return parts;
}

// The ID of an entry without one is that of the entry before; the first one has to have it.
std::optional<PlacedName> read_oligomer_id(TableReader& table, const std::vector<OligomerPart>& before)
{
    const auto entry = table.entry("id");
    const auto id = table.text("id");
    if (id && !id->empty()) return PlacedName{*id, entry->source};
    if (entry && !id) return {};
    if (!before.empty()) return before.back().oligomer;
    table.diagnostics().add(
        entry ? entry->source : table.source(),
        table.path() + ".id is not given; only an entry behind another one continues its oligomer");
    return {};
}

void read_oligomer(const Entry& entry, std::vector<OligomerPart>& all, Diagnostics& diagnostics)
{
    auto table = read_table(entry, diagnostics);
    if (!table) return;
    const auto oligomer = read_oligomer_id(*table, all);
    const auto parts = read_parts(*table, diagnostics);
    table->finish_part();
    if (!oligomer) return;
    for (const auto& part : parts) {
        const bool is_continued = !all.empty() && all.back().oligomer.source == oligomer->source;
        all.push_back({*oligomer, part.segment, part.count, is_continued});
    }
}

std::optional<AttributeList> read_attribute_list(const Entry& entry, Diagnostics& diagnostics)
{
    auto table = read_table(entry, diagnostics);
    if (!table) return {};
    const auto component = read_reference(*table, "component");
    const auto names = table->entry("names");
    if (!names) table->missing("names", "an array of attribute names");
    AttributeList list;
    if (component) list.component = *component;
    if (names) list.names = read_references(read_array(*names, diagnostics), diagnostics);
    if (!table->finish()) return {};
    return list;
}

std::optional<Catalyst> read_catalyst(const Entry& entry, Diagnostics& diagnostics)
{
    auto table = read_table(entry, diagnostics);
    if (!table) return {};
    const auto id = read_reference(*table, "id");
    const auto value = table->number("value", Range::any).value_or(0);
    if (!table->finish()) return {};
    return Catalyst{*id, value};
}

FurtherIntegers read_further_integers(TableReader& table)
{
    FurtherIntegers integers = {};
    const auto entry = table.entry("integers");
    if (!entry) return integers;
    const auto elements = read_array(*entry, table.diagnostics());
    if (entry->node->is_array() && elements.size() != integers.size())
        table.diagnostics().add(entry->source, entry->path + " has " + std::to_string(elements.size()) +
                                                   " values; expected 3 whole numbers");
    for (std::size_t i = 0; i < std::min(elements.size(), integers.size()); ++i)
        integers[i] = read_whole_number(elements[i], {}, table.diagnostics()).value_or(0);
    return integers;
}

Sites read_sites(TableReader table)
{
    Sites sites;
    sites.count = table.required_whole_number("count", {0, most_site_types}).value_or(0);
    sites.integers = read_further_integers(table);
    sites.real = table.number("real", Range::any).value_or(0);
    table.finish_part();
    return sites;
}

std::optional<DistributionRequest> read_distribution(const Entry& entry, Diagnostics& diagnostics)
{
    auto table = read_table(entry, diagnostics);
    if (!table) return {};
    const auto polymer = read_reference(*table, "polymer");
    const auto type = table->required_whole_number("type", {1, 4}).value_or(1);
    const auto integers = read_further_integers(*table);
    const auto real = table->number("real", Range::any).value_or(0);
    if (!table->finish()) return {};
    return DistributionRequest{*polymer, type, integers, real};
}

std::optional<ScalingEntry> read_scaling(const Entry& entry, Diagnostics& diagnostics)
{
    auto table = read_table(entry, diagnostics);
    if (!table) return {};
    const auto component = read_reference(*table, "component");
    const auto attribute = read_reference(*table, "attribute");
    const auto first = table->number("first", Range::any);
    const auto second = table->number("second", Range::any);
    if (!table->finish()) return {};
    return ScalingEntry{*component, *attribute, first, second};
}

// Every entry of a list that `read` can make something of.
template <typename Item>
std::vector<Item> read_list(const std::vector<Entry>& entries, Diagnostics& diagnostics,
                            std::optional<Item> (*read)(const Entry&, Diagnostics&))
{
    std::vector<Item> items;
    for (const auto& entry : entries)
        if (auto item = read(entry, diagnostics)) items.push_back(std::move(*item));
    return items;
}

}  // namespace

Paragraph read_paragraph(TableReader table)
{
    auto& diagnostics = table.diagnostics();
    Paragraph paragraph;
    paragraph.source = table.source();
    paragraph.segments = read_list(table.array("segments"), diagnostics, read_segment);
    paragraph.polymers = read_references(table.array("polymers"), diagnostics);
    for (const auto& entry : table.array("oligomers")) read_oligomer(entry, paragraph.oligomers, diagnostics);
    paragraph.attributes = read_list(table.array("attributes"), diagnostics, read_attribute_list);
    paragraph.catalysts = read_list(table.array("catalysts"), diagnostics, read_catalyst);
    paragraph.initiators = read_references(table.array("initiators"), diagnostics);
    if (const auto sites = table.table("sites")) paragraph.sites = read_sites(*sites);
    paragraph.distributions = read_list(table.array("distributions"), diagnostics, read_distribution);
    table.finish_part();
    return paragraph;
}

std::vector<ScalingEntry> read_catalyst_scaling(const std::vector<Entry>& entries, Diagnostics& diagnostics)
{
    return read_list(entries, diagnostics, read_scaling);
}

}  // namespace app
