#include "app/routines/pair_parameters.h"

#include <polyprops/polyprops.h>

namespace app::routines {

namespace {

std::size_t pair_count(const PairCoefficients& c)
{
    return static_cast<std::size_t>(c.components * c.components);
}

std::size_t component_count(const PairCoefficients& c)
{
    return static_cast<std::size_t>(c.components);
}

using SelectedPairs = void(const double* t, const Int* n, const Int* iref, const Int* m, const double* p,
                           const double* select, const Int* mask, double* out);

// Every component is selected, none is masked.
PairMatrix ask(SelectedPairs& routine, const PairCoefficients& c, double temperature)
{
    const Reals selected(component_count(c), 1.0);
    const std::vector<Int> mask(component_count(c));
    PairMatrix out(pair_count(c));
    routine(&temperature, &c.positions, &c.reference_position, &c.components, c.values.data(),
            selected.data(), mask.data(), out.data());
    return out;
}

}  // namespace

void complete_pairs(PairCoefficients& coefficients, Int leading, bool is_antisymmetric)
{
    const Int mode = is_antisymmetric ? 2 : 1;
    POLY_TBPARI(&coefficients.positions, &coefficients.components, coefficients.values.data(), &leading,
                &mode);
}

PairMatrix pair_parameters(const PairCoefficients& coefficients, double temperature)
{
    return ask(POLY_KIJ5, coefficients, temperature);
}

PairMatrix pair_slopes(const PairCoefficients& coefficients, double temperature)
{
    return ask(POLY_DKIJ5, coefficients, temperature);
}

PairMatrix general_pair_parameters(const PairCoefficients& c, double temperature)
{
    PairMatrix out(pair_count(c));
    POLY_TBKIJ3(&temperature, &c.positions, &c.reference_position, &c.components, c.values.data(),
                out.data());
    return out;
}

PairMatrix general_pair_derivatives(const PairCoefficients& c, double temperature)
{
    const Int with_derivatives = 2;
    const Reals selected(component_count(c), 1.0);
    PairMatrix parameters(pair_count(c));
    PairMatrix derivatives(pair_count(c));
    POLY_TBKIJ4(&temperature, &c.positions, &c.reference_position, &c.components, c.values.data(),
                parameters.data(), derivatives.data(), &with_derivatives, selected.data());
    return derivatives;
}

}  // namespace app::routines
