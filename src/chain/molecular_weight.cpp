// Molecular-weight averages of listed components.
//
//   Mn  = DPN · MRF              segments per chain × mean segment molecular weight    [g/mol]
//   Mn  = Σ MW(s) · SCM(j, s)    from a segment-count matrix
//   MRT = Σ MW(s) · SFLOW(s) / Z segment mass flow over the amount of chains           [g/mol]
//   PDI = S · Z / F²             Z chains, F segments (always Σ SFLOW), S second moment
//   Mw  = PDI · Mn
#include "chain/molecular_weight.h"

#include "chain/listed.h"
#include "polyprops/polyprops.h"

namespace polyprops::chain {

namespace {

Real segment_mass_flow(const PolymerData& data, const Attribute& flows)
{
    Real mass = 0.0;
    for (Int s = 1; s <= data.segments().count(); ++s) mass += data.segment_molecular_weight(s) * flows(s);
    return mass;
}

Real molecular_weight_from_flows(const PolymerData& data, const Species& species)
{
    const Real own_molecular_weight = molecular_weight(species.component());
    if (!data.exists() || data.polymers().count() < 1 || !species.is_polymer()) return own_molecular_weight;
    const Attribute zeroth_moment = species.attribute(AttributeName::zmom);
    if (!zeroth_moment.is_present() || !is_between_bounds(zeroth_moment.value())) return own_molecular_weight;
    const Real mass = segment_mass_flow(data, species.attribute(AttributeName::sflow));
    return above(mass, zero_bound()) ? mass / zeroth_moment.value() : own_molecular_weight;
}

Real weight_average_molecular_weight(const PolymerData& data, const Species& species)
{
    const Component c = species.component();
    if (!species.has_chains()) return polydispersity_parameter(c) * molecular_weight(c);
    const Real mn = number_average_molecular_weight(data, species);
    return polydispersity(data, species) * mn;
}

}  // namespace

Real number_average_molecular_weight(const PolymerData& data, const Species& species)
{
    if (!data.exists() || !species.has_chains()) return molecular_weight(species.component());
    return degree_of_polymerization(data, species) * mean_segment_molecular_weight(data, species);
}

Real polydispersity_parameter(Component c)
{
    return ParameterVector::polydispersity().value_or(1.0, c);
}

std::optional<PolydispersityMoments> polydispersity_moments(const PolymerData& data, const Species& species)
{
    if (!data.exists() || keeps_polydispersity_parameter() || data.polymers().count() < 1) return {};
    if (!species.is_polymer()) return {};
    const Attribute second_moment = species.attribute(AttributeName::smom);
    if (!second_moment.is_present()) return {};
    const Attribute zeroth_moment = species.attribute(AttributeName::zmom);
    if (!zeroth_moment.is_present()) return {};
    const Real chains = zeroth_moment.value();
    if (!is_between_bounds(chains)) return {};
    const Attribute flows = species.attribute(AttributeName::sflow);
    const Real segments = flows.sum(data.segments().count());
    // The bound is inclusive here: flows of exactly the zero bound still count, but a bound of 0 must not
    // divide by 0.
    if (at_least(segment_mass_flow(data, flows), zero_bound()) && at_least(segments, zero_bound()) &&
        above(segments, 0.0))
        return PolydispersityMoments{chains, segments, second_moment.value()};
    return {};
}

Real polydispersity(const PolymerData& data, const Species& species)
{
    const auto moments = polydispersity_moments(data, species);
    return moments ? moments->index() : polydispersity_parameter(species.component());
}

Real molecular_weight_from_counts(SegmentCountMatrix<const Real> counts,
                                  ByComponent<const Real> molecular_weights, const ComponentList& segments,
                                  Component row)
{
    Real chain_molecular_weight = 0.0;
    for (Int m = 1; m <= segments.count(); ++m)
        chain_molecular_weight += molecular_weights(segments(m)) * counts(row, segments(m));
    return chain_molecular_weight;
}

}  // namespace polyprops::chain

using namespace polyprops;

void POLY_GETMWN(const Int* SEL, const Int* N, const Int* IDX, Real* MWN)
{
    const ComponentList components{*N, IDX};
    const Vector<Real> mwn{MWN, *N};
    auto data = PolymerData::locate(0);
    for (Int i = 1; i <= components.count(); ++i) {
        const Species species{{*SEL}, components(i)};
        if (data.exists() && species.has_chains()) data.ensure(chain::molecular_weight_parts);
        mwn(i) = chain::number_average_molecular_weight(data, species);
    }
}

void POLY_GETMRT(const Int* SEL, const Int* N, const Int* IDX, Real* MRT)
{
    chain::average_each(chain::moment_parts, {*SEL}, {*N, IDX}, MRT, chain::molecular_weight_from_flows);
}

void POLY_GETMWW(const Int* SEL, const Int* N, const Int* IDX, Real* MWW)
{
    const ComponentList components{*N, IDX};
    const Vector<Real> mww{MWW, *N};
    PolymerData data;
    for (Int i = 1; i <= components.count(); ++i) {
        const Species species{{*SEL}, components(i)};
        if (species.has_chains()) data.ensure(chain::molecular_weight_parts);
        mww(i) = chain::weight_average_molecular_weight(data, species);
    }
}

void POLY_GETPDI(const Int* SEL, const Int* N, const Int* IDX, Real* PDI)
{
    const unsigned parts = keeps_polydispersity_parameter() ? 0U : chain::moment_parts;
    chain::average_each(parts, {*SEL}, {*N, IDX}, PDI, chain::polydispersity);
}

void POLY_GETMWN1(const Int* LD, const Real* MW, const Int* NSEG, const Int* ISEG, const Real* SCM,
                  const Int* N, const Int* IDX, Real* MWN, const Int* IFLAG)
{
    const ByComponent<const Real> molecular_weights{MW};
    const ComponentList segments{*NSEG, ISEG};
    const SegmentCountMatrix counts{SCM, *LD};
    const ComponentList components{*N, IDX};
    const FlagArray flags{IFLAG};
    const Vector<Real> mwn{MWN, *N};
    for (Int i = 1; i <= components.count(); ++i) {
        const Component j = components(i);
        mwn(i) = flags.is_flagged(j)
                     ? chain::molecular_weight_from_counts(counts, molecular_weights, segments, j)
                     : molecular_weights(j);
    }
}
