// Number-average degree of polymerization: segments per chain.
//
//   DPN = F / Z          polymer: first over zeroth moment of its chain-length distribution
//   DPN = Σ count(s)     oligomer: segments of its make-up
//   DPN = Σ SCM(j, s)    from a segment-count matrix
//
// A "DPN" attribute is preferred to the moments, and a real DPN parameter to an oligomer's make-up.
#include "chain/degree_of_polymerization.h"

#include <algorithm>
#include <cmath>

#include "chain/listed.h"
#include "polyprops/polyprops.h"

namespace polyprops::chain {

namespace {

Real polymer_length(const PolymerData& data, const Species& polymer, Real parameter)
{
    const Attribute own = polymer.attribute(AttributeName::dpn);
    if (own.is_present()) {
        const Real value = own.value();
        return above(value, 1.0) && below(value, missing_value_bound()) ? value : parameter;
    }
    return length_from_moments(data, polymer, FirstMomentCounts::when_present);
}

}  // namespace

Real degree_of_polymerization_parameter(Component c)
{
    return ParameterVector::degree_of_polymerization().value_or(1.0, c);
}

bool counts_as_one(Real parameter)
{
    return below(std::abs(parameter - 1.0), 1e-10);
}

Real chain_count(const PolymerData& data, const Species& polymer)
{
    const Attribute zeroth_moment = polymer.attribute(AttributeName::zmom);
    if (zeroth_moment.is_present()) return zeroth_moment.value();
    const Attribute flows = polymer.attribute(AttributeName::sflow);
    const Int ends = std::min(data.end_segments().count(), data.segments().count());
    Real chains = 0.0;
    for (Int e = 1; e <= ends; ++e) chains += 0.5 * flows(e);
    return chains;
}

Real length_from_moments(const PolymerData& data, const Species& polymer, FirstMomentCounts first_moment)
{
    const Real chains = chain_count(data, polymer);
    const Attribute given = polymer.attribute(AttributeName::fmom);
    const bool counts = given.is_present() &&
                        (first_moment == FirstMomentCounts::when_present || at_least(given.value(), chains));
    const Real segments =
        counts ? given.value() : polymer.attribute(AttributeName::sflow).sum(data.segments().count());
    return above(chains, zero_bound()) ? at_least_one(segments / chains) : 1.0;
}

Real oligomer_length(const PolymerData& data, Int column)
{
    Real length = 0.0;
    for (Int s = 1; s <= data.segments().count(); ++s) length += data.oligomers().segments(s, column);
    return length;
}

Real degree_of_polymerization(const PolymerData& data, const Species& species)
{
    const Real parameter = degree_of_polymerization_parameter(species.component());
    if (!data.run_has_chains()) return parameter;
    if (species.is_polymer()) return at_least_one(polymer_length(data, species, parameter));
    if (species.is_oligomer() && counts_as_one(parameter)) {
        const Int column = data.oligomers().column_of(species.component());
        if (column > 0) return at_least_one(oligomer_length(data, column));
    }
    return at_least_one(parameter);
}

static void lengths_from_counts(SegmentCountMatrix<const Real> counts, const ComponentList& segments,
                                const ComponentList& components, FlagArray flags, Vector<Real> dpn)
{
    for (Int i = 1; i <= components.count(); ++i) {
        const Component j = components(i);
        dpn(i) = flags.is_flagged(j) ? counts.row_sum(j, segments) : counts.own_count(j);
    }
}

}  // namespace polyprops::chain

using namespace polyprops;

void POLY_GETDPN(const Int* SEL, const Int* N, const Int* IDX, Real* DPN)
{
    chain::average_each(chain::degree_of_polymerization_parts, {*SEL}, {*N, IDX}, DPN,
                        chain::degree_of_polymerization);
}

void POLY_GETDPN1(const Int* LD, const Int* NSEG, const Int* ISEG, const Real* SCM, const Int* N,
                  const Int* IDX, Real* DPN, const Int* IFLAG)
{
    chain::lengths_from_counts({SCM, *LD}, {*NSEG, ISEG}, {*N, IDX}, FlagArray{IFLAG}, Vector{DPN, *N});
}

void POLY_GETDPN2(const Int* LD, const Int* NSEG, const Int* ISEG, const Real* SCM, const Int* N,
                  const Int* IDX, Real* DPN, const Int* IFLAG)
{
    chain::lengths_from_counts({SCM, *LD}, {*NSEG, ISEG}, {*N, IDX}, FlagArray{IFLAG}, Vector{DPN, *N});
}
