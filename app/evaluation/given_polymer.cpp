#include "app/evaluation/given_polymer.h"

#include <fmt/format.h>

#include <algorithm>
#include <numeric>

namespace app {

namespace {

using minihost::AttributeShape;
using minihost::AttributeTable;

// Values of another length were refused.
bool fits(const AttributeValue& value, const AttributeTable::Entry& entry)
{
    return value.segments.empty() ? std::ssize(value.elements) == entry.length
                                  : entry.kind->shape == AttributeShape::by_segment;
}

}  // namespace

std::vector<GivenSegment> given_segments(const minihost::Host& host, const minihost::PolymerInput& input)
{
    std::vector<GivenSegment> segments;
    for (const auto& id : input.segment_ids) {
        const auto& component = host.components().at(host.components().index(id));
        segments.push_back({id, component.molecular_weight.value_or(0), SegmentType::repeat});
    }
    for (const auto& listed : input.segments)
        segments.at(static_cast<std::size_t>(listed.position - 1)).type =
            static_cast<SegmentType>(listed.type);
    return segments;
}

GivenPolymer::GivenPolymer(const Stream& stream, const Flow& flow, minihost::Host& host)
    : stream_(stream.name.id), flow_(flow), host_(host), component_(host.components().index(id()))
{
    const auto& view = host.streams().view(stream_);
    const auto* first = view.values + view.first_flow.front() - 1;
    for (const auto& value : stream.attributes) {
        const auto* entry = host.attributes().find(component_, value.name.id);
        if (value.component.id != id() || !entry || !fits(value, *entry)) continue;
        const auto* begin = first + entry->offset;
        values_.insert_or_assign(value.name.id,
                                 Given{value.name.source, {begin, begin + entry->length}, value.is_derived});
    }
}

double GivenPolymer::mass_flow() const
{
    return flow_.value * host_.components().at(component_).molecular_weight.value_or(0);
}

bool GivenPolymer::carries(std::string_view attribute) const
{
    return host_.attributes().find(component_, attribute) != nullptr;
}

bool GivenPolymer::states(std::string_view attribute) const
{
    const auto found = values_.find(attribute);
    return found != values_.end() && !found->second.is_derived;
}

bool GivenPolymer::gives_all(std::initializer_list<std::string_view> attributes) const
{
    return std::ranges::all_of(attributes, [&](auto attribute) { return gives(attribute); });
}

const std::vector<double>& GivenPolymer::elements(std::string_view attribute) const
{
    return values_.find(attribute)->second.elements;
}

double GivenPolymer::sum(std::string_view attribute) const
{
    const auto& all = elements(attribute);
    return std::accumulate(all.begin(), all.end(), 0.0);
}

const SourcePosition& GivenPolymer::source(std::string_view attribute) const
{
    return values_.find(attribute)->second.source;
}

std::string GivenPolymer::key(std::string_view attribute) const
{
    if (gives(attribute) && !states(attribute))
        return fmt::format("{}: {}", source(attribute).key, attribute);
    return fmt::format("streams.{}.attributes.{}.{}", stream_, id(), attribute);
}

std::string GivenPolymer::flow_key() const
{
    return flow_.component.source.key;
}

std::vector<GivenPolymer> given_polymers(const Stream& stream, minihost::Host& host)
{
    std::vector<GivenPolymer> polymers;
    for (const auto& flow : stream.flows) {
        const auto component = host.components().index(flow.component.id);
        if (flow.value > 0 && host.components().is(ComponentClass::polymer, component))
            polymers.emplace_back(stream, flow, host);
    }
    return polymers;
}

}  // namespace app
