// Segment make-up of a whole component list, normalised, scaled, and its list on the segment basis.
//
//   f(j, s) = F(j, s) / Σ F        F: "SFRAC" or "SFLOW" of a polymer, segment counts of an oligomer
//   FSEG(j, s) = f(j, s) · DPN(i) · FAC(s)
//
// A polymer or oligomer without usable segment data is made of the first segment component of the host. IPOS
// serves as an index from the start: first of the places of components in the caller's list, so that the host
// is asked about none of them twice, then of their places in the output list.
#include "basis/segment_make_up.h"
#include "chain/degree_of_polymerization.h"
#include "polyprops/polyprops.h"

namespace polyprops::basis {

namespace {

constexpr Int unresolved = -1;

// Segments by component: column 1 of a row holds their number, the columns behind it their indices.
class SegmentTable {
public:
    SegmentTable(Int* first, Int leading_dimension) : elements_(first, leading_dimension) {}

    Int& count(Component row) const { return elements_(row.index, 1); }
    Int& segment_index(Component row, Int k) const { return elements_(row.index, k + 1); }
    Component segment(Component row, Int k) const { return {segment_index(row, k)}; }

private:
    Matrix<Int> elements_;
};

// The first segment component of the host, looked for once and only when an entry needs it; 0 without any.
class FirstSegment {
public:
    explicit FirstSegment(Int component_count) : component_count_(component_count) {}

    Int index()
    {
        if (index_ == unasked) index_ = find();
        return index_;
    }

private:
    static constexpr Int unasked = -1;

    Int find() const
    {
        for (Int j = 1; j <= component_count_; ++j)
            if ((CC_IS_SEGMENT(&j) & 1) != 0) return j;
        return 0;
    }

    Int component_count_;
    Int index_ = unasked;
};

struct MakeUp {
    SegmentTable segments;
    SegmentCountMatrix<Real> amounts;
};

// Fills a row with the usable amounts as fractions; without any the row stays as it is.
template <class Amount>
void fill_row(const MakeUp& make_up, Component row, const ComponentList& segments, Amount amount)
{
    Int count = 0;
    Real total = 0.0;
    for (Int m = 1; m <= segments.count(); ++m) {
        const Real value = amount(m);
        if (!above(value, 0.0) || !below(value, missing_value_bound())) continue;
        make_up.segments.segment_index(row, ++count) = segments(m).index;
        make_up.amounts(row, segments(m)) = value;
        total += value;
    }
    if (total == 0.0) return;
    make_up.segments.count(row) = count;
    for (Int k = 1; k <= count; ++k) make_up.amounts(row, make_up.segments.segment(row, k)) /= total;
}

void fill_row_of_polymer(const MakeUp& make_up, const PolymerData& data, const Species& polymer)
{
    Attribute values = polymer.attribute(AttributeName::sfrac);
    if (values.has_offset_zero()) values = polymer.attribute(AttributeName::sflow);
    fill_row(make_up, polymer.component(), data.segments(), values);
}

// The last column of an oligomer that has several counts its segments; amounts that only an earlier column
// holds are kept.
void fill_row_of_oligomer(const MakeUp& make_up, const PolymerData& data, Component oligomer)
{
    const OligomerTable& oligomers = data.oligomers();
    for (Int e = 1; e <= oligomers.count(); ++e)
        if (oligomers.list()(e) == oligomer)
            fill_row(make_up, oligomer, data.segments(), [&](Int m) { return oligomers.segments(m, e); });
}

void resolve_row(const MakeUp& make_up, Component row, Int first_segment)
{
    make_up.segments.count(row) = first_segment > 0 ? 1 : 0;
    if (first_segment < 1) return;
    make_up.segments.segment_index(row, 1) = first_segment;
    make_up.amounts(row, Component{first_segment}) = 1.0;
}

void settle_row(const MakeUp& make_up, const PolymerData& data, const Species& species,
                FirstSegment& first_segment)
{
    if (!species.has_chains()) return;
    Int& count = make_up.segments.count(species.component());
    count = unresolved;
    if (data.lists_chains() && species.is_polymer())
        fill_row_of_polymer(make_up, data, species);
    else if (data.lists_chains())
        fill_row_of_oligomer(make_up, data, species.component());
    if (count == unresolved) resolve_row(make_up, species.component(), first_segment.index());
}

// Make-up and chain length of every listed component; listed_at notes the entry of its first appearance.
void settle_listed(const MakeUp& make_up, const ComponentList& components, Int component_count,
                   Vector<Real> dpn, ByComponent<Int> listed_at)
{
    auto data = PolymerData::locate(segment_make_up_parts);
    if (data.lists_chains()) data.ensure(chain::degree_of_polymerization_parts);
    FirstSegment first_segment{component_count};
    for (Int i = 1; i <= components.count(); ++i) {
        const Species species{own_selector, components(i)};
        Int& entry = listed_at(species.component());
        if (entry > 0) {
            dpn(i) = dpn(entry);
            continue;
        }
        entry = i;
        dpn(i) = data.lists_chains() ? chain::degree_of_polymerization(data, species) : 1.0;
        settle_row(make_up, data, species, first_segment);
    }
}

// Polymers and oligomers that are not listed keep the mark of an unresolved row.
void mark_unlisted(const SegmentTable& segments, Int component_count, ByComponent<const Int> listed_at)
{
    for (Int j = 1; j <= component_count; ++j)
        if (listed_at({j}) == 0 && Species{own_selector, {j}}.has_chains()) segments.count({j}) = unresolved;
}

// The output list and the positions in it. It never grows beyond the number of components.
class OutputList {
public:
    OutputList(Int* components, Int* positions, Int capacity)
        : components_(components, capacity), positions_(positions, capacity), capacity_(capacity)
    {
    }

    Int count() const { return count_; }
    bool holds(Component c) const { return positions_(c) > 0; }
    void append(Component c)
    {
        if (count_ == capacity_) return;
        components_(++count_) = c.index;
        positions_(c) = count_;
    }

private:
    Vector<Int> components_;
    ByComponent<Int> positions_;
    Int capacity_;
    Int count_ = 0;
};

// Scales the rows and lists what they are made of. A component that is listed twice is scaled twice.
void scale_and_list(const MakeUp& make_up, const ComponentList& components, Vector<const Real> dpn,
                    ByComponent<const Real> factors, OutputList& output)
{
    for (Int i = 1; i <= components.count(); ++i) {
        const Component j = components(i);
        const Int count = make_up.segments.count(j);
        for (Int k = 1; k <= count; ++k) {
            const Component s = make_up.segments.segment(j, k);
            Real& amount = make_up.amounts(j, s);
            amount = amount * dpn(i) * factors(s);
            if (!output.holds(s)) output.append(s);
        }
        if (count <= 0) output.append(j);
    }
}

}  // namespace

}  // namespace polyprops::basis

using namespace polyprops;

void POLY_GETPSEG(const Int* N, const Int* IDX, const Int* NC, const Real* FAC, Real* DPN, Int* KSEG,
                  Real* FSEG, Int* NOUT, Int* IDXOUT, Int* IPOS)
{
    const ComponentList components{*N, IDX};
    const basis::MakeUp make_up{{KSEG, *NC}, {FSEG, *NC}};
    clear_square(KSEG, *NC);
    clear_square(FSEG, *NC);
    clear(IDXOUT, *NC);
    clear(IPOS, *NC);
    basis::settle_listed(make_up, components, *NC, Vector{DPN, *N}, ByComponent{IPOS, *NC});
    basis::mark_unlisted(make_up.segments, *NC, ByComponent<const Int>{IPOS, *NC});

    clear(IPOS, *NC);
    basis::OutputList output{IDXOUT, IPOS, *NC};
    basis::scale_and_list(make_up, components, Vector<const Real>{DPN, *N}, ByComponent{FAC, *NC}, output);
    *NOUT = output.count();
}
