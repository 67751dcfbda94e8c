// Evaluates a case. The case must be free of errors in its file. Evaluations of one process take turns, and
// each leaves nothing behind. Throws minihost::Error for what the embedded host refuses.
#pragma once

#include "app/case/measured_curve.h"
#include "app/evaluation/results.h"

namespace app {

struct EvaluationOptions {
    const MeasuredCurve* measured = nullptr;  // curve to compare a composite with
    std::string measured_distribution = {};   // name of its distribution; empty: the only one
    bool library_output = true;               // false: without the library's own report and summary
};

// Throws std::runtime_error when the measured curve cannot be compared.
Results evaluate(const Case& input, const EvaluationOptions& options = {});

// The stream must be one of the case; segments do not tell the chains they came from, so `from` is not the
// segment basis.
ConversionResults evaluate_conversion(const Case& input, const std::string& stream, Basis from, Basis to);

// The named distribution of the case, its only one for an empty name. Throws std::runtime_error when there is
// none.
std::size_t find_distribution(const Case& input, const std::string& name);

// The segment weight that turns chain lengths into molecular weights. Throws std::runtime_error without one.
double required_segment_weight(const DistributionResults& distribution);

}  // namespace app
