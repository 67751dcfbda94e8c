// Values that a case gives and no result takes: attributes of streams, and the dpn and pdi parameters of
// polymers.
#pragma once

#include <vector>

#include "app/case/case_model.h"
#include "app/evaluation/stream_results.h"

namespace app {

// A warning for each, with the value that was taken instead and the difference, where there is one. The
// results are those of all streams of the case.
std::vector<Diagnostic> unused_values(const Case& input, const std::vector<StreamResults>& results,
                                      minihost::Host& host);

}  // namespace app
