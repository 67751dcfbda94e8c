#include "app/evaluation/stream_list.h"

#include <fmt/format.h>

#include <algorithm>

#include "app/io/memory.h"

namespace app {

routines::Components StreamList::chains() const
{
    routines::Components chains;
    std::ranges::copy_if(components, std::back_inserter(chains), [&](auto c) { return counts.is_chain(c); });
    return chains;
}

std::vector<double> StreamList::molecular_weights_of(const routines::Components& listed) const
{
    std::vector<double> found;
    found.reserve(listed.size());
    for (const auto c : listed) found.push_back(molecular_weight[routines::at(c)]);
    return found;
}

std::vector<double> molecular_weights(const minihost::Host& host)
{
    std::vector<double> found;
    for (routines::Int c = 1; c <= host.components().count(); ++c)
        found.push_back(host.components().at(c).molecular_weight.value_or(0));
    return found;
}

namespace {

bool has_chains(const routines::Components& list, const minihost::Host& host)
{
    return std::ranges::any_of(list, [&](auto c) {
        const auto kind = host.components().at(c.index).component_class;
        return kind == minihost::ComponentClass::polymer || kind == minihost::ComponentClass::oligomer;
    });
}

// The matrix has a row and a column for each component of the case; few streams need it.
routines::SegmentCounts counts_of(const std::string& name, const routines::Components& list,
                                  std::size_t components, const minihost::Host& host)
{
    if (!has_chains(list, host)) return routines::no_segment_counts(components);
    const auto count = static_cast<double>(components);
    require_memory(count * count * sizeof(double),
                   fmt::format("streams.{}: the segment counts of {} components", name, components));
    return routines::segment_counts(list, components);
}

}  // namespace

StreamList list_stream(const std::string& name, minihost::Host& host)
{
    host.select_stream(name);
    const auto& stream = host.streams().view(name);
    const auto* first = stream.values + stream.first_flow.front() - 1;
    const auto component_count = static_cast<std::size_t>(host.components().count());
    StreamList list;
    list.flow_of_component.assign(first, first + component_count);
    for (routines::Int c = 1; c <= host.components().count(); ++c) {
        const double flow = list.flow_of_component[routines::at({c})];
        if (!(flow > 0)) continue;
        list.components.push_back({c});
        list.mole_flow.push_back(flow);
    }
    list.molecular_weight = molecular_weights(host);
    list.counts = counts_of(name, list.components, component_count, host);
    return list;
}

}  // namespace app
