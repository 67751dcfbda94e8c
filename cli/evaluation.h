// A case evaluated: from its text to its report.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cli/distributions.h"
#include "cli/report.h"
#include "minihost/host.h"

namespace cli {

struct MeasuredCurve {
    std::string distribution;  // empty: the only one
    std::string file;
    GpcCurve curve;
};

struct Evaluation {
    Case input;
    std::unique_ptr<minihost::Host> host;
    std::vector<DistributionResults> distributions;
    Report report;
    std::vector<std::string> errors;  // lines without the name of the case; the results are incomplete
    std::vector<std::string> notes;   // the same; the results stand

    // The named distribution, the only one for an empty name. Throws std::runtime_error.
    const DistributionResults& distribution(const std::string& name) const;
};

// The case must be free of errors. `measured` may be null.
Evaluation evaluate_case(Case input, const MeasuredCurve* measured = nullptr);

}  // namespace cli
