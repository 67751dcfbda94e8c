#include "app/evaluation/parameter_results.h"

#include <algorithm>

namespace app {

namespace {

// A pair without data has coefficients of 0; with this reference temperature its parameter is 0 as well.
constexpr double default_reference_temperature = 298.15;  // K

std::size_t place(const ParameterSet& set, const std::string& id)
{
    return static_cast<std::size_t>(std::ranges::find(set.components, id, &PlacedName::id) -
                                    set.components.begin());
}

void set_given_pairs(const ParameterSet& set, ParameterResults& results)
{
    for (const auto& pair : set.pairs) {
        const auto at = results.pair(place(set, pair.first.id), place(set, pair.second.id));
        results.is_given[at] = true;
        std::ranges::copy(pair.values, results.coefficients.values.begin() +
                                           static_cast<std::ptrdiff_t>(at * results.positions()));
    }
}

void mark_pairs_with_data(ParameterResults& results)
{
    const auto size = results.components.size();
    for (std::size_t i = 0; i < size; ++i)
        for (std::size_t j = 0; j < size; ++j)
            if (i == j || results.is_given[results.pair(i, j)] || results.is_given[results.pair(j, i)])
                results.has_data[results.pair(i, j)] = 1;
}

void complete(const ParameterSet& set, ParameterResults& results)
{
    routines::complete_pairs(results.coefficients, set.leading_positions, set.is_antisymmetric);
    if (set.reference_position < 1) return;
    const auto reference_place = static_cast<std::size_t>(set.reference_position - 1);
    for (std::size_t at = 0; at < results.is_given.size(); ++at) {
        auto& reference = results.coefficients.values[at * results.positions() + reference_place];
        if (reference == 0) reference = default_reference_temperature;
    }
}

ParametersAtTemperature evaluate(const ParameterSet& set, const routines::PairCoefficients& coefficients,
                                 double temperature)
{
    auto slopes = routines::pair_slopes(coefficients, temperature);
    if (set.form == ParameterForm::general && set.reference_position > 0)
        return {temperature, routines::general_pair_parameters(coefficients, temperature), std::move(slopes),
                routines::general_pair_derivatives(coefficients, temperature)};
    return {temperature, routines::pair_parameters(coefficients, temperature), std::move(slopes), {}};
}

ParameterResults evaluate(const ParameterSet& set)
{
    const auto pairs = set.components.size() * set.components.size();
    ParameterResults results{set.name.id, set.unit, {}, {}, std::vector<bool>(pairs), PairMatrix(pairs), {}};
    for (const auto& component : set.components) results.components.push_back(component.id);
    results.coefficients = {std::ssize(set.components), set.positions, set.reference_position, {}};
    results.coefficients.values.resize(pairs * results.positions());
    set_given_pairs(set, results);
    mark_pairs_with_data(results);
    complete(set, results);
    for (const double temperature : set.temperatures)
        results.temperatures.push_back(evaluate(set, results.coefficients, temperature));
    return results;
}

}  // namespace

std::vector<ParameterResults> evaluate_parameters(const Case& input)
{
    std::vector<ParameterResults> results;
    for (const auto& set : input.parameter_sets) results.push_back(evaluate(set));
    return results;
}

}  // namespace app
