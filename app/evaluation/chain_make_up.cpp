#include "app/evaluation/chain_make_up.h"

#include <polyprops/polyprops.h>

namespace app {

namespace {

using Reals = std::vector<double>;

// The routines that make chain weights of a segment-count matrix, and those that make them of attributes.
using FromCounts = void(const Int* n, const Int* idx, const Int* ld, const double* mw, const Int* nseg,
                        const Int* iseg, const Int* iflag, const double* scm, double* out);
using FromAttributes = void(const Int* selector, const Int* n, const Int* idx, double* out);

void ask(FromCounts& routine, const StreamList& list, const std::vector<Int>& chains, Reals& out)
{
    const auto n = static_cast<Int>(chains.size());
    const auto segments = list.counts.segment_count();
    routine(&n, chains.data(), &list.counts.leading_dimension, list.molecular_weight.data(), &segments,
            list.counts.segments.data(), list.counts.is_chain.data(), list.counts.counts.data(), out.data());
}

Reals ask(FromAttributes& routine, const std::vector<Int>& chains)
{
    Reals out(chains.size());
    const Int selector = 1;
    const auto n = static_cast<Int>(chains.size());
    routine(&selector, &n, chains.data(), out.data());
    return out;
}

// POLY_GETMWS answers by component index, the others by position.
Reals mean_segment_weights(const StreamList& list, const std::vector<Int>& chains)
{
    Reals by_component(list.molecular_weight.size());
    ask(POLY_GETMWS, list, chains, by_component);
    Reals weights;
    for (const Int c : chains) weights.push_back(by_component[static_cast<std::size_t>(c - 1)]);
    return weights;
}

Reals by_position(FromCounts& routine, const StreamList& list, const std::vector<Int>& chains)
{
    Reals weights(chains.size());
    ask(routine, list, chains, weights);
    return weights;
}

double relative_difference(double value, double reference)
{
    if (value == reference) return 0;
    return (value - reference) / (reference == 0 ? value : reference);
}

}  // namespace

SegmentCountMatrix segment_counts(const StreamList& list, const minihost::Host& host)
{
    SegmentCountMatrix matrix;
    for (const Int s : list.counts.segments) matrix.segments.push_back(host.components().at(s).id);
    for (const Int c : list.chains()) {
        ChainMakeUp chain{host.components().at(c).id, {}};
        for (const Int s : list.counts.segments) chain.counts.push_back(list.counts.of(c, s));
        matrix.chains.push_back(std::move(chain));
    }
    return matrix;
}

std::vector<WeightComparison> chain_weights(const StreamList& list, const minihost::Host& host)
{
    const auto chains = list.chains();
    const struct {
        const char* average;
        Reals from_counts;
        Reals from_attributes;
    } averages[] = {
        {"mean_segment_weight", mean_segment_weights(list, chains), ask(POLY_GETMRF, chains)},
        {"mn", by_position(POLY_GETMWP, list, chains), ask(POLY_GETMWN, chains)},
        {"mw", by_position(POLY_GETWWP, list, chains), ask(POLY_GETMWW, chains)},
    };
    std::vector<WeightComparison> found;
    for (std::size_t i = 0; i < chains.size(); ++i)
        for (const auto& [average, counts, attributes] : averages)
            found.push_back({host.components().at(chains[i]).id, average, counts[i], attributes[i],
                             relative_difference(counts[i], attributes[i])});
    return found;
}

}  // namespace app
