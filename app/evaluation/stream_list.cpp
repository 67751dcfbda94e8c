#include "app/evaluation/stream_list.h"

#include <polyprops/polyprops.h>

#include <algorithm>

namespace app {

namespace {

std::size_t at(Int index)
{
    return static_cast<std::size_t>(index - 1);
}

// Straight from the attributes, not from the chain averages, so that the two can be compared.
SegmentCounts count_segments(const std::vector<Int>& index, Int components)
{
    const auto size = static_cast<std::size_t>(components);
    SegmentCounts found{components, std::vector<Int>(size), std::vector<Int>(size), {}};
    found.counts.resize(size * size);
    // A list without chains leaves everything but their number untouched.
    for (const Int c : index) found.counts[at(c)] = 1;
    const Int selector = 1;
    const auto n = static_cast<Int>(index.size());
    Int segments = 0;
    Int chains = 0;
    std::vector<double> dpn(size);
    POLY_GETPALL(&selector, &n, index.data(), &components, &segments, found.segments.data(), &chains,
                 found.is_chain.data(), found.counts.data(), dpn.data());
    found.segments.resize(static_cast<std::size_t>(segments));
    return found;
}

}  // namespace

double SegmentCounts::of(Int chain, Int segment) const
{
    return counts[at(chain) + at(segment) * static_cast<std::size_t>(leading_dimension)];
}

std::vector<Int> StreamList::chains() const
{
    std::vector<Int> chains;
    std::ranges::copy_if(index, std::back_inserter(chains),
                         [&](Int c) { return counts.is_chain[at(c)] == 1; });
    return chains;
}

std::vector<double> molecular_weights(const minihost::Host& host)
{
    std::vector<double> weights;
    for (Int c = 1; c <= host.components().count(); ++c)
        weights.push_back(host.components().at(c).molecular_weight.value_or(0));
    return weights;
}

StreamList list_stream(const std::string& name, minihost::Host& host)
{
    host.select_stream(name);
    const auto& stream = host.streams().view(name);
    const auto* first = stream.values + stream.first_flow.front() - 1;
    StreamList list;
    list.flow_of_component.assign(first, first + host.components().count());
    for (Int c = 1; c <= host.components().count(); ++c) {
        if (!(list.flow_of_component[at(c)] > 0)) continue;
        list.index.push_back(c);
        list.mole_flow.push_back(list.flow_of_component[at(c)]);
    }
    list.molecular_weight = molecular_weights(host);
    list.counts = count_segments(list.index, host.components().count());
    return list;
}

}  // namespace app
