// Averages of a distribution from its sites, from their parameters and from the moments of a stream.
//
// The distribution of a site with parameters τ and β, s = τ + β, has area 1 and
//
//   1/Pn = τ + β/2      Pw = (2τ + 3β)/s²
//
// Polymer made in several increments or by several sites has the mass-weighted means of 1/Pn and Pw. By
// moments, Pn = first/zeroth and Pw = second/first. On one grid the composite has the means of its sites'
// curves to rounding.
#pragma once

#include "app/case/distribution_model.h"
#include "app/evaluation/distribution_results.h"
#include "app/routines/stream_moments.h"

namespace app {

std::string section_curve_name(const DistributionSection& section);
std::string site_curve_name(const DistributionSection& section, std::size_t site);

// `moments` of the stream of the distribution; null without one.
std::vector<CurveCheck> curve_checks(const Distribution& distribution, const DistributionResults& results,
                                     const routines::StreamMoments* moments);

// A warning for each curve whose averages differ from those of its sites or moments by more than the grid
// leaves open.
std::vector<Diagnostic> disagreements(const Distribution& distribution, const DistributionResults& results);

}  // namespace app
