// Completion of a binary parameter array in which pairs are given in only one order of their components.
//
//   P(l, b, a) =  P(l, a, b)   symmetric
//   P(l, b, a) = −P(l, a, b)   antisymmetric
//
// for a pair of which exactly one order is zero. Not a number counts as given.
#include "interaction/pair_array.h"
#include "polyprops/polyprops.h"

namespace polyprops::interaction {

namespace {

enum class Symmetry { symmetric, antisymmetric };

Real mirrored(Real given, Symmetry symmetry)
{
    return symmetry == Symmetry::symmetric ? given : -given;
}

void complete(Real& forward, Real& backward, Symmetry symmetry)
{
    if (forward == 0.0 && backward != 0.0)
        forward = mirrored(backward, symmetry);
    else if (forward != 0.0 && backward == 0.0)
        backward = mirrored(forward, symmetry);
}

// Positions 1..leading have the given symmetry, the later ones are symmetric.
void complete_pair(const PairArray<Real>& parameters, Int a, Int b, Int leading, Symmetry symmetry)
{
    for (Int l = 1; l <= parameters.positions(); ++l)
        complete(parameters(l, a, b), parameters(l, b, a), l <= leading ? symmetry : Symmetry::symmetric);
}

}  // namespace

}  // namespace polyprops::interaction

using namespace polyprops;

void POLY_TBPARI(const Int* N, const Int* M, Real* P, const Int* K, const Int* MODE)
{
    using interaction::Symmetry;
    const interaction::PairArray<Real> parameters{P, *N, *M};
    const Symmetry symmetry = *MODE == 1 ? Symmetry::symmetric : Symmetry::antisymmetric;
    for (Int a = 1; a <= parameters.components(); ++a)
        for (Int b = a + 1; b <= parameters.components(); ++b)
            interaction::complete_pair(parameters, a, b, *K, symmetry);
}
