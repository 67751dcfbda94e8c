#include "app/evaluation/bases.h"

#include "app/routines/basis_conversions.h"
#include "app/routines/chain_averages.h"

namespace app {

namespace {

using Reals = std::vector<double>;
using minihost::Host;
using routines::Components;

// Amounts of a list of components, all by position.
struct Amounts {
    Components components;
    Reals mole_flow;
    Reals mole_fraction;
    Reals molecular_weight;
};

Composition composition(Basis basis, const Amounts& amounts, const Reals& mass_fraction, const Host& host)
{
    Composition found{basis, {}};
    for (std::size_t i = 0; i < amounts.components.size(); ++i) {
        const auto& component = host.components().at(amounts.components[i].index);
        found.amounts.push_back({component.id, component.component_class, amounts.mole_flow[i],
                                 amounts.mole_flow[i] * amounts.molecular_weight[i], amounts.mole_fraction[i],
                                 mass_fraction[i]});
    }
    return found;
}

Composition composition(Basis basis, const Amounts& amounts, const Host& host)
{
    return composition(basis, amounts,
                       routines::mass_fractions(amounts.mole_fraction, amounts.molecular_weight), host);
}

Amounts apparent(const StreamList& list)
{
    return {list.components, list.mole_flow,
            routines::sub_composition(list.flow_of_component, list.components),
            list.molecular_weights_of(list.components)};
}

Amounts true_chains(const StreamList& list, const Amounts& apparent)
{
    Amounts amounts{
        list.components, list.mole_flow,
        routines::true_mole_fractions(list.components, list.molecular_weight, apparent.mole_fraction),
        routines::number_average_molecular_weights(list.components)};
    const auto moles = routines::per_true_mole(list.components, list.molecular_weight,
                                               amounts.molecular_weight, Reals(list.size(), 1.0));
    // A chain without weight keeps its apparent amount, as POLY_XATOXT lets it.
    for (std::size_t i = 0; i < moles.size(); ++i)
        if (moles[i] != 0) amounts.mole_flow[i] /= moles[i];
    return amounts;
}

Amounts segment(const StreamList& list, const Amounts& chains)
{
    auto basis =
        routines::segment_basis(list.components, list.counts, chains.mole_flow, chains.mole_fraction);
    const auto molecular_weight = list.molecular_weights_of(basis.list);
    return {std::move(basis.list), std::move(basis.flows), std::move(basis.mole_fractions), molecular_weight};
}

std::vector<Composition> on_all_bases(const StreamList& list, const Host& host)
{
    const auto as_given = apparent(list);
    const auto chains = true_chains(list, as_given);
    return {composition(Basis::apparent, as_given,
                        routines::apparent_mass_fractions(list.components, as_given.mole_fraction), host),
            composition(Basis::true_chains, chains, host),
            composition(Basis::segment, segment(list, chains), host)};
}

// The way back of POLY_XATOXT: a quantity per mole grows as the moles become fewer.
Composition apparent_from_true(const StreamList& list, const Host& host)
{
    const auto chains = true_chains(list, apparent(list));
    const auto per_true_mole = [&](const Reals& quantity) {
        return routines::per_true_mole(list.components, list.molecular_weight, chains.molecular_weight,
                                       quantity);
    };
    Components positions;
    for (std::size_t i = 0; i < list.size(); ++i) positions.push_back({static_cast<routines::Int>(i) + 1});
    return composition(Basis::apparent,
                       {list.components, per_true_mole(chains.mole_flow),
                        routines::sub_composition(per_true_mole(chains.mole_fraction), positions),
                        list.molecular_weights_of(list.components)},
                       host);
}

Compositions with_closures(std::vector<Composition> bases)
{
    Compositions found{std::move(bases), {}};
    for (const auto& [basis, amounts] : found.bases) {
        Closure closure{basis, 0, 0, 0, 0, 0};
        for (const auto& a : amounts) {
            closure.mole_fraction_sum += a.mole_fraction;
            closure.mass_fraction_sum += a.mass_fraction;
            closure.mole_flow += a.mole_flow;
            closure.mass_flow += a.mass_flow;
        }
        found.closures.push_back(closure);
        const double first = found.closures.front().mass_flow;
        if (first != 0) found.closures.back().mass_difference = (closure.mass_flow - first) / first;
    }
    return found;
}

}  // namespace

std::string_view text(Basis basis)
{
    if (basis == Basis::apparent) return "apparent";
    return basis == Basis::true_chains ? "true" : "segment";
}

Compositions compositions(const StreamList& list, const Host& host)
{
    return with_closures(on_all_bases(list, host));
}

Compositions convert(const std::string& stream, Basis from, Basis to, Host& host)
{
    const auto list = list_stream(stream, host);
    auto all = on_all_bases(list, host);
    const auto at = [&](Basis basis) { return all[static_cast<std::size_t>(basis)]; };
    return with_closures({at(from), to == Basis::apparent ? apparent_from_true(list, host) : at(to)});
}

}  // namespace app
