#include "cli/load.h"

#include <algorithm>

namespace cli {

namespace {

using minihost::Host;
using minihost::Int;
using minihost::PolymerLists;

// POLY_GETPDI keeps the PDI parameters when the host's mode word holds this value.
constexpr Int pdi_from_parameters = 100;

std::vector<minihost::Component> components(const Case& input)
{
    return {input.components.begin(), input.components.end()};
}

void add_oligomer_part(const Host& host, const OligomerPart& part, PolymerLists& lists)
{
    const auto oligomer = host.components().index(part.oligomer.id);
    auto found = std::ranges::find(lists.oligomers, oligomer, &PolymerLists::Oligomer::component);
    if (found == lists.oligomers.end()) found = lists.oligomers.insert(found, {oligomer, {}});
    found->counts[host.components().index(part.segment.id)] = part.count;
}

PolymerLists polymer_lists(const Host& host, const Paragraph& paragraph)
{
    PolymerLists lists;
    for (const auto& segment : paragraph.segments) {
        const auto index = host.components().index(segment.component.id);
        lists.segments.push_back({index, static_cast<minihost::SegmentType>(segment.type)});
        if (segment.type == SegmentType::end) lists.end_segments.push_back(index);
    }
    for (const auto& polymer : paragraph.polymers)
        lists.polymers.push_back(host.components().index(polymer.id));
    for (const auto& part : paragraph.oligomers) add_oligomer_part(host, part, lists);
    return lists;
}

void carry_attributes(Host& host, const Paragraph& paragraph)
{
    for (const auto& list : paragraph.attributes) {
        std::vector<std::string> names;
        for (const auto& name : list.names) names.push_back(name.id);
        host.attributes().carry(host.components().index(list.component.id), names);
    }
}

// Values given by segment ID, put in the order of the segment list; segments that are not named hold 0.
std::vector<double> elements(const Case& input, const AttributeValue& value)
{
    if (value.segments.empty()) return value.elements;
    const auto segments = input.segment_ids();
    std::vector<double> ordered(segments.size());
    for (std::size_t i = 0; i < value.segments.size(); ++i) {
        const auto at = std::ranges::find(segments, value.segments[i].id) - segments.begin();
        ordered[static_cast<std::size_t>(at)] = value.elements[i];
    }
    return ordered;
}

minihost::Stream host_stream(const Case& input, const Stream& stream)
{
    minihost::Substream substream;
    for (const auto& flow : stream.flows) substream.flows[flow.component.id] = flow.value;
    for (const auto& value : stream.attributes)
        substream.attributes[value.component.id][value.name.id] = elements(input, value);
    return {stream.name.id, {substream}};
}

}  // namespace

std::unique_ptr<Host> load(const Case& input)
{
    minihost::Options options;
    options.missing_value_bound = input.settings.missing_value_bound;
    options.zero_bound = input.settings.zero_bound;
    auto host = std::make_unique<Host>(components(input), options);
    if (input.settings.pdi_from_parameters) host->set_pdi_mode(pdi_from_parameters);
    if (input.paragraph) {
        host->set_polymer_block(
            minihost::lay_polymer_block(host->store(), polymer_lists(*host, *input.paragraph)));
        carry_attributes(*host, *input.paragraph);
    }
    for (const auto& stream : input.streams) host->add_stream(host_stream(input, stream));
    return host;
}

}  // namespace cli
