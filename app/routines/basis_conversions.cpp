#include "app/routines/basis_conversions.h"

#include <polyprops/polyprops.h>

namespace app::routines {

namespace {

constexpr Int unused = 0;

}  // namespace

Reals sub_composition(const Reals& by_component, const Components& list)
{
    const auto idx = indices(list);
    const Int n = count(list);
    Reals entries(list.size());
    POLY_GETXSUB(&unused, by_component.data(), &n, idx.data(), entries.data());
    return entries;
}

Reals apparent_mass_fractions(const Components& list, const Reals& mole_fractions)
{
    const auto idx = indices(list);
    const Int n = count(list);
    Reals fractions(list.size());
    POLY_XATOWT(mole_fractions.data(), &n, idx.data(), fractions.data());
    return fractions;
}

Reals mass_fractions(const Reals& mole_fractions, const Reals& molecular_weights)
{
    const auto n = static_cast<Int>(mole_fractions.size());
    Reals fractions(mole_fractions.size());
    POLY_XTTOWT(&n, mole_fractions.data(), molecular_weights.data(), fractions.data());
    return fractions;
}

Reals true_mole_fractions(const Components& list, const Reals& apparent_weights, const Reals& apparent)
{
    const auto idx = indices(list);
    const Int n = count(list);
    Reals fractions(list.size());
    POLY_XATOXT(&n, idx.data(), apparent_weights.data(), apparent.data(), fractions.data());
    return fractions;
}

Reals per_true_mole(const Components& list, const Reals& apparent_weights,
                    const Reals& number_average_molecular_weights, const Reals& quantity)
{
    constexpr Int molar_quantity = 0;
    const auto idx = indices(list);
    const Int n = count(list);
    Reals values(list.size());
    POLY_VATOVT(&n, idx.data(), apparent_weights.data(), number_average_molecular_weights.data(),
                quantity.data(), values.data(), &molar_quantity);
    return values;
}

SegmentBasis segment_basis(const Components& list, const SegmentCounts& counts, const Reals& true_flows,
                           const Reals& true_fractions)
{
    constexpr Int as_they_are = 0;
    const auto room = list.size() + counts.segments.size();
    const auto idx = indices(list);
    const Int n = count(list);
    const auto ld = static_cast<Int>(counts.components);
    const auto iseg = indices(counts.segments);
    const Int nseg = count(counts.segments);
    std::vector<Int> found(room);
    Int found_count = 0;
    SegmentBasis basis{{}, Reals(room), Reals(room)};
    POLY_PFTOSF(&n, idx.data(), true_flows.data(), counts.chain_flags.data(), &ld, counts.counts.data(),
                &nseg, iseg.data(), &found_count, found.data(), basis.flows.data(), &as_they_are);
    POLY_XTTOXS(&n, idx.data(), counts.chain_flags.data(), true_fractions.data(), &ld, counts.counts.data(),
                &nseg, iseg.data(), &found_count, found.data(), basis.mole_fractions.data());
    const auto size = static_cast<std::size_t>(found_count);
    for (std::size_t i = 0; i < size; ++i) basis.list.push_back({found[i]});
    basis.flows.resize(size);
    basis.mole_fractions.resize(size);
    return basis;
}

}  // namespace app::routines
