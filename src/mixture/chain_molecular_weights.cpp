// Molecular weights of chains that a segment-count matrix implies, and their polydispersity.
//
//   MWS = Σ MW(s) SCM(j, s) / Σ SCM(j, s)     mean segment molecular weight              [g/mol]
//   MWP = Σ MW(s) SCM(j, s)                   number-average molecular weight            [g/mol]
//   PDI = S · Z / F², at least 1              Z chains, F segments (always Σ SFLOW), S second moment
//   WWP = PDI · MWP                           weight-average molecular weight            [g/mol]
//
// A component that is not flagged has its own molecular weight.
#include "chain/molecular_weight.h"
#include "mixture/segment_averages.h"
#include "polyprops/polyprops.h"

namespace polyprops::mixture {

namespace {

// The rows of a segment-count matrix with the molecular weights of their segments.
struct ChainCounts {
    ByComponent<const Real> molecular_weights;
    ComponentList segments;
    FlagArray flags;
    SegmentCountMatrix<const Real> counts;

    Real mean_segment_molecular_weight(Component j) const
    {
        return flags.is_flagged(j) ? sum_by_number(counts, segments, j, molecular_weights).average()
                                   : molecular_weights(j);
    }
    Real number_average_molecular_weight(Component j) const
    {
        return flags.is_flagged(j)
                   ? chain::molecular_weight_from_counts(counts, molecular_weights, segments, j)
                   : molecular_weights(j);
    }
};

// A host whose PDI mode keeps the parameters needs no lists, nor does an empty list of components.
PolymerData locate_for_polydispersity(const ComponentList& components)
{
    const bool reads = components.count() >= 1 && !keeps_polydispersity_parameter();
    return PolymerData::locate(reads ? PolymerData::every_part : 0U);
}

// Unlike the polydispersity of the chain averages it is never below 1, and a second moment out of bounds
// gives 1 rather than the parameter.
Real bounded_polydispersity(const PolymerData& data, const Species& species)
{
    const auto moments = chain::polydispersity_moments(data, species);
    if (!moments) return chain::polydispersity_parameter(species.component());
    return is_between_bounds(moments->second) ? chain::at_least_one(moments->index()) : 1.0;
}

}  // namespace

}  // namespace polyprops::mixture

using namespace polyprops;

void POLY_GETMWS(const Int* N, const Int* IDX, const Int* LD, const Real* MW, const Int* NSEG,
                 const Int* ISEG, const Int* IFLAG, const Real* SCM, Real* OUT)
{
    const ComponentList components{*N, IDX};
    const mixture::ChainCounts chains{ByComponent{MW}, {*NSEG, ISEG}, FlagArray{IFLAG}, {SCM, *LD}};
    const ByComponent out{OUT};
    for (Int i = 1; i <= components.count(); ++i)
        out(components(i)) = chains.mean_segment_molecular_weight(components(i));
}

void POLY_GETMWP(const Int* N, const Int* IDX, const Int* LD, const Real* MW, const Int* NSEG,
                 const Int* ISEG, const Int* IFLAG, const Real* SCM, Real* OUT)
{
    const ComponentList components{*N, IDX};
    const mixture::ChainCounts chains{ByComponent{MW}, {*NSEG, ISEG}, FlagArray{IFLAG}, {SCM, *LD}};
    const Vector out{OUT, *N};
    for (Int i = 1; i <= components.count(); ++i)
        out(i) = chains.number_average_molecular_weight(components(i));
}

void POLY_GETWWP(const Int* N, const Int* IDX, const Int* LD, const Real* MW, const Int* NSEG,
                 const Int* ISEG, const Int* IFLAG, const Real* SCM, Real* OUT)
{
    const ComponentList components{*N, IDX};
    if (components.count() < 1) return;
    const auto data = mixture::locate_for_polydispersity(components);
    const mixture::ChainCounts chains{ByComponent{MW}, {*NSEG, ISEG}, FlagArray{IFLAG}, {SCM, *LD}};
    const Vector out{OUT, *N};
    for (Int i = 1; i <= components.count(); ++i)
        out(i) = mixture::bounded_polydispersity(data, Species{own_selector, components(i)}) *
                 chains.number_average_molecular_weight(components(i));
}

void POLY_GETPOLI(const Int* SEL, const Int* N, const Int* IDX, Real* PDI)
{
    const ComponentList components{*N, IDX};
    const auto data = mixture::locate_for_polydispersity(components);
    const Vector pdi{PDI, *N};
    for (Int i = 1; i <= components.count(); ++i)
        pdi(i) = mixture::bounded_polydispersity(data, Species{{*SEL}, components(i)});
}
