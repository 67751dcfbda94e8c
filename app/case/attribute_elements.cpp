#include "app/case/attribute_elements.h"

#include <algorithm>

namespace app {

Segments segments_of(const Case& input)
{
    Segments segments;
    for (const auto& component : input.components)
        if (component.component_class == ComponentClass::segment) segments.push_back(&component);
    return segments;
}

std::vector<std::string> carried_attributes(const Case& input, const std::string& component)
{
    std::vector<std::string> names;
    if (!input.paragraph) return names;
    for (const auto& list : input.paragraph->attributes) {
        if (list.component.id != component) continue;
        for (const auto& name : list.names)
            if (std::ranges::find(names, name.id) == names.end()) names.push_back(name.id);
    }
    return names;
}

const AttributeValue* find_attribute(const Stream& stream, const std::string& component,
                                     const std::string& name)
{
    const auto found = std::ranges::find_if(stream.attributes, [&](const AttributeValue& value) {
        return value.component.id == component && value.name.id == name;
    });
    return found == stream.attributes.end() ? nullptr : &*found;
}

std::optional<double> number_of(const Stream& stream, const std::string& component, const std::string& name)
{
    const auto* value = find_attribute(stream, component, name);
    return value && !value->elements.empty() ? std::optional{value->elements.front()} : std::nullopt;
}

std::vector<double> by_position(const AttributeValue& value, const Segments& segments)
{
    if (value.segments.empty()) return value.elements;
    std::vector<double> ordered(segments.size());
    for (std::size_t i = 0; i < value.segments.size(); ++i)
        for (std::size_t s = 0; s < segments.size(); ++s)
            if (segments[s]->id == value.segments[i].id) ordered[s] = value.elements[i];
    return ordered;
}

}  // namespace app
