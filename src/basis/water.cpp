// Water among listed components, by its name.
#include "host/words.h"
#include "polyprops/polyprops.h"

namespace polyprops::basis {

namespace {

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

void POLY_SETH2O(const Int* N, const Int* IDX, Int* JW)
{
    *JW = basis::find_water({*N, IDX});
}
