// Options for reading a measured curve, as texts: for programs and for the interface for C.
#pragma once

#include <span>
#include <string_view>

#include "app/case/measured_curve.h"

namespace app {

struct MeasuredOption {
    const char* key;   // such as "window"
    const char* form;  // of the value, such as "M1:M2"
    const char* purpose;
    const char* expected;                                                // description of a valid value
    bool (*set)(std::string_view value, MeasuredCurveOptions& options);  // false: not valid
};

std::span<const MeasuredOption> measured_options();

// Throws std::invalid_argument with the value and the expectation when it is not valid.
void set(const MeasuredOption& option, std::string_view value, MeasuredCurveOptions& options);

}  // namespace app
