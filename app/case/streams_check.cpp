// Checks of the streams against the components of the case.
#include <fmt/format.h>

#include "app/case/case_reader.h"

namespace app {

namespace {

void check_component(const Case& input, const PlacedName& seen, const std::string& path,
                     Diagnostics& diagnostics)
{
    const auto* component = input.find(seen.id);
    if (component && component->component_class != ComponentClass::segment) return;
    diagnostics.add(seen.source,
                    component
                        ? fmt::format("{} names \"{}\", which is a segment; segments are parts of polymers "
                                      "and have no flow or attributes of their own",
                                      path, seen.id)
                        : fmt::format("{} names \"{}\", which is not a component{}", path, seen.id,
                                      suggestion(seen.id, input.ids())));
}

}  // namespace

void check_streams(const Case& input, Diagnostics& diagnostics)
{
    for (const auto& stream : input.streams) {
        const auto path = "streams." + stream.name.id;
        for (const auto& flow : stream.flows)
            check_component(input, flow.component, path + ".flows", diagnostics);
        const PlacedName* previous = nullptr;
        for (const auto& value : stream.attributes) {
            // The attributes of a component are consecutive: an error in its name is reported once.
            if (!previous || previous->source != value.component.source)
                check_component(input, value.component, path + ".attributes", diagnostics);
            previous = &value.component;
        }
    }
}

}  // namespace app
