// The sections of the report for distributions and binary parameters.
#pragma once

#include "app/evaluation/parameter_results.h"
#include "app/evaluation/distributions.h"
#include "app/evaluation/measured_curve.h"
#include "app/report/report.h"

namespace app {

// `measured` may be null.
Section distribution_section(const DistributionResults& results, const GpcComparison* measured);
Section parameter_section(const ParameterResults& results);

}  // namespace app
