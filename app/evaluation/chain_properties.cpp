#include "app/evaluation/chain_properties.h"

#include <algorithm>
#include <limits>

namespace app {

namespace {

using minihost::Host;
using routines::Component;
using routines::Reals;

constexpr double unknown = std::numeric_limits<double>::quiet_NaN();

// By component index; what is not given must not pass for a number.
Reals by_component(const std::vector<ComponentValue>& values, const Host& host)
{
    Reals all(static_cast<std::size_t>(host.components().count()), unknown);
    for (const auto& [component, value] : values)
        all[static_cast<std::size_t>(host.components().index(component.id) - 1)] = value;
    return all;
}

bool has_segments(const StreamList& list, Component chain)
{
    return std::ranges::any_of(list.counts.segments,
                               [&](Component s) { return list.counts.of(chain, s) > 0; });
}

double value_of(const Property& property, const StreamList& list, Component chain, const Host& host)
{
    const auto& id = host.components().at(chain.index).id;
    const auto own =
        std::ranges::find(property.own_values, id, [](const ComponentValue& v) { return v.component.id; });
    if (own != property.own_values.end()) return own->value;
    if (!has_segments(list, chain)) return unknown;
    const auto values = by_component(property.segment_values, host);
    if (property.averaging == Averaging::number)
        return routines::number_average(list.counts, chain, values, unknown);
    const auto weights = property.averaging == Averaging::mass ? list.molecular_weight
                                                               : by_component(property.weight_factors, host);
    return routines::weighted_average(list.counts, chain, values, weights, unknown);
}

}  // namespace

std::vector<ChainProperties> chain_properties(const Case& input, const StreamList& list, const Host& host)
{
    std::vector<ChainProperties> all;
    for (const auto c : list.chains()) {
        const auto& component = host.components().at(c.index);
        ChainProperties found{component.id, component.component_class, {}};
        for (const auto& property : input.properties)
            found.values.push_back(value_of(property, list, c, host));
        all.push_back(std::move(found));
    }
    return all;
}

}  // namespace app
