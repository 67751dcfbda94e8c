#include "app/evaluation/parameter_results.h"

#include <polyprops/polyprops.h>

#include <algorithm>

namespace app {

namespace {

// A pair that nobody gives has coefficients of 0; with this reference temperature its parameter is 0 as well.
constexpr double default_reference_temperature = 298.15;  // K

std::size_t place(const ParameterSet& set, const std::string& id)
{
    return static_cast<std::size_t>(std::ranges::find(set.components, id, &PlacedName::id) -
                                    set.components.begin());
}

void give(const ParameterSet& set, ParameterResults& results)
{
    for (const auto& pair : set.pairs) {
        const auto at = results.pair(place(set, pair.first.id), place(set, pair.second.id));
        results.is_given[at] = true;
        std::ranges::copy(pair.values,
                          results.coefficients.begin() + static_cast<std::ptrdiff_t>(at * results.positions));
    }
}

void complete(const ParameterSet& set, ParameterResults& results)
{
    const Int components = std::ssize(set.components);
    const Int mode = set.is_antisymmetric ? 2 : 1;
    POLY_TBPARI(&set.positions, &components, results.coefficients.data(), &set.leading_positions, &mode);
    if (set.reference_position < 1) return;
    for (std::size_t at = 0; at < results.is_given.size(); ++at) {
        auto& reference =
            results
                .coefficients[at * results.positions + static_cast<std::size_t>(set.reference_position - 1)];
        if (reference == 0) reference = default_reference_temperature;
    }
}

ParametersAtTemperature evaluate(const ParameterSet& set, const std::vector<double>& coefficients,
                                 double temperature)
{
    const Int m = std::ssize(set.components);
    const auto pairs = set.components.size() * set.components.size();
    const auto* p = coefficients.data();
    const std::vector<double> selected(set.components.size(), 1.0);
    const std::vector<Int> mask(set.components.size());
    ParametersAtTemperature result{temperature, PairMatrix(pairs), PairMatrix(pairs), {}};
    POLY_DKIJ5(&temperature, &set.positions, &set.reference_position, &m, p, selected.data(), mask.data(),
               result.slopes.data());
    if (set.form == ParameterForm::general && set.reference_position > 0) {
        const Int with_derivatives = 2;
        result.derivatives.emplace(pairs);
        POLY_TBKIJ4(&temperature, &set.positions, &set.reference_position, &m, p, result.values.data(),
                    result.derivatives->data(), &with_derivatives, selected.data());
        POLY_TBKIJ3(&temperature, &set.positions, &set.reference_position, &m, p, result.values.data());
    } else {
        POLY_KIJ5(&temperature, &set.positions, &set.reference_position, &m, p, selected.data(), mask.data(),
                  result.values.data());
    }
    return result;
}

ParameterResults evaluate(const ParameterSet& set)
{
    ParameterResults results{set.name.id, set.unit, {}, static_cast<std::size_t>(set.positions), {}, {}, {}};
    for (const auto& component : set.components) results.components.push_back(component.id);
    const auto pairs = set.components.size() * set.components.size();
    results.coefficients.resize(pairs * results.positions);
    results.is_given.resize(pairs);
    give(set, results);
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
