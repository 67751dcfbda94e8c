#include "app/evaluation/chain_make_up.h"

#include "app/routines/chain_averages.h"

namespace app {

namespace {

double relative_difference(double value, double reference)
{
    if (value == reference) return 0;
    return (value - reference) / (reference == 0 ? value : reference);
}

}  // namespace

SegmentCountMatrix segment_count_matrix(const StreamList& list, const minihost::Host& host)
{
    SegmentCountMatrix matrix;
    for (const auto s : list.counts.segments) matrix.segments.push_back(host.components().at(s.index).id);
    for (const auto c : list.chains()) {
        ChainMakeUp chain{host.components().at(c.index).id, {}};
        for (const auto s : list.counts.segments) chain.counts.push_back(list.counts.of(c, s));
        matrix.chains.push_back(std::move(chain));
    }
    return matrix;
}

std::vector<ChainAverageComparison> chain_average_comparisons(const StreamList& list,
                                                              const minihost::Host& host)
{
    const auto chains = list.chains();
    const auto& counts = list.counts;
    const auto& mw = list.molecular_weight;
    const struct {
        const char* average;
        std::vector<double> from_counts;
        std::vector<double> from_attributes;
    } averages[] = {
        {"mean_segment_weight", routines::mean_segment_weights(counts, chains, mw),
         routines::mean_segment_weights(chains)},
        {"mn", routines::number_average_molecular_weights(counts, chains, mw),
         routines::number_average_molecular_weights(chains)},
        {"mw", routines::weight_average_molecular_weights(counts, chains, mw),
         routines::weight_average_molecular_weights(chains)},
    };
    std::vector<ChainAverageComparison> found;
    for (std::size_t i = 0; i < chains.size(); ++i)
        for (const auto& [average, from_counts, from_attributes] : averages)
            found.push_back({host.components().at(chains[i].index).id, average, from_counts[i],
                             from_attributes[i], relative_difference(from_counts[i], from_attributes[i])});
    return found;
}

}  // namespace app
