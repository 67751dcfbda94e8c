// Checks of the properties and reactors against the components, segments and streams of the case.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

#include "app/case/case_reader.h"

namespace app {

namespace {

using Names = std::vector<std::string_view>;

// Names of the other columns of the table.
constexpr std::string_view taken_names[] = {"component", "class"};

Names ids_of(const Case& input, std::initializer_list<ComponentClass> kinds)
{
    Names ids;
    for (const auto& component : input.components)
        if (std::ranges::find(kinds, component.component_class) != kinds.end()) ids.push_back(component.id);
    return ids;
}

// Every ID among `known`; `what` says what those are.
void check_ids(const std::vector<ComponentValue>& values, const std::string& path, const Names& known,
               std::string_view what, Diagnostics& diagnostics)
{
    for (const auto& [component, value] : values)
        if (std::ranges::find(known, component.id) == known.end())
            diagnostics.add(component.source,
                            fmt::format("{} names \"{}\", which is not {}{}", path, component.id, what,
                                        suggestion(component.id, known)));
}

// One value for each segment: a chain may hold any of them.
void check_segments(const std::vector<ComponentValue>& values, const PlacedName& property,
                    std::string_view key, const Names& segments, Diagnostics& diagnostics)
{
    const auto path = fmt::format("properties.{}.{}", property.id, key);
    check_ids(values, path, segments, "a segment", diagnostics);
    Names without;
    for (const auto segment : segments)
        if (std::ranges::none_of(values, [&](const ComponentValue& v) { return v.component.id == segment; }))
            without.push_back(segment);
    if (!without.empty())
        diagnostics.add(property.source, fmt::format("{} has no value for {}; expected one for each segment",
                                                     path, fmt::join(without, ", ")));
}

void check_property(const Property& property, const Case& input, Diagnostics& diagnostics)
{
    const auto& [id, source] = property.name;
    if (std::ranges::find(taken_names, id) != std::end(taken_names))
        diagnostics.add(source, fmt::format("\"{}\" is not usable as the name of a property", id));
    if (property.unit.empty())
        diagnostics.add(source,
                        fmt::format("properties.{}.unit is empty; expected a unit, \"1\" for a ratio", id));
    const auto segments = ids_of(input, {ComponentClass::segment});
    check_segments(property.segment_values, property.name, "segments", segments, diagnostics);
    if (property.averaging == Averaging::weight_factors)
        check_segments(property.weight_factors, property.name, "weight_factors", segments, diagnostics);
    check_ids(property.own_values, fmt::format("properties.{}.components", id),
              ids_of(input, {ComponentClass::polymer, ComponentClass::oligomer}), "a polymer or oligomer",
              diagnostics);
}

void check_stream(const PlacedName& stream, const Case& input, Diagnostics& diagnostics)
{
    Names known;
    for (const auto& candidate : input.streams) known.push_back(candidate.name.id);
    // An empty reference: its error has been reported.
    if (stream.id.empty() || std::ranges::find(known, stream.id) != known.end()) return;
    diagnostics.add(stream.source, fmt::format("{} names \"{}\", which is not a stream{}", stream.source.key,
                                               stream.id, suggestion(stream.id, known)));
}

void check_inlets(const Reactor& reactor, const Case& input, Diagnostics& diagnostics)
{
    Names earlier;
    for (const auto& [id, source] : reactor.inlets) {
        check_stream({id, source}, input, diagnostics);
        if (id.empty()) continue;
        if (std::ranges::find(earlier, id) != earlier.end())
            diagnostics.add(source,
                            fmt::format("reactors.{}.inlets names \"{}\" twice", reactor.name.id, id));
        earlier.emplace_back(id);
        if (id == reactor.outlet.id)
            diagnostics.add(reactor.outlet.source,
                            fmt::format("reactors.{}: inlet and outlet are both \"{}\"; expected two streams",
                                        reactor.name.id, id));
    }
}

}  // namespace

void check_properties(const Case& input, Diagnostics& diagnostics)
{
    for (const auto& property : input.properties) check_property(property, input, diagnostics);
}

void check_reactors(const Case& input, Diagnostics& diagnostics)
{
    for (const auto& reactor : input.reactors) {
        check_inlets(reactor, input, diagnostics);
        check_stream(reactor.outlet, input, diagnostics);
    }
}

}  // namespace app
