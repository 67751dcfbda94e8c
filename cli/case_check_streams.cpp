// Checks of the streams against the components, the attribute lists and the segments of the case.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

#include "cli/case_reader.h"
#include "minihost/attributes.h"

namespace cli {

namespace {

using minihost::AttributeKind;
using minihost::AttributeShape;
using Names = std::vector<std::string_view>;

// One attribute of one component in one stream.
class AttributeCheck {
public:
    AttributeCheck(const Case& input, const Stream& stream, const AttributeValue& value,
                   Diagnostics& diagnostics)
        : value_(value),
          list_(input.attributes_of(value.component.id)),
          segments_(input.segment_ids()),
          end_segments_(input.end_segment_ids()),
          path_(
              fmt::format("streams.{}.attributes.{}.{}", stream.name.id, value.component.id, value.name.id)),
          diagnostics_(diagnostics)
    {
    }

    void run()
    {
        if (!list_) return report("{}: polymers.attributes has no entry for {}", path_, value_.component.id);
        const auto* kind = minihost::find_attribute_kind(value_.name.id);
        if (!kind)
            return report("unknown key \"{}\"{}", value_.name.id, suggestion(value_.name.id, carried()));
        if (!is_carried())
            return report("{} is not among the attributes of {} (polymers.attributes: {})", path_,
                          value_.component.id, fmt::join(carried(), ", "));
        if (!value_.segments.empty()) return check_segments(kind->shape);
        const auto expected = static_cast<std::size_t>(minihost::attribute_length(*kind, dimensions()));
        if (value_.elements.size() != expected) report_length(kind->shape, expected);
    }

private:
    Names carried() const
    {
        Names names;
        for (const auto& name : list_->names) names.push_back(name.id);
        return names;
    }

    bool is_carried() const
    {
        const auto names = carried();
        return std::ranges::find(names, value_.name.id) != names.end();
    }

    minihost::AttributeDimensions dimensions() const
    {
        return {static_cast<minihost::Int>(segments_.size()),
                static_cast<minihost::Int>(end_segments_.size()), 0};
    }

    void check_segments(AttributeShape shape)
    {
        if (shape != AttributeShape::by_segment)
            return report(
                "{} is a table; only attributes with one value per segment may be given by segment ID",
                path_);
        for (const auto& segment : value_.segments)
            if (std::ranges::find(segments_, segment.id) == segments_.end())
                diagnostics_.add(segment.source,
                                 fmt::format("{} names \"{}\", which is not a segment{}", path_, segment.id,
                                             suggestion(segment.id, segments_)));
    }

    void report_length(AttributeShape shape, std::size_t expected)
    {
        const auto seen = counted(value_.elements.size(), "value");
        switch (shape) {
            case AttributeShape::by_segment:
                return report("{} has {}; {}", path_, seen, listed("segment", segments_));
            case AttributeShape::by_end_segment:
                return report("{} has {}; {}", path_, seen, listed("end segment", end_segments_));
            case AttributeShape::scalar:
            case AttributeShape::by_site:
            case AttributeShape::by_segment_and_site:
                break;
        }
        report("{} has {}; expected {}", path_, seen, expected);
    }

    static std::string counted(std::size_t count, std::string_view what)
    {
        return fmt::format("{} {}{}", count, what, count == 1 ? "" : "s");
    }

    static std::string listed(std::string_view what, const Names& ids)
    {
        return fmt::format("the polymer has {} ({})", counted(ids.size(), what), fmt::join(ids, ", "));
    }

    template <typename... Arguments>
    void report(fmt::format_string<Arguments...> format, Arguments&&... arguments)
    {
        diagnostics_.add(value_.name.source, fmt::format(format, std::forward<Arguments>(arguments)...));
    }

    const AttributeValue& value_;
    const AttributeList* list_;
    Names segments_;
    Names end_segments_;
    std::string path_;
    Diagnostics& diagnostics_;
};

bool check_component(const Case& input, const Reference& seen, const std::string& path,
                     Diagnostics& diagnostics)
{
    const auto* component = input.find(seen.id);
    if (component && component->component_class != ComponentClass::segment) return true;
    diagnostics.add(seen.source,
                    component
                        ? fmt::format("{} names \"{}\", which is a segment; segments are parts of polymers "
                                      "and have no flow or attributes of their own",
                                      path, seen.id)
                        : fmt::format("{} names \"{}\", which is not a component{}", path, seen.id,
                                      suggestion(seen.id, input.ids())));
    return false;
}

// A polymer without values would pass for chains of one segment.
void check_values_given(const Case& input, const Stream& stream, const Flow& flow, Diagnostics& diagnostics)
{
    const auto* list = input.attributes_of(flow.component.id);
    const auto* component = input.find(flow.component.id);
    if (!list || !component || component->component_class != ComponentClass::polymer || flow.value <= 0)
        return;
    const auto is_given = [&](const AttributeValue& value) {
        return value.component.id == flow.component.id;
    };
    if (std::ranges::none_of(stream.attributes, is_given))
        diagnostics.add(
            flow.component.source,
            fmt::format("streams.{}.attributes.{} is missing; expected values, since {} flows in this "
                        "stream",
                        stream.name.id, flow.component.id, flow.component.id));
}

}  // namespace

void check_streams(const Case& input, Diagnostics& diagnostics)
{
    for (const auto& stream : input.streams) {
        const auto path = "streams." + stream.name.id;
        for (const auto& flow : stream.flows) {
            check_component(input, flow.component, path + ".flows", diagnostics);
            check_values_given(input, stream, flow, diagnostics);
        }
        const Reference* previous = nullptr;
        bool known = false;
        for (const auto& value : stream.attributes) {
            // The attributes of a component stand together: what is wrong with its name is said once.
            if (!previous || previous->id != value.component.id)
                known = check_component(input, value.component, path + ".attributes", diagnostics);
            previous = &value.component;
            if (known) AttributeCheck{input, stream, value, diagnostics}.run();
        }
    }
}

}  // namespace cli
