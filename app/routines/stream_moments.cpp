#include "app/routines/stream_moments.h"

#include <polyprops/polyprops.h>

namespace app::routines {

namespace {

PolymerMade beyond(const double* inlet, const minihost::StreamView& outlet, const Reals& molecular_weights,
                   std::size_t sites)
{
    const auto substreams = static_cast<Int>(outlet.first_flow.size());
    const auto entries = static_cast<Int>(sites) + 1;
    const Reals none(sites + 1);
    PolymerMade made{none, none, none, none, none, none, none};
    POLY_POLYRESULTS(inlet, outlet.values, &substreams, outlet.first_flow.data(), outlet.types.data(),
                     molecular_weights.data(), &entries, made.mass.data(), made.mean_segment_weight.data(),
                     made.mn.data(), made.mw.data(), made.dpn.data(), made.dpw.data(), made.pdi.data());
    return made;
}

}  // namespace

StreamMoments stream_moments(const minihost::StreamView& stream, const Reals& molecular_weights,
                             std::size_t sites)
{
    const auto substreams = static_cast<Int>(stream.types.size());
    const auto entries = static_cast<Int>(sites) + 1;
    const Reals none(sites + 1);
    StreamMoments moments{none, none, none, none};
    POLY_GETMOMENTS(stream.values, &substreams, stream.first_flow.data(), stream.types.data(),
                    molecular_weights.data(), &entries, moments.zeroth.data(), moments.first.data(),
                    moments.second.data(), moments.mass.data());
    return moments;
}

// Vectors are added as a whole: of their words the routine reads only flows, moments and segment flows.
PolymerMade polymer_made(const std::vector<minihost::StreamView>& inlets, const minihost::StreamView& outlet,
                         const Reals& molecular_weights, std::size_t sites)
{
    Reals sum(static_cast<std::size_t>(outlet.length));
    for (const auto& inlet : inlets)
        for (std::size_t i = 0; i < sum.size(); ++i) sum[i] += inlet.values[i];
    return beyond(sum.data(), outlet, molecular_weights, sites);
}

PolymerMade polymer_held(const minihost::StreamView& stream, const Reals& molecular_weights,
                         std::size_t sites)
{
    const Reals empty(static_cast<std::size_t>(stream.length));
    return beyond(empty.data(), stream, molecular_weights, sites);
}

}  // namespace app::routines
