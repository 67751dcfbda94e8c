// A case evaluated: from its text to its report.
#pragma once

#include <string>
#include <vector>

#include "app/evaluation/distributions.h"
#include "app/evaluation/measured_curve.h"
#include "app/report/report.h"
#include "minihost/embedded_host.h"

namespace app {

struct MeasuredCurve {
    std::string distribution;  // empty: the only one
    std::string file;
    GpcCurve curve;
};

struct Evaluation {
    Case input;
    CheckedInput checked;
    bool has_results = false;
    std::vector<DistributionResults> distributions;
    Report report;
    std::vector<std::string> errors;  // to print: what was dropped, refused or did not come out finite
    std::vector<std::string> notes;   // the same, of results that stand

    // The named distribution, the only one for an empty name. Throws std::runtime_error.
    const DistributionResults& distribution(const std::string& name) const;
};

// The case must be free of errors in its file. Only one evaluation exists at a time. `measured` may be null.
Evaluation evaluate_case(Case input, const MeasuredCurve* measured = nullptr);

}  // namespace app
