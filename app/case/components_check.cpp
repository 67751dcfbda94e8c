// Checks across the sections of a case: components and the polymer paragraph.
#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "app/case/case_reader.h"
#include "app/io/visible_text.h"
#include "minihost/attributes.h"

namespace app {

namespace {

constexpr std::size_t longest_id = 8;
constexpr std::size_t longest_name = 24;

// The host keeps IDs and names in fixed words padded with blanks.
bool is_plain(std::string_view text)
{
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c > ' ' && c <= '~' && c != '"'; });
}

void check_text(std::string_view what, std::string_view text, std::size_t longest,
                const SourcePosition& source, Diagnostics& diagnostics)
{
    if (has_control_characters(text)) return;  // reported when it was read
    if (text.size() > longest)
        diagnostics.add(source, fmt::format("{} \"{}\" has {} characters; expected at most {}", what, text,
                                            text.size(), longest));
    else if (!is_plain(text))
        diagnostics.add(source,
                        fmt::format("{} \"{}\" is not usable; expected 1 to {} printable ASCII characters "
                                    "without blanks and quotes",
                                    what, text, longest));
}

// A name of the paragraph, which travels in the same fixed words as an ID, and the class of the component
// that it leads to. Whether it leads to one at all is for the paragraph check to say.
void check_reference(const Case& input, std::string_view path, const PlacedName& seen,
                     std::optional<ComponentClass> expected, Diagnostics& diagnostics)
{
    const auto* component = input.find(seen.id);
    if (!component) {
        check_text(fmt::format("{}: ID", path), seen.id, longest_id, seen.source, diagnostics);
    } else if (expected && component->component_class != *expected) {
        diagnostics.add(
            seen.source,
            fmt::format("{} names \"{}\", which is of class \"{}\"; expected a component of class "
                        "\"{}\"",
                        path, seen.id, text(component->component_class), text(*expected)));
    }
}

// Where a component of a class has to be listed.
std::string_view list_of(ComponentClass kind)
{
    return kind == ComponentClass::polymer ? "polymers.polymers" : "polymers.oligomers";
}

// A polymer or oligomer in no list would pass for a conventional component.
bool is_listed(const Component& component, const std::optional<Paragraph>& paragraph)
{
    if (component.component_class == ComponentClass::conventional) return true;
    if (!paragraph) return false;
    const auto& polymers = paragraph->polymers;
    const auto& oligomers = paragraph->oligomers;
    // A paragraph with segments only is reported and ignored by its check.
    if (polymers.empty() && oligomers.empty() && !paragraph->segments.empty()) return true;
    const auto oligomer_id = [](const OligomerPart& part) -> std::string_view { return part.oligomer.id; };
    if (component.component_class == ComponentClass::polymer)
        return std::ranges::find(polymers, component.id, &PlacedName::id) != polymers.end();
    return component.component_class == ComponentClass::segment ||
           std::ranges::find(oligomers, component.id, oligomer_id) != oligomers.end();
}

std::vector<std::string_view> all_attribute_names()
{
    std::vector<std::string_view> names;
    for (const auto& kind : minihost::attribute_kinds()) names.push_back(kind.name);
    return names;
}

void check_attribute_names(const AttributeList& list, Diagnostics& diagnostics)
{
    std::set<std::string, std::less<>> seen;
    for (const auto& name : list.names) {
        if (!minihost::find_attribute_kind(name.id))
            diagnostics.add(name.source,
                            fmt::format("polymers.attributes names \"{}\", which is not an attribute{}",
                                        name.id, suggestion(name.id, all_attribute_names())));
        else if (!seen.insert(name.id).second)
            diagnostics.add(name.source, fmt::format("polymers.attributes names \"{}\" twice for {}", name.id,
                                                     list.component.id));
    }
}

}  // namespace

void check_components(const Case& input, Diagnostics& diagnostics)
{
    for (const auto& component : input.components) {
        check_text("component ID", component.id, longest_id, component.source, diagnostics);
        if (!component.name.empty() && component.name != component.id)
            check_text("databank name", component.name, longest_name, component.source, diagnostics);
        if (!is_listed(component, input.paragraph))
            diagnostics.add(
                component.source,
                fmt::format("components.{} is of class \"{}\", but {} does not list it", component.id,
                            text(component.component_class), list_of(component.component_class)));
    }
}

void check_paragraph(const Case& input, Diagnostics& diagnostics)
{
    if (!input.paragraph) return;
    const auto& paragraph = *input.paragraph;
    const auto check = [&](std::string_view list, const PlacedName& seen,
                           std::optional<ComponentClass> expected = {}) {
        check_reference(input, list, seen, expected, diagnostics);
    };
    for (const auto& segment : paragraph.segments)
        check("polymers.segments", segment.component, ComponentClass::segment);
    for (const auto& polymer : paragraph.polymers)
        check("polymers.polymers", polymer, ComponentClass::polymer);
    for (const auto& part : paragraph.oligomers) {
        if (!part.is_continued) check("polymers.oligomers", part.oligomer, ComponentClass::oligomer);
        check("polymers.oligomers", part.segment);
    }
    for (const auto& list : paragraph.attributes) {
        check("polymers.attributes", list.component);
        check_attribute_names(list, diagnostics);
    }
    for (const auto& catalyst : paragraph.catalysts) check("polymers.catalysts", catalyst.component);
    for (const auto& initiator : paragraph.initiators) check("polymers.initiators", initiator);
    for (const auto& request : paragraph.distributions)
        check("polymers.distributions", request.polymer, ComponentClass::polymer);
}

// The entries name components by index, so that an unknown one cannot even be put.
void check_catalyst_scaling(const Case& input, Diagnostics& diagnostics)
{
    for (const auto& [component, attribute, first, second] : input.catalyst_scaling) {
        if (!input.find(component.id))
            diagnostics.add(component.source,
                            fmt::format("catalyst_scaling names \"{}\", which is not a component{}",
                                        component.id, suggestion(component.id, input.ids())));
        check_text("attribute", attribute.id, longest_id, attribute.source, diagnostics);
    }
}

}  // namespace app
