#include "app/routines/chain_averages.h"

#include <polyprops/polyprops.h>

#include "app/routines/selector.h"

namespace app::routines {

namespace {

using ListRoutine = void(const Int* selector, const Int* n, const Int* idx, double* values);

Reals ask(ListRoutine& routine, const Components& components)
{
    const auto idx = indices(components);
    const Int n = count(components);
    Reals values(components.size());
    routine(&selected_stream, &n, idx.data(), values.data());
    return values;
}

}  // namespace

Reals degrees_of_polymerization(const Components& components)
{
    return ask(POLY_GETDPN, components);
}

Reals mean_segment_weights(const Components& components)
{
    return ask(POLY_GETMRF, components);
}

Reals number_average_molecular_weights(const Components& components)
{
    return ask(POLY_GETMWN, components);
}

Reals weight_average_molecular_weights(const Components& components)
{
    return ask(POLY_GETMWW, components);
}

Reals polydispersity_indices(const Components& components)
{
    return ask(POLY_GETPDI, components);
}

Reals crystallinity_parameters(const Components& components)
{
    const auto idx = indices(components);
    const Int n = count(components);
    Reals values(components.size());
    POLY_GETCRY(nullptr, &n, idx.data(), values.data());
    return values;
}

Reals segment_mole_fractions(Component chain, std::size_t segments)
{
    Reals fractions(segments);
    POLY_GETSMF(&selected_stream, &chain.index, fractions.data());
    return fractions;
}

Reals segment_mass_fractions(const Components& chains, std::size_t segments)
{
    const auto idx = indices(chains);
    const Int n = count(chains);
    const auto rows = static_cast<Int>(segments);
    Reals fractions(chains.size() * segments);
    POLY_SWFVEC(&selected_stream, &n, &rows, idx.data(), fractions.data());
    return fractions;
}

}  // namespace app::routines
