// Input as checked: the contents of the polymer block, carried attributes and scaled catalyst attributes.
#pragma once

#include <string>
#include <vector>

#include "app/case/case_model.h"
#include "app/case/input_message.h"
#include "minihost/polymer_input.h"

namespace app {

struct CarriedAttribute {
    std::string component;
    std::string attribute;
    Int values;  // number of values
};

struct ScaledElement {
    std::string component;
    std::string attribute;
    Int element;  // from 1
    double first;
    double second;
};

struct InputResults {
    std::vector<InputMessage> messages;  // the rest is empty when there is one
    minihost::PolymerInput polymer_input;
    std::vector<CarriedAttribute> attributes;
    std::vector<ScaledElement> catalyst_scaling;
};

// Stops after the input checks.
InputResults evaluate_input(const Case& input);

}  // namespace app
