#include "app/evaluation/average_sources.h"

#include <fmt/format.h>

namespace app {

namespace {

// The library passes over a value that is not above 1 and below the missing-value bound.
bool is_usable(const GivenPolymer& polymer, std::string_view attribute, const Settings& settings)
{
    return polymer.gives(attribute) && polymer.value(attribute) > 1 &&
           polymer.value(attribute) < settings.missing_value_bound;
}

bool has_usable_moments(const GivenPolymer& polymer, const std::vector<GivenSegment>& segments,
                        const Settings& settings)
{
    if (!polymer.carries("SMOM") || !polymer.gives_all({"ZMOM", "SFLOW"})) return false;
    const double chains = polymer.value("ZMOM");
    double mass = 0;
    for (std::size_t s = 0; s < segments.size(); ++s)
        mass += segments[s].molecular_weight * polymer.elements("SFLOW")[s];
    return chains > settings.zero_bound && chains < settings.missing_value_bound &&
           mass >= settings.zero_bound && polymer.sum("SFLOW") >= settings.zero_bound;
}

double sum_or_zero(const GivenPolymer& polymer, std::string_view attribute)
{
    return polymer.gives(attribute) ? polymer.sum(attribute) : 0;
}

std::string length(const GivenPolymer& polymer, bool takes_parameter, const Settings& settings)
{
    if (takes_parameter) return "the dpn parameter";
    if (polymer.carries("DPN")) return "DPN";
    const std::string segments = polymer.carries("FMOM") ? "FMOM" : "SFLOW";
    if (!polymer.carries("ZMOM")) return segments + " and the end segments in SFLOW";
    for (const auto& name : {segments, std::string{"ZMOM"}})
        if (!(sum_or_zero(polymer, name) > settings.zero_bound))
            return fmt::format("the least length, one segment, since {} is 0", name);
    return segments + " and ZMOM";
}

std::string segment_weight(const GivenPolymer& polymer, bool takes_attribute, const Settings& settings)
{
    if (takes_attribute) return "MWSEG";
    const char* fractions = polymer.carries("SFRAC") ? "SFRAC" : "SFLOW";
    return sum_or_zero(polymer, fractions) > settings.zero_bound ? fractions : "equal shares of the segments";
}

}  // namespace

AverageSources average_sources(const Settings& settings, const GivenPolymer& polymer,
                               const std::vector<GivenSegment>& segments)
{
    AverageSources sources{polymer.carries("DPN") && !is_usable(polymer, "DPN", settings),
                           settings.pdi_from_parameters || !has_usable_moments(polymer, segments, settings),
                           is_usable(polymer, "MWSEG", settings),
                           {},
                           {},
                           "ZMOM, SMOM and SFLOW"};
    sources.length = length(polymer, sources.takes_dpn_parameter, settings);
    sources.mean_segment_weight = segment_weight(polymer, sources.takes_segment_weight, settings);
    if (sources.takes_pdi_parameter) sources.dispersity = "the pdi parameter";
    return sources;
}

}  // namespace app
