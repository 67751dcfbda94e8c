#include "app/routines/site_summary.h"

#include <polyprops/polyprops.h>

#include <algorithm>

namespace app::routines {

void publish_sites(minihost::Host& host, const std::string& stream, const PolymerMade& polymer)
{
    const auto sites = static_cast<Int>(std::max<std::size_t>(polymer.sites(), 1));
    POLY_WRTPOLSUM(host.summary().context(stream), &sites, polymer.mass.data(),
                   polymer.mean_segment_weight.data(), polymer.mn.data(), polymer.mw.data(),
                   polymer.dpn.data(), polymer.dpw.data(), polymer.pdi.data());
}

}  // namespace app::routines
