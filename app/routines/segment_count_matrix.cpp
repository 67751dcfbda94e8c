#include "app/routines/segment_count_matrix.h"

#include <polyprops/polyprops.h>

#include "app/routines/selector.h"

namespace app::routines {

namespace {

using FromCounts = void(const Int* n, const Int* idx, const Int* ld, const double* mw, const Int* nseg,
                        const Int* iseg, const Int* iflag, const double* scm, double* out);

void ask(FromCounts& routine, const SegmentCounts& counts, const Components& chains,
         const Reals& molecular_weights, Reals& out)
{
    const auto idx = indices(chains);
    const Int n = count(chains);
    const auto ld = static_cast<Int>(counts.components);
    const auto iseg = indices(counts.segments);
    const Int nseg = count(counts.segments);
    routine(&n, idx.data(), &ld, molecular_weights.data(), &nseg, iseg.data(), counts.chain_flags.data(),
            counts.counts.data(), out.data());
}

Reals by_position(FromCounts& routine, const SegmentCounts& counts, const Components& chains,
                  const Reals& molecular_weights)
{
    Reals out(chains.size());
    ask(routine, counts, chains, molecular_weights, out);
    return out;
}

}  // namespace

SegmentCounts segment_counts(const Components& list, std::size_t components)
{
    SegmentCounts found{components, {}, std::vector<Int>(components), Reals(components * components)};
    const auto idx = indices(list);
    const Int n = count(list);
    const auto nc = static_cast<Int>(components);
    std::vector<Int> iseg(components);
    Int nseg = 0;
    Int chains = 0;
    Reals dpn(components);
    POLY_GETPALL(&selected_stream, &n, idx.data(), &nc, &nseg, iseg.data(), &chains, found.chain_flags.data(),
                 found.counts.data(), dpn.data());
    for (Int s = 0; s < nseg; ++s) found.segments.push_back({iseg[static_cast<std::size_t>(s)]});
    return found;
}

SegmentCounts no_segment_counts(std::size_t components)
{
    return {components, {}, std::vector<Int>(components), Reals(components, 1.0)};
}

// POLY_GETMWS answers by component index, the others by position.
Reals mean_segment_weights(const SegmentCounts& counts, const Components& chains,
                           const Reals& molecular_weights)
{
    Reals by_component(counts.components);
    ask(POLY_GETMWS, counts, chains, molecular_weights, by_component);
    Reals listed;
    listed.reserve(chains.size());
    for (const auto c : chains) listed.push_back(by_component[at(c)]);
    return listed;
}

Reals number_average_molecular_weights(const SegmentCounts& counts, const Components& chains,
                                       const Reals& molecular_weights)
{
    return by_position(POLY_GETMWP, counts, chains, molecular_weights);
}

Reals weight_average_molecular_weights(const SegmentCounts& counts, const Components& chains,
                                       const Reals& molecular_weights)
{
    return by_position(POLY_GETWWP, counts, chains, molecular_weights);
}

double number_average(const SegmentCounts& counts, Component chain, const Reals& property, double otherwise)
{
    const auto ld = static_cast<Int>(counts.components);
    const auto iseg = indices(counts.segments);
    const Int nseg = count(counts.segments);
    const Int one = 1;
    double average = otherwise;
    POLY_GETMAVG(&ld, property.data(), &nseg, iseg.data(), counts.counts.data(), &one, &chain.index, &average,
                 counts.chain_flags.data());
    return average;
}

double weighted_average(const SegmentCounts& counts, Component chain, const Reals& property,
                        const Reals& weighting_factors, double otherwise)
{
    const auto ld = static_cast<Int>(counts.components);
    const auto iseg = indices(counts.segments);
    const Int nseg = count(counts.segments);
    double average = otherwise;
    POLY_GETSAVG(&ld, weighting_factors.data(), &nseg, iseg.data(), counts.counts.data(), &chain.index,
                 property.data(), &average);
    return average;
}

}  // namespace app::routines
