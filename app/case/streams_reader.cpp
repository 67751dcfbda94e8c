// The [streams] section: flows and attribute values of each stream.
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

Stream read_stream(const Entry& entry, TableReader table)
{
    Stream stream{{entry.key, entry.source}, {}, {}};
    if (const auto flows = table.table("flows"))
        stream.flows = read_component_values(*flows, Range::not_negative);
    else
        table.missing("flows", "a table of component IDs and their mole flows");
    if (const auto attributes = table.table("attributes"))
        stream.attributes = read_attribute_values(*attributes);
    table.finish();
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
