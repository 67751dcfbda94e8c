// Segments per molecule of listed components, straight from their attributes.
//
//   SCM(j, s) = f(s) · D     polymer: segment fractions, segments per chain
//   SCM(j, s) = count(s)     oligomer: its make-up
//   SCM(j, 1)                any other component: its own count
//
//   D = DPN, else F / Z      Z chains, F segments
//   MRF = Σ f(s) · MW(s)     mean segment molecular weight
//
// Two routines fill the matrix. They choose f and Z alike and differ in the rest:
//
//                               POLY_GETPOL                          POLY_GETPALL
//   neither polymer nor         counts of the listed components      nothing written but NPOL = 0
//     oligomer listed
//   "DPN" accepted              from 1.0                             above 1.0, below the missing-value bound
//   "MWN" / MRF                 second choice                        not used
//   "FMOM" as F                 when not below Z                     when present
//   missing values of f         as they are                          as 0
//   oligomer                    positive counts; a lone one becomes  counts, scaled to the length of the
//                               the DPN parameter above 1.0          oligomer
//   other component             DPN parameter, at least 1.0          1.0, its length goes to DPN
#include <cmath>

#include "chain/degree_of_polymerization.h"
#include "chain/molecular_weight.h"
#include "mixture/outputs.h"
#include "polyprops/polyprops.h"

namespace polyprops::mixture {

namespace {

using chain::FirstMomentCounts;

Attribute fraction_values(const Species& polymer)
{
    const Attribute fractions = polymer.attribute(AttributeName::sfrac);
    return fractions.is_present() ? fractions : polymer.attribute(AttributeName::sflow);
}

// Calls visit(column) for each place of c in the oligomer list.
template <class Visit>
void visit_columns(const PolymerData& data, Component c, Visit visit)
{
    const ComponentList& oligomers = data.oligomers().list();
    for (Int e = 1; e <= oligomers.count(); ++e)
        if (oligomers(e) == c) visit(e);
}

// ---- POLY_GETPOL ----

void write_fractions(const PolymerData& data, const Attribute& values, SegmentCountMatrix<Real> counts,
                     Component row)
{
    const Int n = data.segments().count();
    const Real total = values.sum(n);
    const bool shares = values.is_present() && above(total, zero_bound());
    write_row(data, counts, row,
              [&](Int m) { return shares ? values(m) / total : 1.0 / static_cast<Real>(n); });
}

Real length_by_attributes(const PolymerData& data, const Species& polymer, Real mrf)
{
    const Attribute length = polymer.attribute(AttributeName::dpn);
    if (length.is_present() && at_least(length.value(), 1.0)) return length.value();
    const Attribute mwn = polymer.attribute(AttributeName::mwn);
    if (mwn.is_present() && mrf != 0.0 && at_least(mwn.value(), mrf)) return mwn.value() / mrf;
    return chain::length_from_moments(data, polymer, FirstMomentCounts::when_not_below_chains);
}

void write_polymer(const PolymerData& data, const Species& polymer, ByComponent<const Real> molecular_weights,
                   SegmentCountMatrix<Real> counts)
{
    const Component j = polymer.component();
    write_fractions(data, fraction_values(polymer), counts, j);
    const Real mrf =
        chain::molecular_weight_from_counts(counts.read_only(), molecular_weights, data.segments(), j);
    const Real length = chain::at_least_one(length_by_attributes(data, polymer, mrf));
    write_row(data, counts, j, [&](Int m) { return counts(j, data.segments()(m)) * length; });
}

void write_positive_counts(const PolymerData& data, Int column, SegmentCountMatrix<Real> counts, Component j)
{
    Int kinds = 0;
    Int last = 0;
    for (Int m = 1; m <= data.segments().count(); ++m) {
        const Real count = data.oligomers().segments(m, column);
        if (!above(count, 0.0)) continue;
        counts(j, data.segments()(m)) = count;
        ++kinds;
        last = m;
    }
    const Real parameter = chain::degree_of_polymerization_parameter(j);
    if (kinds == 1 && above(parameter, 1.0)) counts(j, data.segments()(last)) = parameter;
}

void write_counts(const PolymerData& data, const Species& species, ByComponent<const Real> molecular_weights,
                  SegmentCountMatrix<Real> counts)
{
    const Component j = species.component();
    if (species.is_polymer())
        write_polymer(data, species, molecular_weights, counts);
    else if (species.is_oligomer())
        visit_columns(data, j, [&](Int e) { write_positive_counts(data, e, counts, j); });
    else
        counts.own_count(j) = chain::at_least_one(chain::degree_of_polymerization_parameter(j));
}

// ---- POLY_GETPALL ----

// The DPN parameter of a component; one that is not a number counts as 1.
Real default_length(Component c)
{
    const Real parameter = chain::degree_of_polymerization_parameter(c);
    return std::isnan(parameter) ? 1.0 : parameter;
}

Real length_within_bounds(const PolymerData& data, const Species& polymer)
{
    const Attribute length = polymer.attribute(AttributeName::dpn);
    if (length.is_present() && above(length.value(), 1.0) && below(length.value(), missing_value_bound()))
        return length.value();
    return chain::length_from_moments(data, polymer, FirstMomentCounts::when_present);
}

Real write_scaled_polymer(const PolymerData& data, const Species& polymer, SegmentCountMatrix<Real> counts)
{
    const Component j = polymer.component();
    const ComponentList& segments = data.segments();
    const Real length = length_within_bounds(data, polymer);
    const Attribute values = fraction_values(polymer);
    Real total = 0.0;
    write_row(data, counts, j, [&](Int m) {
        const Real value = is_missing(values(m)) ? 0.0 : values(m);
        total += value;
        return value;
    });
    write_row(data, counts, j, [&](Int m) {
        return above(total, zero_bound()) ? counts(j, segments(m)) * length / total
                                          : length / static_cast<Real>(segments.count());
    });
    return length;
}

Real write_scaled_oligomer(const PolymerData& data, Component j, SegmentCountMatrix<Real> counts)
{
    const ComponentList& segments = data.segments();
    Real total = 0.0;
    visit_columns(data, j, [&](Int e) {
        total += chain::oligomer_length(data, e);
        write_row(data, counts, j, [&](Int m) { return data.oligomers().segments(m, e); });
        if (total != 0.0) write_row(data, counts, j, [&](Int m) { return counts(j, segments(m)) / total; });
    });
    const Real parameter = default_length(j);
    const bool left_at_one = at_most(std::abs(parameter - 1.0), 1e-10);
    const Real length = left_at_one ? chain::at_least_one(total) : parameter;
    write_row(data, counts, j, [&](Int m) { return counts(j, segments(m)) * length; });
    return length;
}

Real write_conventional(Component j, SegmentCountMatrix<Real> counts)
{
    counts.own_count(j) = 1.0;
    return chain::at_least_one(default_length(j));
}

// Writes the row of a component and returns its length.
Real write_scaled_counts(const PolymerData& data, const Species& species, SegmentCountMatrix<Real> counts)
{
    if (species.is_polymer()) return write_scaled_polymer(data, species, counts);
    if (species.is_oligomer()) return write_scaled_oligomer(data, species.component(), counts);
    return write_conventional(species.component(), counts);
}

}  // namespace

}  // namespace polyprops::mixture

using namespace polyprops;

void POLY_GETPOL(const Int* SEL, const Int* NC, const Real* MW, Int* NSEG, Int* ISEG, const Int* N,
                 const Int* IDX, Real* SCM)
{
    clear_square(SCM, *NC);
    const auto data = PolymerData::locate(PolymerData::every_part);
    if (!data.exists()) return;
    *NSEG = data.segments().count();
    const ComponentList components{*N, IDX};
    bool listed = false;
    for (Int i = 1; i <= components.count(); ++i) {
        const Species species{{*SEL}, components(i)};
        if (!listed && species.has_chains()) {
            mixture::write_segment_list(data, ISEG);
            listed = true;
        }
        mixture::write_counts(data, species, ByComponent{MW}, {SCM, *NC});
    }
}

void POLY_GETPALL(const Int* SEL, const Int* N, const Int* IDX, const Int* NC, Int* NSEG, Int* ISEG,
                  Int* NPOL, Int* IFLAG, Real* SCM, Real* DPN)
{
    const ComponentList components{*N, IDX};
    const SegmentCountMatrix counts{SCM, *NC};
    const Vector lengths{DPN, *NC};
    PolymerData data;
    *NPOL = 0;
    for (Int i = 1; i <= components.count(); ++i) {
        const Species species{{*SEL}, components(i)};
        // A list without polymers and oligomers leaves the outputs untouched, so they begin with the first.
        if (*NPOL == 0) {
            if (!species.has_chains()) continue;
            clear(IFLAG, *NC);
            clear(DPN, *NC);
            data = mixture::begin_counts(*NC, *NSEG, ISEG, SCM);
            for (Int k = 1; k < i; ++k) lengths(k) = mixture::write_conventional(components(k), counts);
        }
        lengths(i) = mixture::write_scaled_counts(data, species, counts);
        if (!species.has_chains()) continue;
        ByComponent{IFLAG}(species.component()) = 1;
        ++*NPOL;
    }
}
