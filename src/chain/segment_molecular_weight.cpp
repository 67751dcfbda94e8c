// Mean segment molecular weight: DPN · MRF is the number-average molecular weight.
//
//   MRF = Σ MW(s) · f(s) / Σ f(s)     f: segment fractions or flows of a polymer, segment counts of an
//   oligomer
//
// A "MWSEG" attribute is preferred. Only its place in the oligomer list makes a component an oligomer, and a
// polymer that is listed there takes its make-up too.
#include "chain/segment_molecular_weight.h"

#include "chain/listed.h"
#include "polyprops/polyprops.h"

namespace polyprops::chain {

namespace {

struct WeightedSum {
    Real amount = 0.0;
    Real mass = 0.0;

    void add(Real segments, Real molecular_weight)
    {
        amount += segments;
        mass += molecular_weight * segments;
    }
};

Real plain_mean(const PolymerData& data, Real no_segments)
{
    const Int n = data.segments().count();
    if (n < 1) return no_segments;
    Real sum = 0.0;
    for (Int s = 1; s <= n; ++s) sum += data.segment_molecular_weight(s);
    return sum / static_cast<Real>(n);
}

Real molecular_weight_from_fractions(const PolymerData& data, const Species& polymer, Real no_segments)
{
    Attribute fractions = polymer.attribute(AttributeName::sfrac);
    if (fractions.has_offset_zero()) fractions = polymer.attribute(AttributeName::sflow);
    const Int n = data.segments().count();
    WeightedSum sum;
    for (Int s = 1; s <= n; ++s) {
        const Real f = fractions(s);
        sum.add(is_missing(f) ? 1.0 / static_cast<Real>(n) : f, data.segment_molecular_weight(s));
    }
    return above(sum.amount, zero_bound()) ? sum.mass / sum.amount : plain_mean(data, no_segments);
}

Real molecular_weight_from_make_up(const PolymerData& data, Int column)
{
    WeightedSum sum;
    for (Int s = 1; s <= data.segments().count(); ++s)
        sum.add(data.oligomers().segments(s, column), data.segment_molecular_weight(s));
    return above(sum.amount, 0.0) ? sum.mass / sum.amount : sum.mass;
}

}  // namespace

Real mean_segment_molecular_weight(const PolymerData& data, const Species& species)
{
    const Real own_molecular_weight = molecular_weight(species.component());
    if (!data.lists_chains()) return own_molecular_weight;
    if (species.is_polymer()) {
        const Real given = species.attribute(AttributeName::mwseg).value();
        if (above(given, 1.0) && below(given, missing_value_bound())) return given;
    }
    if (const Int column = data.oligomers().column_of(species.component()); column > 0)
        return molecular_weight_from_make_up(data, column);
    return species.is_polymer() ? molecular_weight_from_fractions(data, species, own_molecular_weight)
                                : own_molecular_weight;
}

}  // namespace polyprops::chain

using namespace polyprops;

void POLY_GETMRF(const Int* SEL, const Int* N, const Int* IDX, Real* MRF)
{
    chain::average_each(chain::mean_segment_molecular_weight_parts, {*SEL}, {*N, IDX}, MRF,
                        chain::mean_segment_molecular_weight);
}
