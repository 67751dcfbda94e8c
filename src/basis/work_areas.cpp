// Work areas of given lengths in one work vector, one after the other without gaps.
#include "host/views.h"
#include "polyprops/polyprops.h"

namespace polyprops::basis {

namespace {

// Returns the last position used.
Int allot(Int last_used, Int n, Vector<const Int> lengths, Vector<Int> starts)
{
    for (Int k = 1; k <= n; ++k) {
        const Int length = lengths(k);
        starts(k) = last_used + 1;
        last_used += length;
    }
    return last_used;
}

}  // namespace

}  // namespace polyprops::basis

using namespace polyprops;

void POLY_WRKPOINT(Int* LAST, const Int* N, const Int* LEN, Int* PTR)
{
    if (*N < 1) return;
    *LAST = basis::allot(*LAST, *N, Vector{LEN, *N}, Vector{PTR, *N});
}
