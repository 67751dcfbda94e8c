#include "app/routines/publication.h"

#include <polyprops/polyprops.h>

#include <algorithm>

namespace app::routines {

void publish_distribution(minihost::Host& host, const std::string& name, CurveForm form, const Reals& lengths,
                          const Reals& composite, const std::vector<Reals>& sections)
{
    Reals values = composite;
    for (const auto& section : sections) values.insert(values.end(), section.begin(), section.end());
    const auto points = static_cast<Int>(lengths.size());
    const auto section_count = static_cast<Int>(sections.size());
    const double scale = 1.0;
    const Int is_scaled = 0;
    const Int is_gpc = form == CurveForm::gpc ? 1 : 0;
    POLY_CSDPLOT(host.summary().context(name), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                 nullptr, nullptr, &points, lengths.data(), values.data(), &section_count, &scale, &is_scaled,
                 &is_gpc);
}

void publish_sites(minihost::Host& host, const std::string& stream, const PolymerMade& polymer)
{
    const auto sites = static_cast<Int>(std::max<std::size_t>(polymer.sites(), 1));
    POLY_WRTPOLSUM(host.summary().context(stream), &sites, polymer.mass.data(),
                   polymer.mean_segment_weight.data(), polymer.mn.data(), polymer.mw.data(),
                   polymer.dpn.data(), polymer.dpw.data(), polymer.pdi.data());
}

}  // namespace app::routines
