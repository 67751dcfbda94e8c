// Binary parameter sets of a case, completed and evaluated over their temperatures.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/case/case_model.h"

namespace app {

// A value per ordered pair of components, first subscript fastest.
using PairMatrix = std::vector<double>;

struct ParametersAtTemperature {
    double temperature;                     // K
    PairMatrix values;                      // the parameter K
    PairMatrix slopes;                      // T·dK/dT
    std::optional<PairMatrix> derivatives;  // dK/dT, of the general form with a reference position alone
};

struct ParameterResults {
    std::string name;
    std::string unit;
    std::vector<std::string> components;
    std::size_t positions = 0;
    std::vector<double> coefficients;  // completed; by position, first component, second component
    std::vector<bool> is_given;        // whether the file gives the ordered pair
    std::vector<ParametersAtTemperature> temperatures;

    // Of the ordered pair (i, j), both from 0.
    std::size_t pair(std::size_t i, std::size_t j) const { return j * components.size() + i; }
};

std::vector<ParameterResults> evaluate_parameters(const Case& input);

}  // namespace app
