#include "cli/case.h"

#include <algorithm>

namespace cli {

std::string_view text(ComponentClass kind)
{
    switch (kind) {
        case ComponentClass::conventional:
            return "conventional";
        case ComponentClass::polymer:
            return "polymer";
        case ComponentClass::oligomer:
            return "oligomer";
        case ComponentClass::segment:
            return "segment";
    }
    return {};
}

const Component* Case::find(std::string_view id) const
{
    const auto found =
        std::ranges::find(components, id, [](const Component& c) -> std::string_view { return c.id; });
    return found == components.end() ? nullptr : &*found;
}

std::vector<std::string_view> Case::ids() const
{
    std::vector<std::string_view> ids;
    for (const auto& component : components) ids.push_back(component.id);
    return ids;
}

std::vector<std::string_view> Case::segment_ids() const
{
    std::vector<std::string_view> ids;
    if (!paragraph) return ids;
    const auto is_listed = [this](std::string_view id) {
        return std::ranges::any_of(paragraph->segments,
                                   [&](const Segment& s) { return s.component.id == id; });
    };
    for (const auto& component : components)
        if (is_listed(component.id)) ids.push_back(component.id);
    return ids;
}

std::vector<std::string_view> Case::end_segment_ids() const
{
    std::vector<std::string_view> ids;
    if (!paragraph) return ids;
    for (const auto& segment : paragraph->segments)
        if (segment.type == SegmentType::end) ids.push_back(segment.component.id);
    return ids;
}

const AttributeList* Case::attributes_of(std::string_view component) const
{
    if (!paragraph) return nullptr;
    const auto& lists = paragraph->attributes;
    const auto id = [](const AttributeList& list) -> std::string_view { return list.component.id; };
    const auto found = std::ranges::find(lists, component, id);
    return found == lists.end() ? nullptr : &*found;
}

}  // namespace cli
