// Component lists and work vectors: splitting, merging, picking, laying out, finding water.
#include "host/species.h"
#include "polyprops/polyprops.h"

namespace polyprops::basis {

namespace {

// A part of a component list with the places its entries came from.
class ListPart {
public:
    ListPart(Int* components, Int* places) : components_(components), places_(places) {}

    void append(Component c, Int place)
    {
        ++count_;
        components_(count_) = c.index;
        places_(count_) = place;
    }
    Int count() const { return count_; }

private:
    Int count_ = 0;
    Vector<Int> components_;
    Vector<Int> places_;
};

// Copies words of either kind to their places.
void put_back(const Int* places, Int count, const void* values, void* merged)
{
    constexpr auto word = static_cast<Int>(sizeof(Int));
    for (Int k = 0; k < count; ++k)
        std::memcpy(static_cast<char*>(merged) + (places[k] - 1) * word,
                    static_cast<const char*>(values) + k * word, sizeof(Int));
}

void split(const ComponentList& components, ListPart& chains, ListPart& others)
{
    for (Int i = 1; i <= components.count(); ++i) {
        const Component c = components(i);
        (Species{own_selector, c}.has_chains() ? chains : others).append(c, i);
    }
}

// Entries of a full composition that belong to a sub-list, normalised unless they sum to exactly 0.
void pick(ByComponent<const Real> full, const ComponentList& components, Vector<Real> out)
{
    Real total = 0.0;
    for (Int k = 1; k <= components.count(); ++k) total += full(components(k));
    for (Int k = 1; k <= components.count(); ++k)
        out(k) = total == 0.0 ? full(components(k)) : full(components(k)) / total;
}

// Work areas one after the other without gaps; returns the last position used.
Int lay_out(Int last_used, Int n, Vector<const Int> lengths, Vector<Int> starts)
{
    for (Int k = 1; k <= n; ++k) {
        const Int length = lengths(k);
        starts(k) = last_used + 1;
        last_used += length;
    }
    return last_used;
}

// Component index of the first entry named water, 0 when there is none.
Int find_water(const ComponentList& components)
{
    constexpr Int water = text_word("H2O");
    for (Int i = 1; i <= components.count(); ++i)
        if (first_word_of_name(components(i)) == water) return components(i).index;
    return 0;
}

}  // namespace

}  // namespace polyprops::basis

using namespace polyprops;

void POLY_IDXSPLIT(const Int* N, const Int* IDX, Int* NP, Int* IDXP, Int* POSP, Int* NK, Int* IDXK, Int* POSK)
{
    basis::ListPart chains{IDXP, POSP};
    basis::ListPart others{IDXK, POSK};
    basis::split({*N, IDX}, chains, others);
    *NP = chains.count();
    *NK = others.count();
}

void POLY_PROPMRG(const void* /*UNUSED1*/, const Int* NP, const Int* NK, const Int* POSP, const Int* POSK,
                  const void* VP, const void* VK, void* V)
{
    basis::put_back(POSP, *NP, VP, V);
    basis::put_back(POSK, *NK, VK, V);
}

void POLY_GETXSUB(const void* /*UNUSED1*/, const Real* X, const Int* N, const Int* IDX, Real* XS)
{
    basis::pick(ByComponent{X}, {*N, IDX}, Vector{XS, *N});
}

void POLY_WRKPOINT(Int* LAST, const Int* N, const Int* LEN, Int* PTR)
{
    if (*N < 1) return;
    *LAST = basis::lay_out(*LAST, *N, Vector{LEN, *N}, Vector{PTR, *N});
}

void POLY_SETH2O(const Int* N, const Int* IDX, Int* JW)
{
    *JW = basis::find_water({*N, IDX});
}
