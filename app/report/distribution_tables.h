// The section of a distribution.
#pragma once

#include "app/evaluation/distribution_results.h"
#include "app/report/report_model.h"

namespace app {

Section distribution_section(const DistributionResults& results);

}  // namespace app
