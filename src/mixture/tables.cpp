// Tables of the polymers and oligomers among listed components, from their chain averages.
//
//   MWN(i)    = DPN(i) · MRF(i)     segments per chain × mean segment molecular weight    [g/mol]
//   SMFM(j, m), SWFM(j, m)          mole and mass fraction of the segment at position m
//   SCM(j, s) = SMF(s) · DPN        segments of component s per molecule of j
//
// The columns of a fraction matrix are positions of the segment list, those of a count matrix are component
// indices. A polymer and an oligomer are treated alike.
#include "chain/degree_of_polymerization.h"
#include "chain/segment_fractions.h"
#include "chain/segment_molecular_weight.h"
#include "mixture/outputs.h"
#include "mixture/true_fractions.h"
#include "polyprops/polyprops.h"

namespace polyprops::mixture {

namespace {

// The arrays that the tables are written to, all of the caller.
struct Tables {
    Int component_count;
    Real* lengths;
    Real* chain_molecular_weights;
    Real* segment_molecular_weights;
    Int* flags;
    Real* mole_fractions;
    Real* mass_fractions;
    Real* mole_work;
    Real* mass_work;
    Int* segment_count;
    Int* segment_list;
};

void clear_tables(const Tables& out)
{
    for (Real* values : {out.lengths, out.chain_molecular_weights, out.segment_molecular_weights})
        clear(values, out.component_count);
    clear(out.flags, out.component_count);
    clear(out.segment_list, out.component_count);
    clear_square(out.mole_fractions, out.component_count);
    clear_square(out.mass_fractions, out.component_count);
}

void write_fractions(const PolymerData& data, const Species& species, const Tables& out)
{
    const Int n = data.segments().count();
    clear(out.mole_work, n);
    clear(out.mass_work, n);
    const Vector mole{out.mole_work, n};
    const Vector mass{out.mass_work, n};
    chain::segment_mole_fractions(data, species, mole);
    chain::segment_mass_fractions(data, species, mass);
    const SegmentFractionMatrix by_mole{out.mole_fractions, out.component_count};
    const SegmentFractionMatrix by_mass{out.mass_fractions, out.component_count};
    for (Int m = 1; m <= n; ++m) {
        by_mole(species.component(), m) = mole(m);
        by_mass(species.component(), m) = mass(m);
    }
}

void write_tables(const ComponentList& components, const Tables& out)
{
    clear_tables(out);
    const auto data = PolymerData::locate(PolymerData::every_part);
    *out.segment_count = data.segments().count();
    write_segment_list(data, out.segment_list);
    const Int n = components.count();
    const Vector lengths{out.lengths, n};
    const Vector segment_molecular_weights{out.segment_molecular_weights, n};
    const Vector chain_molecular_weights{out.chain_molecular_weights, n};
    for (Int i = 1; i <= n; ++i) {
        const Species species{own_selector, components(i)};
        lengths(i) = chain::degree_of_polymerization(data, species);
        segment_molecular_weights(i) = chain::mean_segment_molecular_weight(data, species);
        chain_molecular_weights(i) = lengths(i) * segment_molecular_weights(i);
        if (!species.has_chains()) continue;
        ByComponent{out.flags}(species.component()) = 1;
        write_fractions(data, species, out);
    }
}

void write_segment_counts(const PolymerData& data, const Species& species, Real* work,
                          SegmentCountMatrix<Real> counts)
{
    const Component j = species.component();
    const Real length = chain::degree_of_polymerization(data, species);
    if (!species.has_chains()) {
        counts.own_count(j) = length;
        return;
    }
    const Int n = data.segments().count();
    clear(work, n);
    const Vector fractions{work, n};
    chain::segment_mole_fractions(data, species, fractions);
    write_row(data, counts, j, [&](Int m) { return fractions(m) * length; });
}

}  // namespace

}  // namespace polyprops::mixture

using namespace polyprops;

void POLY_GETPOL1(const Int* N, const Real* X, const Int* IDX, Real* DPN, Real* MWN, Real* XT, Real* MRF,
                  Real* W1, Real* W2, const Int* NC, const Real* MW, Int* IFLAG, Real* SMFM, Real* SWFM,
                  Int* NSEG, Int* ISEG)
{
    const ComponentList components{*N, IDX};
    clear(XT, *NC);
    mixture::write_tables(components, {*NC, DPN, MWN, MRF, IFLAG, SMFM, SWFM, W1, W2, NSEG, ISEG});
    mixture::true_mole_fractions(components, Vector{X, *N}, ByComponent{MW}, Vector<const Real>{MWN, *N},
                                 Vector{XT, *N});
}

void POLY_GETPOL2(const Int* N, const Int* IDX, Real* DPN, Real* MWN, Real* MRF, Real* W1, Real* W2,
                  const Int* NC, Int* IFLAG, Real* SMFM, Real* SWFM, Int* NSEG, Int* ISEG)
{
    mixture::write_tables({*N, IDX}, {*NC, DPN, MWN, MRF, IFLAG, SMFM, SWFM, W1, W2, NSEG, ISEG});
}

void POLY_GETPOL3(const Int* N, const Int* IDX, const Int* NC, Real* W, Int* NSEG, Int* ISEG, Int* IFLAG,
                  Real* SCM)
{
    clear(IFLAG, *NC);
    const auto data = mixture::begin_counts(*NC, *NSEG, ISEG, SCM);
    const ComponentList components{*N, IDX};
    const ByComponent flags{IFLAG, *NC};
    const SegmentCountMatrix counts{SCM, *NC};
    for (Int i = 1; i <= components.count(); ++i) {
        const Species species{own_selector, components(i)};
        if (species.has_chains()) flags(species.component()) = 1;
        mixture::write_segment_counts(data, species, W, counts);
    }
}
