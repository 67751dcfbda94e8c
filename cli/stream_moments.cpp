#include "cli/stream_moments.h"

#include <polyprops/polyprops.h>

#include <algorithm>

namespace cli {

namespace {

using minihost::Host;
using minihost::Int;

bool has_site_moments(Host& host)
{
    if (host.dimensions().sites < 1) return false;
    for (Int c = 1; c <= host.components().count(); ++c)
        if (host.attributes().find(c, "SZMOM")) return true;
    return false;
}

std::size_t entries(Host& host)
{
    return has_site_moments(host) ? static_cast<std::size_t>(host.dimensions().sites) + 1 : 1;
}

std::vector<double> molecular_weights(const Host& host)
{
    std::vector<double> weights;
    for (Int c = 1; c <= host.components().count(); ++c)
        weights.push_back(host.components().at(c).molecular_weight.value_or(0));
    return weights;
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

}  // namespace cli
