// The sections of the report for distributions and binary parameters.
#pragma once

#include "cli/binary_parameters.h"
#include "cli/distributions.h"
#include "cli/gpc.h"
#include "cli/report.h"

namespace cli {

// `measured` may be null.
Section distribution_section(const DistributionResults& results, const GpcComparison* measured);
Section parameter_section(const ParameterResults& results);

}  // namespace cli
