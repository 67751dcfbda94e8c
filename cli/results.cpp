#include "cli/results.h"

#include <polyprops/polyprops.h>

#include <algorithm>

#include "cli/built.h"

namespace cli {

namespace {

using minihost::Host;
using minihost::Int;

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

// Components with a flow, in component order.
std::vector<Int> flowing(const minihost::StreamView& stream, const Host& host)
{
    std::vector<Int> components;
    for (Int c = 1; c <= host.components().count(); ++c)
        if (stream.values[stream.first_flow.front() + c - 2] > 0) components.push_back(c);
    return components;
}

std::vector<ChainAverages> chain_averages(const minihost::StreamView& stream,
                                          const std::vector<Int>& components, const Host& host)
{
    const auto dpn = ask(POLY_GETDPN, components);
    const auto mrf = ask(POLY_GETMRF, components);
    const auto mwn = ask(POLY_GETMWN, components);
    const auto mww = ask(POLY_GETMWW, components);
    const auto pdi = ask(POLY_GETPDI, components);
    std::vector<ChainAverages> averages;
    for (std::size_t i = 0; i < components.size(); ++i) {
        const auto& component = host.components().at(components[i]);
        const double flow = stream.values[stream.first_flow.front() + components[i] - 2];
        averages.push_back(
            {component.id, component.component_class, flow, dpn[i], mrf[i], mwn[i], mww[i], pdi[i]});
    }
    return averages;
}

std::vector<SegmentShare> segment_shares(const std::vector<Int>& chains, Host& host)
{
    const auto segments = segment_list(host);
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

StreamResults evaluate(const std::string& name, Host& host)
{
    host.select_stream(name);
    const auto& stream = host.streams().view(name);
    const auto components = flowing(stream, host);
    std::vector<Int> chains;
    std::ranges::copy_if(components, std::back_inserter(chains), [&](Int c) {
        return host.components().is(ComponentClass::polymer, c) ||
               host.components().is(ComponentClass::oligomer, c);
    });
    return {name, chain_averages(stream, components, host), segment_shares(chains, host)};
}

}  // namespace

std::vector<StreamResults> evaluate(const Case& input, Host& host)
{
    std::vector<StreamResults> results;
    for (const auto& stream : input.streams) results.push_back(evaluate(stream.name.id, host));
    return results;
}

}  // namespace cli
