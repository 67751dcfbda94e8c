#include "app/evaluation/chain_properties.h"

#include <polyprops/polyprops.h>

#include <algorithm>
#include <limits>

namespace app {

namespace {

using minihost::Host;
using Reals = std::vector<double>;

constexpr double unknown = std::numeric_limits<double>::quiet_NaN();

// By component index; what is not given must not pass for a number.
Reals by_component(const std::vector<ComponentValue>& values, const Host& host)
{
    Reals all(static_cast<std::size_t>(host.components().count()), unknown);
    for (const auto& [component, value] : values)
        all[static_cast<std::size_t>(host.components().index(component.id) - 1)] = value;
    return all;
}

double average_by_number(const Reals& property, const StreamList& list, Int chain)
{
    const auto& counts = list.counts;
    const Int segments = counts.segment_count();
    const Int one = 1;
    double average = unknown;
    POLY_GETMAVG(&counts.leading_dimension, property.data(), &segments, counts.segments.data(),
                 counts.counts.data(), &one, &chain, &average, counts.is_chain.data());
    return average;
}

double weighted_average(const Reals& property, const Reals& weights, const StreamList& list, Int chain)
{
    const auto& counts = list.counts;
    const Int segments = counts.segment_count();
    double average = unknown;
    POLY_GETSAVG(&counts.leading_dimension, weights.data(), &segments, counts.segments.data(),
                 counts.counts.data(), &chain, property.data(), &average);
    return average;
}

bool has_segments(const StreamList& list, Int chain)
{
    return std::ranges::any_of(list.counts.segments, [&](Int s) { return list.counts.of(chain, s) > 0; });
}

double value_of(const Property& property, const StreamList& list, Int chain, const Host& host)
{
    const auto& id = host.components().at(chain).id;
    const auto own =
        std::ranges::find(property.own_values, id, [](const ComponentValue& v) { return v.component.id; });
    if (own != property.own_values.end()) return own->value;
    if (!has_segments(list, chain)) return unknown;
    const auto values = by_component(property.segment_values, host);
    switch (property.averaging) {
        case Averaging::number:
            return average_by_number(values, list, chain);
        case Averaging::mass:
            return weighted_average(values, list.molecular_weight, list, chain);
        case Averaging::weight_factors:
            return weighted_average(values, by_component(property.weight_factors, host), list, chain);
    }
    return unknown;
}

}  // namespace

std::vector<ChainProperties> chain_properties(const Case& input, const StreamList& list, const Host& host)
{
    std::vector<ChainProperties> all;
    for (const Int c : list.chains()) {
        const auto& component = host.components().at(c);
        ChainProperties found{component.id, component.component_class, {}};
        for (const auto& property : input.properties)
            found.values.push_back(value_of(property, list, c, host));
        all.push_back(std::move(found));
    }
    return all;
}

}  // namespace app
