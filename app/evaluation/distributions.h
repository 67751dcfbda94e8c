// Evaluates the chain-length distributions of a case.
#pragma once

#include "app/case/case_model.h"
#include "app/evaluation/distribution_results.h"
#include "minihost/embedded_host.h"

namespace app {

std::vector<DistributionResults> evaluate_distributions(const Case& input, minihost::Host& host);

// Has the library write a distribution to the host's report and summary files.
void publish(const DistributionResults& results, minihost::Host& host);

}  // namespace app
