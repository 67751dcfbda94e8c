// Checks of the streams against the components of the case.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

#include "app/case/case_reader.h"
#include "app/case/nesting.h"

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

std::vector<std::string_view> ids_of(const Case& input, ComponentClass kind)
{
    std::vector<std::string_view> ids;
    for (const auto& component : input.components)
        if (component.component_class == kind) ids.push_back(component.id);
    return ids;
}

void check_attributes(const Case& input, const Stream& stream, const std::string& path,
                      Diagnostics& diagnostics)
{
    const PlacedName* previous = nullptr;
    for (const auto& value : stream.attributes) {
        // The attributes of a component are consecutive: an error in its name is reported once.
        if (!previous || previous->source != value.component.source)
            check_component(input, value.component, path + ".attributes", diagnostics);
        previous = &value.component;
    }
}

// Names of segments, once for fractions that share them.
void check_segments(const Case& input, const PolymerChains& chains, Diagnostics& diagnostics)
{
    const auto known = ids_of(input, ComponentClass::segment);
    const SegmentFractions* previous = nullptr;
    for (const auto& fraction : chains.fractions) {
        const auto& segments = fraction.segments;
        if (!segments || (previous && previous->source == segments->source)) continue;
        previous = &*segments;
        for (const auto& [segment, value] : segments->values)
            if (std::ranges::find(known, segment.id) == known.end())
                diagnostics.add(segment.source,
                                fmt::format("{} names \"{}\", which is not a segment{}", segments->source.key,
                                            segment.id, suggestion(segment.id, known)));
    }
}

void check_chains(const Case& input, const Stream& stream, const std::string& path, Diagnostics& diagnostics)
{
    const auto known = ids_of(input, ComponentClass::polymer);
    for (const auto& chains : stream.chains) {
        const auto& [id, source] = chains.polymer;
        if (std::ranges::find(known, id) == known.end())
            diagnostics.add(source, fmt::format("{}.chains names \"{}\", which is not a polymer{}", path, id,
                                                suggestion(id, known)));
        check_segments(input, chains, diagnostics);
    }
}

// A component has one source of its flow.
void check_sources_of_flows(const Stream& stream, Diagnostics& diagnostics)
{
    std::vector<const PlacedName*> all;
    for (const auto& flow : stream.flows) all.push_back(&flow.component);
    for (const auto& flow : stream.mass_flows) all.push_back(&flow.component);
    for (const auto& chains : stream.chains) all.push_back(&chains.polymer);
    for (auto second = all.begin(); second != all.end(); ++second)
        for (auto first = all.begin(); first != second; ++first)
            if ((*first)->id == (*second)->id)
                diagnostics.add((*second)->source,
                                fmt::format("{} and {} are both given; expected one of the two",
                                            (*second)->source.key, (*first)->source.key));
}

class MixCheck {
public:
    MixCheck(const Case& input, Diagnostics& diagnostics) : input_(input), diagnostics_(diagnostics)
    {
        for (const auto& stream : input.streams) names_.push_back(stream.name.id);
    }

    // Every stream that the mix of this one leads to; each cycle is reported once.
    void follow(const Stream& stream)
    {
        if (!stream.mix || std::ranges::find(done_, &stream) != done_.end()) return;
        if (const auto start = std::ranges::find(path_, &stream); start != path_.end())
            return report_cycle({start, path_.end()});
        if (path_.size() == deepest_nesting)
            return diagnostics_.add(stream.mix->source,
                                    fmt::format("{} is the end of a chain of more than {} mixes",
                                                stream.mix->source.key, deepest_nesting));
        path_.push_back(&stream);
        for (const auto& part : stream.mix->parts) follow(part.component, *stream.mix);
        path_.pop_back();
        done_.push_back(&stream);
    }

private:
    void follow(const PlacedName& name, const Mix& mix)
    {
        const auto found = std::ranges::find(names_, name.id);
        if (found != names_.end())
            return follow(input_.streams[static_cast<std::size_t>(found - names_.begin())]);
        diagnostics_.add(name.source, fmt::format("{} names \"{}\", which is not a stream{}", mix.source.key,
                                                  name.id, suggestion(name.id, names_)));
    }

    void report_cycle(const std::vector<const Stream*>& cycle)
    {
        std::vector<std::string_view> names;
        names.reserve(cycle.size() + 1);
        for (const auto* stream : cycle) names.emplace_back(stream->name.id);
        names.emplace_back(cycle.front()->name.id);
        const auto& source = cycle.front()->mix->source;
        diagnostics_.add(source,
                         fmt::format("{} leads back to its own stream: {}; expected streams that can be "
                                     "computed one after another",
                                     source.key, fmt::join(names, ", ")));
    }

    const Case& input_;
    Diagnostics& diagnostics_;
    std::vector<std::string_view> names_;
    std::vector<const Stream*> path_;
    std::vector<const Stream*> done_;
};

}  // namespace

void check_streams(const Case& input, Diagnostics& diagnostics)
{
    MixCheck mixes{input, diagnostics};
    for (const auto& stream : input.streams) {
        const auto path = "streams." + stream.name.id;
        for (const auto& flow : stream.flows)
            check_component(input, flow.component, path + ".flows", diagnostics);
        for (const auto& flow : stream.mass_flows)
            check_component(input, flow.component, path + ".mass_flows", diagnostics);
        check_chains(input, stream, path, diagnostics);
        check_sources_of_flows(stream, diagnostics);
        check_attributes(input, stream, path, diagnostics);
        mixes.follow(stream);
    }
}

}  // namespace app
