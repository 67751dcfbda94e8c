#include "app/evaluation/stream_results.h"

#include <polyprops/polyprops.h>

#include "minihost/polymer_input.h"

namespace app {

namespace {

using minihost::Host;

constexpr Int selector = 1;

// The routines that take a component list and give one real per entry.
using ListRoutine = void(const Int* selector, const Int* n, const Int* idx, double* values);

std::vector<double> ask(ListRoutine& routine, const std::vector<Int>& components)
{
    std::vector<double> values(components.size());
    const auto n = static_cast<Int>(components.size());
    routine(&selector, &n, components.data(), values.data());
    return values;
}

std::vector<ChainAverages> chain_averages(const StreamList& list, const Host& host)
{
    const auto dpn = ask(POLY_GETDPN, list.index);
    const auto mrf = ask(POLY_GETMRF, list.index);
    const auto mwn = ask(POLY_GETMWN, list.index);
    const auto mww = ask(POLY_GETMWW, list.index);
    const auto pdi = ask(POLY_GETPDI, list.index);
    std::vector<ChainAverages> averages;
    for (std::size_t i = 0; i < list.index.size(); ++i) {
        const auto& component = host.components().at(list.index[i]);
        averages.push_back({component.id, component.component_class, list.mole_flow[i], dpn[i], mrf[i],
                            mwn[i], mww[i], pdi[i]});
    }
    return averages;
}

std::vector<SegmentShare> segment_shares(const std::vector<Int>& chains, Host& host)
{
    const auto segments = minihost::segment_ids(host);
    if (segments.empty()) return {};
    const auto n = static_cast<Int>(chains.size());
    const auto rows = static_cast<Int>(segments.size());
    std::vector<double> mass(chains.size() * segments.size());
    POLY_SWFVEC(&selector, &n, &rows, chains.data(), mass.data());
    std::vector<SegmentShare> shares;
    for (std::size_t i = 0; i < chains.size(); ++i) {
        std::vector<double> mole(segments.size());
        POLY_GETSMF(&selector, &chains[i], mole.data());
        for (std::size_t s = 0; s < segments.size(); ++s)
            shares.push_back(
                {host.components().at(chains[i]).id, segments[s], mole[s], mass[i * segments.size() + s]});
    }
    return shares;
}

StreamResults evaluate(const std::string& name, const Case& input, Host& host)
{
    const auto list = list_stream(name, host);
    return {name,
            chain_averages(list, host),
            segment_shares(list.chains(), host),
            compositions(list, host),
            segment_counts(list, host),
            chain_weights(list, host),
            chain_properties(input, list, host)};
}

}  // namespace

Results evaluate(const Case& input, Host& host)
{
    Results results{{}, evaluate_reactors(input, host)};
    for (const auto& stream : input.streams) results.streams.push_back(evaluate(stream.name.id, input, host));
    return results;
}

}  // namespace app
