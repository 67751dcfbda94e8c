// Amounts of a component list on the segment basis, and back to the members of such a list.
//
//   segment:       x(s) = Σ X(i) · n(i, s)        n: segments s per molecule of entry i
//   conventional:  x = X(i), or X(i) · SCM(c, 1)
//   P(s) = Σ P(i) · SCM(c, s) / Σ SCM(c, s)       property of a segment
//
// Conventional entries and segments are listed in the order of first appearance. A conventional entry is
// appended without looking for an earlier one; the amount of a segment goes to every entry that holds its
// component.
#include <algorithm>
#include <array>

#include "basis/segment_make_up.h"
#include "polyprops/polyprops.h"

namespace polyprops::basis {

namespace {

// The list on the segment basis while it grows. It notes the places of the first segments of the segment
// list, so that the amount of one finds its entry without reading the list.
class SegmentBasisList {
public:
    SegmentBasisList(const ComponentList& segments, Int* components, Real* amounts)
        : segments_(segments), components_(components), amounts_(amounts)
    {
        std::fill_n(places_.begin(), noted(), unknown);
    }

    Int count() const { return count_; }

    void add_conventional(Component c, Real amount)
    {
        for (Int k = 1; k <= noted(); ++k)
            if (segments_(k) == c && place(k) != unknown) place(k) = several;
        append(c, amount);
    }
    // Adds the amount of the segment at a position of the segment list to every entry that holds its
    // component.
    void add_segment(Int position, Real amount)
    {
        const bool is_noted = position <= noted();
        if (is_noted && place(position) > 0) {
            amounts_(place(position)) += amount;
            return;
        }
        Int found = add_to_all(segments_(position), amount);
        if (found == unknown) found = append(segments_(position), amount);
        if (is_noted) place(position) = found;
    }
    // Divides by the sum, unless that is exactly 0.
    void normalize()
    {
        Real total = 0.0;
        for (Int q = 1; q <= count_; ++q) total += amounts_(q);
        if (total == 0.0) return;
        for (Int q = 1; q <= count_; ++q) amounts_(q) /= total;
    }

private:
    static constexpr Int capacity = 1024;
    static constexpr Int unknown = 0;
    static constexpr Int several = -1;

    Int noted() const { return std::min(segments_.count(), capacity); }
    Int& place(Int position) { return places_[static_cast<std::size_t>(position - 1)]; }
    Int append(Component c, Real amount)
    {
        ++count_;
        components_(count_) = c.index;
        amounts_(count_) = amount;
        return count_;
    }
    // The place of the only entry that holds s; several or unknown otherwise.
    Int add_to_all(Component s, Real amount)
    {
        Int found = unknown;
        for (Int q = 1; q <= count_; ++q) {
            if (components_(q) != s.index) continue;
            amounts_(q) += amount;
            found = found == unknown ? q : several;
        }
        return found;
    }

    const ComponentList& segments_;
    Vector<Int> components_;
    Vector<Real> amounts_;
    Int count_ = 0;
    std::array<Int, capacity> places_;
};

void list_from_attributes(const PolymerData& data, const ComponentList& components,
                          Vector<const Real> amounts, SegmentBasisList& list)
{
    for (Int i = 1; i <= components.count(); ++i) {
        const Species species{own_selector, components(i)};
        const Real amount = amounts(i);
        if (!species.has_chains())
            list.add_conventional(species.component(), amount);
        else if (data.lists_chains())
            visit_segments(data, species, [&](Int m, Real count) { list.add_segment(m, amount * count); });
    }
}

// The two lists from a segment-count matrix differ in what a conventional entry brings.
enum class OwnAmount { times_own_count, as_given };

struct SegmentCounts {
    FlagArray flags;
    SegmentCountMatrix<const Real> matrix;
    ComponentList segments;
};

void list_from_counts(const SegmentCounts& counts, OwnAmount own, const ComponentList& components,
                      Vector<const Real> amounts, SegmentBasisList& list)
{
    for (Int i = 1; i <= components.count(); ++i) {
        const Component c = components(i);
        const Real amount = amounts(i);
        if (!counts.flags.is_flagged(c)) {
            list.add_conventional(
                c, own == OwnAmount::times_own_count ? amount * counts.matrix.own_count(c) : amount);
            continue;
        }
        for (Int k = 1; k <= counts.segments.count(); ++k) {
            const Real count = counts.matrix(c, counts.segments(k));
            if (above(count, 0.0)) list.add_segment(k, amount * count);
        }
    }
}

struct WeightedProperty {
    Real sum = 0.0;
    Real weight = 0.0;
};

// Property of one member of a target list; repeats is the number of times it is among the segments. An entry
// that is not broken into segments replaces what came before it.
WeightedProperty property_of_member(const SegmentCounts& counts, const ComponentList& components,
                                    Vector<const Real> properties, Component member, Int repeats)
{
    WeightedProperty property;
    for (Int i = 1; i <= components.count(); ++i) {
        const Component c = components(i);
        if (!counts.flags.is_flagged(c)) {
            if (c == member) property = {properties(i), counts.matrix.own_count(c)};
            continue;
        }
        for (Int r = 1; r <= repeats; ++r) {
            const Real weight = counts.matrix(c, member);
            if (!above(weight, 0.0)) break;
            property.sum += properties(i) * weight;
            property.weight += weight;
        }
    }
    return property;
}

// Member by member, so that the target list is read once and not once per segment of each entry.
void properties_of_members(const SegmentCounts& counts, const ComponentList& components,
                           Vector<const Real> properties, const ComponentList& members, Vector<Real> out,
                           Vector<Real> weights)
{
    for (Int j = 1; j <= members.count(); ++j) {
        Int repeats = 0;
        for (Int k = 1; k <= counts.segments.count(); ++k) repeats += counts.segments(k) == members(j);
        const auto property = property_of_member(counts, components, properties, members(j), repeats);
        out(j) = property.weight == 0.0 ? property.sum : property.sum / property.weight;
        weights(j) = property.weight;
    }
}

constexpr Int normalized = 1;

}  // namespace

}  // namespace polyprops::basis

using namespace polyprops;

void POLY_XPTOXS(const Int* N, const Int* IDX, const Real* X, const void* /*UNUSED1*/, Int* /*WSEG*/,
                 Real* /*WCNT*/, Int* NOUT, Int* IDXOUT, Real* XOUT, const Int* NORM)
{
    *NOUT = 0;
    if (*N < 1) return;
    const auto data = PolymerData::locate(basis::segment_make_up_parts);
    basis::SegmentBasisList list{data.segments(), IDXOUT, XOUT};
    basis::list_from_attributes(data, {*N, IDX}, Vector{X, *N}, list);
    *NOUT = list.count();
    if (*NORM == basis::normalized) list.normalize();
}

void POLY_XTTOXS(const Int* N, const Int* IDX, const Int* IFLAG, const Real* X, const Int* LD,
                 const Real* SCM, const Int* NSEG, const Int* ISEG, Int* NOUT, Int* IDXOUT, Real* XOUT)
{
    const basis::SegmentCounts counts{FlagArray{IFLAG}, {SCM, *LD}, {*NSEG, ISEG}};
    basis::SegmentBasisList list{counts.segments, IDXOUT, XOUT};
    basis::list_from_counts(counts, basis::OwnAmount::times_own_count, {*N, IDX}, Vector{X, *N}, list);
    *NOUT = list.count();
    list.normalize();
}

void POLY_PFTOSF(const Int* N, const Int* IDX, const Real* X, const Int* IFLAG, const Int* LD,
                 const Real* SCM, const Int* NSEG, const Int* ISEG, Int* NOUT, Int* IDXOUT, Real* XOUT,
                 const Int* NORM)
{
    const basis::SegmentCounts counts{FlagArray{IFLAG}, {SCM, *LD}, {*NSEG, ISEG}};
    basis::SegmentBasisList list{counts.segments, IDXOUT, XOUT};
    basis::list_from_counts(counts, basis::OwnAmount::as_given, {*N, IDX}, Vector{X, *N}, list);
    *NOUT = list.count();
    if (*NORM == basis::normalized) list.normalize();
}

void POLY_PTTOPS(const Int* N, const Int* IDX, const Int* IFLAG, const Real* P, const Int* LD,
                 const Real* SCM, const Int* NSEG, const Int* ISEG, const Int* NOUT, const Int* IDXOUT,
                 Real* POUT, Real* WSUM)
{
    const basis::SegmentCounts counts{FlagArray{IFLAG}, {SCM, *LD}, {*NSEG, ISEG}};
    basis::properties_of_members(counts, {*N, IDX}, Vector{P, *N}, {*NOUT, IDXOUT}, Vector{POUT, *NOUT},
                                 Vector{WSUM, *NOUT});
}
