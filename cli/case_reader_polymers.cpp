// The [polymers] section: lists of named components, kept in the order and with the repeats of the file.
#include "cli/case_reader.h"

namespace cli {

namespace {

constexpr Word<SegmentType> segment_types[] = {
    {"end", SegmentType::end},
    {"repeat", SegmentType::repeat},
    {"branch3", SegmentType::branch3},
    {"branch4", SegmentType::branch4},
};

std::vector<Reference> read_references(const std::vector<Entry>& entries, Diagnostics& diagnostics)
{
    std::vector<Reference> references;
    for (const auto& entry : entries)
        if (const auto id = read_text(entry, diagnostics)) references.push_back({*id, entry.source});
    return references;
}

std::optional<Reference> read_reference(TableReader& table, std::string_view key)
{
    const auto id = table.required_text(key);
    if (!id) return {};
    return Reference{*id, table.entry(key)->source};
}

std::optional<Segment> read_segment(const Entry& entry, Diagnostics& diagnostics)
{
    auto table = read_table(entry, diagnostics);
    if (!table) return {};
    const auto id = read_reference(*table, "id");
    const auto type = table->entry("type");
    if (!type) table->missing("type", "one of end, repeat, branch3, branch4");
    const auto known = type ? read_word(*type, segment_types, diagnostics) : std::nullopt;
    table->finish();
    if (!id) return {};
    // A segment of unknown type still counts: nothing else is wrong with the values given for it.
    return Segment{*id, known.value_or(SegmentType::repeat)};
}

// A list of { id, count } may name a segment twice, a table cannot.
void read_listed_parts(const Entry& list, const Reference& oligomer, std::vector<OligomerPart>& parts,
                       Diagnostics& diagnostics)
{
    for (const auto& entry : read_array(list, diagnostics)) {
        auto table = read_table(entry, diagnostics);
        if (!table) continue;
        const auto segment = read_reference(*table, "id");
        const auto count = table->required_number("count", Range::not_negative);
        table->finish();
        if (segment && count) parts.push_back({oligomer, *segment, *count});
    }
}

void read_keyed_parts(const Entry& keyed, const Reference& oligomer, std::vector<OligomerPart>& parts,
                      Diagnostics& diagnostics)
{
    auto table = read_table(keyed, diagnostics);
    if (!table) return;
    for (const auto& entry : table->entries())
        if (const auto count = read_number(entry, Range::not_negative, diagnostics))
            parts.push_back({oligomer, {entry.key, entry.source}, *count});
}

void read_oligomer(const Entry& entry, std::vector<OligomerPart>& parts, Diagnostics& diagnostics)
{
    auto table = read_table(entry, diagnostics);
    if (!table) return;
    const auto oligomer = read_reference(*table, "id");
    const auto segments = table->entry("segments");
    if (!segments) table->missing("segments", "a table of segment IDs and their counts");
    if (oligomer && segments) {
        const auto before = parts.size();
        const auto read = segments->node->is_array() ? read_listed_parts : read_keyed_parts;
        read(*segments, *oligomer, parts, diagnostics);
        if (parts.size() == before)
            diagnostics.add(segments->source, segments->path + " names no segment; expected at least one");
    }
    table->finish();
}

std::optional<AttributeList> read_attribute_list(const Entry& entry, Diagnostics& diagnostics)
{
    auto table = read_table(entry, diagnostics);
    if (!table) return {};
    const auto component = read_reference(*table, "component");
    const auto names = table->entry("names");
    if (!names) table->missing("names", "an array of attribute names");
    table->finish();
    if (!component || !names) return {};
    return AttributeList{*component, read_references(read_array(*names, diagnostics), diagnostics)};
}

}  // namespace

Paragraph read_paragraph(TableReader table)
{
    auto& diagnostics = table.diagnostics();
    Paragraph paragraph;
    paragraph.source = table.source();
    for (const auto& entry : table.array("segments"))
        if (const auto segment = read_segment(entry, diagnostics)) paragraph.segments.push_back(*segment);
    paragraph.polymers = read_references(table.array("polymers"), diagnostics);
    for (const auto& entry : table.array("oligomers")) read_oligomer(entry, paragraph.oligomers, diagnostics);
    for (const auto& entry : table.array("attributes"))
        if (auto list = read_attribute_list(entry, diagnostics)) paragraph.attributes.push_back(*list);
    table.finish();
    return paragraph;
}

}  // namespace cli
