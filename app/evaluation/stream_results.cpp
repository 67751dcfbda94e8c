#include "app/evaluation/stream_results.h"

#include "app/evaluation/chain_length_models.h"
#include "app/routines/chain_averages.h"
#include "minihost/attributes.h"
#include "minihost/polymer_input.h"

namespace app {

namespace {

using minihost::Host;

// A moment of a component; 0 where it is not carried or not given.
double moment(const minihost::StreamView& stream, routines::Component component, std::string_view name,
              Host& host)
{
    const auto* entry = host.attributes().find(component.index, name);
    return entry ? stream.values[stream.first_flow.front() + entry->offset - 1] : 0;
}

std::optional<double> z_average(const minihost::StreamView& stream, routines::Component component,
                                double mean_segment_weight, Host& host)
{
    const double second = moment(stream, component, "SMOM", host);
    const double third = moment(stream, component, "TMOM", host);
    if (!(second > 0 && third > 0)) return {};
    return third / second * mean_segment_weight;
}

// A dispersity below 1 belongs to no distribution.
std::optional<double> viscosity_average(const ChainAverages& averages, std::optional<double> exponent)
{
    constexpr double rounding = 1e-9;
    if (!exponent || !(averages.mn > 0) || !(averages.mw >= averages.mn * (1 - rounding))) return {};
    return schulz_zimm_viscosity_average(averages.mn, averages.mw / averages.mn, *exponent);
}

std::vector<ChainAverages> chain_averages(const std::string& name, const StreamList& list, const Case& input,
                                          Host& host)
{
    const auto dpn = routines::degrees_of_polymerization(list.components);
    const auto mrf = routines::mean_segment_weights(list.components);
    const auto mn = routines::number_average_molecular_weights(list.components);
    const auto mw = routines::weight_average_molecular_weights(list.components);
    const auto pdi = routines::polydispersity_indices(list.components);
    const auto& stream = host.streams().view(name);
    std::vector<ChainAverages> averages;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const auto& component = host.components().at(list.components[i].index);
        averages.push_back({component.id,
                            component.component_class,
                            list.mole_flow[i],
                            dpn[i],
                            mrf[i],
                            mn[i],
                            mw[i],
                            pdi[i],
                            z_average(stream, list.components[i], mrf[i], host),
                            {}});
        averages.back().mv =
            viscosity_average(averages.back(), input.find(component.id)->mark_houwink_exponent);
    }
    return averages;
}

std::vector<SegmentShare> segment_shares(const routines::Components& chains, Host& host)
{
    const auto segments = minihost::segment_ids(host);
    if (segments.empty()) return {};
    const auto mass = routines::segment_mass_fractions(chains, segments.size());
    std::vector<SegmentShare> shares;
    for (std::size_t i = 0; i < chains.size(); ++i) {
        const auto mole = routines::segment_mole_fractions(chains[i], segments.size());
        for (std::size_t s = 0; s < segments.size(); ++s)
            shares.push_back({host.components().at(chains[i].index).id, segments[s], mole[s],
                              mass[i * segments.size() + s]});
    }
    return shares;
}

std::vector<Crystallinity> crystallinities(const StreamList& list, const Host& host)
{
    const auto values = routines::crystallinity_parameters(list.components);
    std::vector<Crystallinity> given;
    for (std::size_t i = 0; i < list.size(); ++i)
        if (const auto& component = host.components().at(list.components[i].index); component.cry)
            given.push_back({component.id, values[i]});
    return given;
}

StreamResults evaluate(const std::string& name, const Case& input, Host& host)
{
    const auto list = list_stream(name, host);
    return {name,
            chain_averages(name, list, input, host),
            segment_shares(list.chains(), host),
            compositions(list, host),
            segment_count_matrix(list, host),
            chain_average_comparisons(list, host),
            chain_properties(input, list, host),
            crystallinities(list, host)};
}

}  // namespace

std::vector<StreamResults> evaluate_streams(const Case& input, Host& host)
{
    std::vector<StreamResults> results;
    for (const auto& stream : input.streams) results.push_back(evaluate(stream.name.id, input, host));
    return results;
}

}  // namespace app
