// Results of catalyst site types in the host's summary file.
#pragma once

#include "app/routines/stream_moments.h"
#include "minihost/embedded_host.h"

namespace app::routines {

// One entry for each site type, or the polymer as a whole where no sites are distinguished.
void publish_sites(minihost::Host& host, const std::string& stream, const PolymerMade& polymer);

}  // namespace app::routines
