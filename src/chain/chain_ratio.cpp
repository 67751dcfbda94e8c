// Ratio of a mixture's amounts on the apparent and the chain basis.
//
//   RAT = (A / B) / A      A = Σ MW · X,  B = Σ X / DP
//
// DP is the chain length: F / Z of a polymer, F always the sum of its segment flows and without a lower limit
// of 1; an oligomer's DPN parameter, or the segments of its make-up when that was left at 1; 1 otherwise.
#include "chain/degree_of_polymerization.h"
#include "polyprops/polyprops.h"

namespace polyprops::chain {

namespace {

Real polymer_chain_length(const PolymerData& data, const Species& polymer)
{
    const Real chains = chain_count(data, polymer);
    const Real segments = polymer.attribute(AttributeName::sflow).sum(data.segments().count());
    return above(chains, zero_bound()) && above(segments, zero_bound()) ? segments / chains : 1.0;
}

Real oligomer_chain_length(const PolymerData& data, Component oligomer)
{
    const Real parameter = degree_of_polymerization_parameter(oligomer);
    if (!counts_as_one(parameter)) return parameter;
    const Int column = data.oligomers().column_of(oligomer);
    return column > 0 ? oligomer_length(data, column) : parameter;
}

Real chain_length(const PolymerData& data, const Species& species)
{
    if (!species.has_chains()) return 1.0;
    const Real length = species.is_polymer() ? polymer_chain_length(data, species)
                                             : oligomer_chain_length(data, species.component());
    return length == 0.0 ? 1.0 : length;
}

Real chain_ratio(const PolymerData& data, Selector selector, const ComponentList& components,
                 Vector<const Real> fractions)
{
    if (!data.run_has_chains()) return 1.0;
    Real mass = 0.0;
    Real chains = 0.0;
    for (Int i = 1; i <= components.count(); ++i) {
        mass += molecular_weight(components(i)) * fractions(i);
        chains += fractions(i) / chain_length(data, Species{selector, components(i)});
    }
    return mass == 0.0 || chains == 0.0 ? 1.0 : (mass / chains) / mass;
}

}  // namespace

}  // namespace polyprops::chain

using namespace polyprops;

void POLY_GETRAT(const Int* SEL, const Int* N, const Int* IDX, const Real* X, Real* RAT)
{
    const auto data = PolymerData::locate(chain::degree_of_polymerization_parts);
    *RAT = chain::chain_ratio(data, {*SEL}, {*N, IDX}, Vector{X, *N});
}
