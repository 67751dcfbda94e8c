#include "app/evaluation/bases.h"

#include <polyprops/polyprops.h>

namespace app {

namespace {

using Reals = std::vector<double>;
using minihost::Host;

constexpr Int selector = 1;
constexpr Int molar_quantity = 0;
constexpr Int as_they_are = 0;

// Amounts of a list of components, all by position.
struct Amounts {
    std::vector<Int> index;
    Reals mole_flow;
    Reals mole_fraction;
    Reals molecular_weight;
};

Reals weights_of(const std::vector<Int>& index, const StreamList& list)
{
    Reals weights;
    for (const Int c : index) weights.push_back(list.weight(c));
    return weights;
}

Reals chain_weights(const StreamList& list)
{
    Reals weights(list.index.size());
    const Int n = list.count();
    POLY_GETMWN(&selector, &n, list.index.data(), weights.data());
    return weights;
}

// Moles of the apparent basis in a mole of the true one, or a molar quantity times that.
Reals per_true_mole(const StreamList& list, const Reals& chain_weight, const Reals& quantity)
{
    Reals values(list.index.size());
    const Int n = list.count();
    POLY_VATOVT(&n, list.index.data(), list.molecular_weight.data(), chain_weight.data(), quantity.data(),
                values.data(), &molar_quantity);
    return values;
}

Reals mass_fractions(const Amounts& amounts)
{
    Reals fractions(amounts.index.size());
    const auto n = static_cast<Int>(fractions.size());
    POLY_XTTOWT(&n, amounts.mole_fraction.data(), amounts.molecular_weight.data(), fractions.data());
    return fractions;
}

Composition composition(Basis basis, const Amounts& amounts, const Reals& mass_fraction, const Host& host)
{
    Composition found{basis, {}};
    for (std::size_t i = 0; i < amounts.index.size(); ++i) {
        const auto& component = host.components().at(amounts.index[i]);
        found.amounts.push_back({component.id, component.component_class, amounts.mole_flow[i],
                                 amounts.mole_flow[i] * amounts.molecular_weight[i], amounts.mole_fraction[i],
                                 mass_fraction[i]});
    }
    return found;
}

Amounts apparent(const StreamList& list)
{
    Amounts amounts{list.index, list.mole_flow, Reals(list.index.size()), weights_of(list.index, list)};
    const Int n = list.count();
    const Int unused = 0;
    POLY_GETXSUB(&unused, list.flow_of_component.data(), &n, list.index.data(), amounts.mole_fraction.data());
    return amounts;
}

Amounts true_chains(const StreamList& list, const Amounts& apparent)
{
    Amounts amounts{list.index, list.mole_flow, Reals(list.index.size()), chain_weights(list)};
    const auto moles = per_true_mole(list, amounts.molecular_weight, Reals(list.index.size(), 1.0));
    // A chain without weight keeps its apparent amount, as POLY_XATOXT lets it.
    for (std::size_t i = 0; i < moles.size(); ++i)
        if (moles[i] != 0) amounts.mole_flow[i] /= moles[i];
    const Int n = list.count();
    POLY_XATOXT(&n, list.index.data(), list.molecular_weight.data(), apparent.mole_fraction.data(),
                amounts.mole_fraction.data());
    return amounts;
}

Amounts segment(const StreamList& list, const Amounts& chains)
{
    const auto& counts = list.counts;
    const auto room = list.index.size() + counts.segments.size();
    const Int n = list.count();
    const Int segments = counts.segment_count();
    Int found = 0;
    Amounts amounts{std::vector<Int>(room), Reals(room), Reals(room), {}};
    POLY_PFTOSF(&n, list.index.data(), chains.mole_flow.data(), counts.is_chain.data(),
                &counts.leading_dimension, counts.counts.data(), &segments, counts.segments.data(), &found,
                amounts.index.data(), amounts.mole_flow.data(), &as_they_are);
    POLY_XTTOXS(&n, list.index.data(), counts.is_chain.data(), chains.mole_fraction.data(),
                &counts.leading_dimension, counts.counts.data(), &segments, counts.segments.data(), &found,
                amounts.index.data(), amounts.mole_fraction.data());
    amounts.index.resize(static_cast<std::size_t>(found));
    amounts.molecular_weight = weights_of(amounts.index, list);
    return amounts;
}

// The way back of POLY_XATOXT: a quantity per mole grows as the moles become fewer.
Composition apparent_from_true(const StreamList& list, const Host& host)
{
    const auto chains = true_chains(list, apparent(list));
    Amounts back{list.index, per_true_mole(list, chains.molecular_weight, chains.mole_flow),
                 per_true_mole(list, chains.molecular_weight, chains.mole_fraction),
                 weights_of(list.index, list)};
    std::vector<Int> positions;
    for (Int i = 1; i <= list.count(); ++i) positions.push_back(i);
    const auto amounts = back.mole_fraction;
    const Int n = list.count();
    const Int unused = 0;
    POLY_GETXSUB(&unused, amounts.data(), &n, positions.data(), back.mole_fraction.data());
    return composition(Basis::apparent, back, mass_fractions(back), host);
}

}  // namespace

std::string_view text(Basis basis)
{
    switch (basis) {
        case Basis::apparent:
            return "apparent";
        case Basis::true_chains:
            return "true";
        case Basis::segment:
            return "segment";
    }
    return {};
}

std::vector<Composition> compositions(const StreamList& list, const Host& host)
{
    const auto as_given = apparent(list);
    const auto chains = true_chains(list, as_given);
    const auto segments = segment(list, chains);
    Reals as_given_mass(list.index.size());
    const Int n = list.count();
    POLY_XATOWT(as_given.mole_fraction.data(), &n, list.index.data(), as_given_mass.data());
    return {composition(Basis::apparent, as_given, as_given_mass, host),
            composition(Basis::true_chains, chains, mass_fractions(chains), host),
            composition(Basis::segment, segments, mass_fractions(segments), host)};
}

std::vector<Composition> convert(const std::string& stream, Basis from, Basis to, Host& host)
{
    const auto list = list_stream(stream, host);
    const auto all = compositions(list, host);
    const auto& first = all[static_cast<std::size_t>(from)];
    if (to == Basis::apparent) return {first, apparent_from_true(list, host)};
    return {first, all[static_cast<std::size_t>(to)]};
}

std::vector<Closure> closures(const std::vector<Composition>& compositions)
{
    std::vector<Closure> found;
    for (const auto& [basis, amounts] : compositions) {
        Closure closure{basis, 0, 0, 0, 0, 0};
        for (const auto& a : amounts) {
            closure.mole_fraction_sum += a.mole_fraction;
            closure.mass_fraction_sum += a.mass_fraction;
            closure.mole_flow += a.mole_flow;
            closure.mass_flow += a.mass_flow;
        }
        found.push_back(closure);
        const double first = found.front().mass_flow;
        if (first != 0) found.back().mass_difference = (closure.mass_flow - first) / first;
    }
    return found;
}

}  // namespace app
