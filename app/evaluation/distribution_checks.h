// Averages of a distribution by the parameters of its sites and by the moments of a stream, and warnings
// about its results. By moments, Pn = first/zeroth and Pw = second/first.
#pragma once

#include "app/case/distribution_model.h"
#include "app/evaluation/distribution_results.h"
#include "app/routines/stream_moments.h"

namespace app {

std::string section_curve_name(const DistributionSection& section);
std::string site_curve_name(const DistributionSection& section, std::size_t site);

std::vector<CurveCheck> curve_checks(const Distribution& distribution, const DistributionResults& results,
                                     const routines::StreamMoments& moments);

// Chains so short that their lengths are not continuous.
std::vector<std::string> distribution_notes(const Distribution& distribution);

// Moments or a segment weight that contradict the stream, of which `stream_weight` is the mean segment weight
// in g/mol, 0 without polymer; mass outside the grid, a grid too coarse, an exponent without use.
std::vector<Diagnostic> distribution_warnings(const Distribution& distribution,
                                              const DistributionResults& results, double stream_weight);

}  // namespace app
