// Binary parameter sets of a case, completed and evaluated over their temperatures.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/case/case_model.h"
#include "app/routines/pair_parameters.h"

namespace app {

using routines::PairMatrix;

struct ParametersAtTemperature {
    double temperature;                     // K
    PairMatrix values;                      // the parameter K
    PairMatrix slopes;                      // T·dK/dT
    std::optional<PairMatrix> derivatives;  // dK/dT, only of the general form with a reference position
};

struct ParameterResults {
    std::string name;
    std::string unit;
    std::vector<std::string> components;
    routines::PairCoefficients coefficients;  // completed
    std::vector<bool> is_given;               // whether the file gives the ordered pair
    PairMatrix has_data;  // 1 where it gives the pair in either order, and on the diagonal; otherwise 0
    std::vector<ParametersAtTemperature> temperatures;

    std::size_t positions() const { return static_cast<std::size_t>(coefficients.positions); }
    // Of the ordered pair (i, j), both from 0.
    std::size_t pair(std::size_t i, std::size_t j) const { return j * components.size() + i; }
};

std::vector<ParameterResults> evaluate_parameters(const Case& input);

}  // namespace app
