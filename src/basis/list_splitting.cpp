// A component list divided into polymers and oligomers and all others, and values of both put back in order.
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

void split(const ComponentList& components, ListPart& chains, ListPart& others)
{
    for (Int i = 1; i <= components.count(); ++i) {
        const Component c = components(i);
        (Species{own_selector, c}.has_chains() ? chains : others).append(c, i);
    }
}

// Copies words of either kind to their places.
void put_back(const Int* places, Int count, const void* values, void* merged)
{
    constexpr auto word_size = static_cast<Int>(sizeof(Int));
    for (Int k = 0; k < count; ++k)
        std::memcpy(static_cast<char*>(merged) + (places[k] - 1) * word_size,
                    static_cast<const char*>(values) + k * word_size, sizeof(Int));
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
