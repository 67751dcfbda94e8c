#include "app/evaluation/stream_moments.h"

#include <polyprops/polyprops.h>

#include "app/evaluation/reactors.h"
#include "app/evaluation/stream_list.h"

namespace app {

namespace {

using minihost::Host;

std::size_t entries(Host& host)
{
    return static_cast<std::size_t>(site_types(host)) + 1;
}

}  // namespace

StreamMoments stream_moments(const std::string& stream, Host& host)
{
    const auto& view = host.streams().view(stream);
    const auto weights = molecular_weights(host);
    const auto n = entries(host);
    const auto substreams = static_cast<Int>(view.types.size());
    const auto results = static_cast<Int>(n);
    const std::vector<double> none(n);
    StreamMoments moments{none, none, none, none};
    POLY_GETMOMENTS(view.values, &substreams, view.first_flow.data(), view.types.data(), weights.data(),
                    &results, moments.zeroth.data(), moments.first.data(), moments.second.data(),
                    moments.mass.data());
    return moments;
}

// What the stream holds is what it holds beyond an empty one.
PolymerResults polymer_results(const std::string& stream, Host& host)
{
    const auto& view = host.streams().view(stream);
    const auto weights = molecular_weights(host);
    const std::vector<double> empty(static_cast<std::size_t>(view.length));
    const auto n = entries(host);
    const auto substreams = static_cast<Int>(view.types.size());
    const auto results = static_cast<Int>(n);
    const std::vector<double> none(n);
    PolymerResults r{none, none, none, none, none, none, none};
    POLY_POLYRESULTS(empty.data(), view.values, &substreams, view.first_flow.data(), view.types.data(),
                     weights.data(), &results, r.mass.data(), r.segment_weight.data(), r.mn.data(),
                     r.mw.data(), r.dpn.data(), r.dpw.data(), r.pdi.data());
    return r;
}

}  // namespace app
