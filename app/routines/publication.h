// The library's own report and summary of distributions and sites, in the files of the host.
#pragma once

#include "app/routines/chain_length_distribution.h"
#include "app/routines/stream_moments.h"
#include "minihost/embedded_host.h"

namespace app::routines {

// A composite and the sections that make it up, all on the grid of `lengths`: a table in the report file,
// plot data in the summary file.
void publish_distribution(minihost::Host& host, const std::string& name, CurveForm form, const Reals& lengths,
                          const Reals& composite, const std::vector<Reals>& sections);

// Results of the site types in the summary file, or of the polymer as a whole where no sites are
// distinguished.
void publish_sites(minihost::Host& host, const std::string& stream, const PolymerMade& polymer);

}  // namespace app::routines
