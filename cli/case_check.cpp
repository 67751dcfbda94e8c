// Checks across the sections of a case: components and the polymer paragraph.
#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "cli/case_reader.h"
#include "minihost/attributes.h"

namespace cli {

namespace {

constexpr std::size_t longest_id = 8;
constexpr std::size_t longest_name = 24;

// The host keeps IDs and names in fixed words padded with blanks.
bool is_plain(std::string_view text)
{
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c > ' ' && c <= '~' && c != '"'; });
}

void check_text(std::string_view what, std::string_view text, std::size_t longest, Source source,
                Diagnostics& diagnostics)
{
    if (text.size() > longest)
        diagnostics.add(source, fmt::format("{} \"{}\" has {} characters; expected at most {}", what, text,
                                            text.size(), longest));
    else if (!is_plain(text))
        diagnostics.add(source,
                        fmt::format("{} \"{}\" is not usable; expected 1 to {} printable ASCII characters "
                                    "without blanks and quotes",
                                    what, text, longest));
}

// Follows the IDs of one list of the paragraph to components of one class.
class ListCheck {
public:
    ListCheck(const Case& input, std::string_view path, Diagnostics& diagnostics)
        : input_(input), path_(path), diagnostics_(diagnostics)
    {
    }

    void reference(const Reference& seen, std::optional<ComponentClass> expected)
    {
        const auto* component = input_.find(seen.id);
        if (!component) {
            diagnostics_.add(seen.source, fmt::format("{} names \"{}\", which is not a component{}", path_,
                                                      seen.id, suggestion(seen.id, input_.ids())));
        } else if (expected && component->component_class != *expected) {
            diagnostics_.add(
                seen.source,
                fmt::format("{} names \"{}\", which is of class \"{}\"; expected a component of class "
                            "\"{}\"",
                            path_, seen.id, text(component->component_class), text(*expected)));
        }
    }

    void once(const Reference& seen, std::optional<ComponentClass> expected)
    {
        if (!ids_.insert(seen.id).second)
            diagnostics_.add(seen.source, fmt::format("{} names \"{}\" twice", path_, seen.id));
        else
            reference(seen, expected);
    }

private:
    const Case& input_;
    std::string_view path_;
    Diagnostics& diagnostics_;
    std::set<std::string, std::less<>> ids_;
};

// Where a component of a class has to be listed; empty for a conventional one.
std::string_view list_of(ComponentClass kind)
{
    switch (kind) {
        case ComponentClass::polymer:
            return "polymers.polymers";
        case ComponentClass::oligomer:
            return "polymers.oligomers";
        case ComponentClass::segment:
            return "polymers.segments";
        case ComponentClass::conventional:
            break;
    }
    return {};
}

bool is_listed(const Component& component, const std::optional<Paragraph>& paragraph)
{
    if (!paragraph) return false;
    const auto any = [&](const auto& list, auto projection) {
        return std::ranges::any_of(list,
                                   [&](const auto& entry) { return projection(entry).id == component.id; });
    };
    switch (component.component_class) {
        case ComponentClass::polymer:
            return any(paragraph->polymers, [](const auto& r) { return r; });
        case ComponentClass::oligomer:
            return any(paragraph->oligomers, [](const auto& o) { return o.oligomer; });
        case ComponentClass::segment:
            return any(paragraph->segments, [](const auto& s) { return s.component; });
        case ComponentClass::conventional:
            break;
    }
    return true;
}

void check_oligomers(const Case& input, Diagnostics& diagnostics)
{
    ListCheck oligomers{input, "polymers.oligomers", diagnostics};
    ListCheck parts{input, "polymers.oligomers", diagnostics};
    const Source* previous = nullptr;
    for (const auto& part : input.paragraph->oligomers) {
        if (!previous || *previous != part.oligomer.source)
            oligomers.once(part.oligomer, ComponentClass::oligomer);
        previous = &part.oligomer.source;
        parts.reference(part.segment, ComponentClass::segment);
    }
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
    if (paragraph.segments.empty() && !(paragraph.polymers.empty() && paragraph.oligomers.empty()))
        diagnostics.add(paragraph.source, "polymers.segments names no segment; expected at least one");
    ListCheck segments{input, "polymers.segments", diagnostics};
    for (const auto& segment : input.paragraph->segments)
        segments.once(segment.component, ComponentClass::segment);
    ListCheck polymers{input, "polymers.polymers", diagnostics};
    for (const auto& polymer : paragraph.polymers) polymers.once(polymer, ComponentClass::polymer);
    check_oligomers(input, diagnostics);
    ListCheck attributes{input, "polymers.attributes", diagnostics};
    for (const auto& list : paragraph.attributes) {
        attributes.once(list.component, std::nullopt);
        check_attribute_names(list, diagnostics);
    }
}

}  // namespace cli
