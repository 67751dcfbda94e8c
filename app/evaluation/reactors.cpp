#include "app/evaluation/reactors.h"

#include <algorithm>

#include "app/evaluation/stream_list.h"
#include "app/routines/stream_moments.h"

namespace app {

namespace {

using minihost::Host;

constexpr std::string_view site_attributes[] = {"SZMOM", "SSMOM", "SSFLOW"};

bool carries_site_attributes(Int component, Host& host)
{
    return std::ranges::all_of(site_attributes,
                               [&](auto name) { return host.attributes().find(component, name) != nullptr; });
}

ReactorResults evaluate(const Reactor& reactor, std::size_t sites, Host& host)
{
    ReactorResults results{reactor.name.id, {}, reactor.outlet.id, {}};
    std::vector<minihost::StreamView> inlets;
    for (const auto& inlet : reactor.inlets) {
        results.inlets.push_back(inlet.id);
        inlets.push_back(host.streams().view(inlet.id));
    }
    const auto made = routines::polymer_made(inlets, host.streams().view(reactor.outlet.id),
                                             molecular_weights(host), sites);
    for (std::size_t t = 0; t <= sites; ++t)
        results.made.push_back({t < sites ? std::to_string(t + 1) : "total", made.mass[t],
                                made.mean_segment_weight[t], made.mn[t], made.mw[t], made.dpn[t], made.dpw[t],
                                made.pdi[t]});
    return results;
}

}  // namespace

std::size_t site_types(Host& host)
{
    bool has_polymers = false;
    for (Int c = 1; c <= host.components().count(); ++c) {
        if (!host.components().is(ComponentClass::polymer, c)) continue;
        has_polymers = true;
        if (!carries_site_attributes(c, host)) return 0;
    }
    return has_polymers ? static_cast<std::size_t>(host.dimensions().sites) : 0;
}

std::vector<ReactorResults> evaluate_reactors(const Case& input, Host& host)
{
    std::vector<ReactorResults> results;
    const auto sites = input.reactors.empty() ? 0 : site_types(host);
    for (const auto& reactor : input.reactors) results.push_back(evaluate(reactor, sites, host));
    return results;
}

}  // namespace app
