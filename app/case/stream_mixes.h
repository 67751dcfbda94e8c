// Streams that are mixtures of other streams.
#pragma once

#include "app/case/case_model.h"

namespace app {

// Gives flows and attribute values to each stream with a mix. The mixes lead to streams of the case and to
// no cycle.
void mix_streams(Case& input, Diagnostics& diagnostics);

}  // namespace app
