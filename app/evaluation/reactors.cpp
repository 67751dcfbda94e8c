#include "app/evaluation/reactors.h"

#include <polyprops/polyprops.h>

#include <algorithm>

#include "app/evaluation/stream_list.h"

namespace app {

namespace {

using minihost::Host;

constexpr std::string_view site_attributes[] = {"SZMOM", "SSMOM", "SSFLOW"};

bool carries_site_attributes(Int component, Host& host)
{
    return std::ranges::all_of(site_attributes,
                               [&](auto name) { return host.attributes().find(component, name) != nullptr; });
}

ReactorResults evaluate(const Reactor& reactor, Int sites, Host& host)
{
    const auto& inlet = host.streams().view(reactor.inlet.id);
    const auto& outlet = host.streams().view(reactor.outlet.id);
    const auto substreams = static_cast<Int>(inlet.first_flow.size());
    const auto weights = molecular_weights(host);
    const Int entries = sites + 1;
    const auto size = static_cast<std::size_t>(entries);
    std::vector<double> mass(size);
    std::vector<double> segment_weight(size);
    std::vector<double> mn(size);
    std::vector<double> mw(size);
    std::vector<double> dpn(size);
    std::vector<double> dpw(size);
    std::vector<double> pdi(size);
    POLY_POLYRESULTS(inlet.values, outlet.values, &substreams, inlet.first_flow.data(), inlet.types.data(),
                     weights.data(), &entries, mass.data(), segment_weight.data(), mn.data(), mw.data(),
                     dpn.data(), dpw.data(), pdi.data());
    ReactorResults results{reactor.name.id, reactor.inlet.id, reactor.outlet.id, {}};
    for (std::size_t t = 0; t < size; ++t)
        results.made.push_back({t + 1 < size ? std::to_string(t + 1) : "total", mass[t], segment_weight[t],
                                mn[t], mw[t], dpn[t], dpw[t], pdi[t]});
    return results;
}

}  // namespace

Int site_types(Host& host)
{
    bool has_polymers = false;
    for (Int c = 1; c <= host.components().count(); ++c) {
        if (!host.components().is(ComponentClass::polymer, c)) continue;
        has_polymers = true;
        if (!carries_site_attributes(c, host)) return 0;
    }
    return has_polymers ? host.dimensions().sites : 0;
}

std::vector<ReactorResults> evaluate_reactors(const Case& input, Host& host)
{
    std::vector<ReactorResults> results;
    const Int sites = input.reactors.empty() ? 0 : site_types(host);
    for (const auto& reactor : input.reactors) results.push_back(evaluate(reactor, sites, host));
    return results;
}

}  // namespace app
