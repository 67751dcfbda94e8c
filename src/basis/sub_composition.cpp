// Composition of a sub-list.
//
//   XS(k) = X(IDX(k)) / Σ X(IDX(k))
#include "host/views.h"
#include "polyprops/polyprops.h"

namespace polyprops::basis {

namespace {

// A sum of exactly 0 is not divided by.
void normalized_part(ByComponent<const Real> full, const ComponentList& components, Vector<Real> out)
{
    Real total = 0.0;
    for (Int k = 1; k <= components.count(); ++k) total += full(components(k));
    for (Int k = 1; k <= components.count(); ++k)
        out(k) = total == 0.0 ? full(components(k)) : full(components(k)) / total;
}

}  // namespace

}  // namespace polyprops::basis

using namespace polyprops;

void POLY_GETXSUB(const void* /*UNUSED1*/, const Real* X, const Int* N, const Int* IDX, Real* XS)
{
    basis::normalized_part(ByComponent{X}, {*N, IDX}, Vector{XS, *N});
}
