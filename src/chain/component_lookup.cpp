// Facts of each listed component that need no averaging: its polymer flag, its CRY parameter.
#include "host/species.h"
#include "polyprops/polyprops.h"

using namespace polyprops;

void POLY_GETISP(const Int* N, const Int* IDX, const void* /*UNUSED1*/, Int* IFLAG)
{
    const ComponentList components{*N, IDX};
    const ByComponent<Int> flags{IFLAG};
    for (Int i = 1; i <= components.count(); ++i)
        flags(components(i)) = Species{own_selector, components(i)}.has_chains() ? 1 : 0;
}

void POLY_GETCRY(const void* /*UNUSED1*/, const Int* N, const Int* IDX, Real* CRY)
{
    const ComponentList components{*N, IDX};
    const Vector<Real> parameters{CRY, *N};
    for (Int i = 1; i <= components.count(); ++i)
        parameters(i) = ParameterVector::crystallinity().value_or(0.0, components(i));
}
