#include "app/host_setup/stream_values.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

#include "app/host_setup/required_attributes.h"
#include "minihost/attributes.h"
#include "minihost/polymer_input.h"

namespace app {

namespace {

using minihost::AttributeShape;
using minihost::Host;
using Ids = std::vector<std::string>;

std::vector<std::string_view> carried_by(Host& host, Int component)
{
    std::vector<std::string_view> names;
    for (const auto& entry : host.attributes().carried_by(component)) names.push_back(entry.kind->name);
    return names;
}

std::string counted(std::size_t count, std::string_view what)
{
    return fmt::format("{} {}{}", count, what, count == 1 ? "" : "s");
}

std::string listed(std::string_view what, const Ids& ids)
{
    if (ids.empty()) return fmt::format("the polymer has no {}", what);
    return fmt::format("the polymer has {} ({})", counted(ids.size(), what), fmt::join(ids, ", "));
}

// One attribute of one component in one stream.
class ValueCheck {
public:
    ValueCheck(Host& host, const Ids& segments, const Ids& end_segments, std::string path)
        : host_(host), segments_(segments), end_segments_(end_segments), path_(std::move(path))
    {
    }

    // What is wrong with the value as a whole; empty when nothing is.
    std::string fault(const AttributeValue& value) const
    {
        const auto* kind = minihost::find_attribute_kind(value.name.id);
        const auto carried = carried_by(host_, host_.components().index(value.component.id));
        if (!kind)
            return fmt::format("unknown key \"{}\"{}", value.name.id, suggestion(value.name.id, carried));
        if (carried.empty()) return fmt::format("{}: {} carries no attributes", path_, value.component.id);
        if (std::ranges::find(carried, value.name.id) == carried.end())
            return fmt::format("{} is not among the attributes that {} carries ({})", path_,
                               value.component.id, fmt::join(carried, ", "));
        if (!value.segments.empty())
            return kind->shape == AttributeShape::by_segment
                       ? ""
                       : path_ +
                             " is a table; only attributes with one value per segment may be given by "
                             "segment ID";
        const auto expected = static_cast<std::size_t>(attribute_length(*kind, host_.dimensions()));
        return value.elements.size() == expected ? "" : wrong_length(*kind, value.elements.size(), expected);
    }

    // Segments that a value names although they are none.
    std::vector<Diagnostic> unknown_segments(const AttributeValue& value) const
    {
        std::vector<Diagnostic> unknown;
        for (const auto& [id, source] : value.segments)
            if (std::ranges::find(segments_, id) == segments_.end())
                unknown.push_back(
                    {source, fmt::format("{} names \"{}\", which is not a segment{}", path_, id,
                                         suggestion(id, {segments_.begin(), segments_.end()}))});
        return unknown;
    }

private:
    std::string wrong_length(const minihost::AttributeKind& kind, std::size_t seen,
                             std::size_t expected) const
    {
        const auto values = fmt::format("{} has {}; ", path_, counted(seen, "value"));
        if (kind.shape == AttributeShape::by_segment) return values + listed("segment", segments_);
        if (kind.shape == AttributeShape::by_end_segment)
            return values + listed("end segment", end_segments_);
        return values + fmt::format("expected {}", expected);
    }

    Host& host_;
    const Ids& segments_;
    const Ids& end_segments_;
    std::string path_;
};

// Values given by segment ID, put in the order of the segment list; segments that are not named hold 0.
std::vector<double> in_order(const AttributeValue& value, const Ids& segments)
{
    if (value.segments.empty()) return value.elements;
    std::vector<double> ordered(segments.size());
    for (std::size_t i = 0; i < value.segments.size(); ++i) {
        const auto found = std::ranges::find(segments, value.segments[i].id);
        if (found != segments.end())
            ordered[static_cast<std::size_t>(found - segments.begin())] = value.elements[i];
    }
    return ordered;
}

}  // namespace

StreamValues::StreamValues(const Case& input, Host& host, std::string consequence, Diagnostics& diagnostics)
    : input_(input),
      host_(host),
      segments_(minihost::segment_ids(host)),
      end_segments_(minihost::end_segment_ids(host)),
      consequence_(std::move(consequence)),
      diagnostics_(diagnostics)
{
}

minihost::Stream StreamValues::accepted(const Stream& stream)
{
    minihost::Substream substream;
    for (const auto& flow : stream.flows) {
        check_given(stream, flow);
        substream.flows[flow.component.id] = flow.value;
    }
    bool is_sound = true;
    for (const auto& value : stream.attributes) is_sound = accept(stream, value, substream) && is_sound;
    // A value that was refused need not be missing as well.
    if (is_sound)
        for (const auto& flow : stream.flows)
            if (flows_as_polymer(flow)) check_required_attributes(input_, stream, flow, host_, diagnostics_);
    return {stream.name.id, {substream}};
}

bool StreamValues::accept(const Stream& stream, const AttributeValue& value, minihost::Substream& substream)
{
    const ValueCheck check{
        host_, segments_, end_segments_,
        fmt::format("streams.{}.attributes.{}.{}", stream.name.id, value.component.id, value.name.id)};
    if (const auto fault = check.fault(value); !fault.empty()) {
        diagnostics_.add(value.name.source, fault + consequence_);
        return false;
    }
    const auto unknown_segments = check.unknown_segments(value);
    for (const auto& unknown : unknown_segments)
        diagnostics_.add(unknown.source, unknown.text + consequence_);
    substream.attributes[value.component.id][value.name.id] = in_order(value, segments_);
    return unknown_segments.empty();
}

bool StreamValues::flows_as_polymer(const Flow& flow) const
{
    const auto component = host_.components().index(flow.component.id);
    return flow.value > 0 && host_.components().is(ComponentClass::polymer, component) &&
           !host_.attributes().carried_by(component).empty();
}

// A polymer without values would pass for chains of one segment.
void StreamValues::check_given(const Stream& stream, const Flow& flow)
{
    const auto& id = flow.component.id;
    if (!flows_as_polymer(flow)) return;
    const auto is_given = [&](const AttributeValue& value) { return value.component.id == id; };
    if (std::ranges::none_of(stream.attributes, is_given))
        diagnostics_.add(
            flow.component.source,
            fmt::format("streams.{}.attributes.{} is missing; expected values, since {} flows in this stream",
                        stream.name.id, id, id));
}

}  // namespace app
