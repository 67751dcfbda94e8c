// The sections of streams and reactors.
#pragma once

#include "app/evaluation/reactors.h"
#include "app/evaluation/stream_results.h"
#include "app/report/report_model.h"

namespace app {

Section stream_section(const StreamResults& results, const Case& input);
Section reactor_section(const ReactorResults& results);

// The composition of a stream on two bases.
Section conversion_section(const std::string& stream, const Compositions& compositions);

}  // namespace app
