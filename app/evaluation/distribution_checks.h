// What the averages of a distribution have to be by its sites, by their parameters and by the moments of a
// stream.
//
// The distribution of a site with parameters τ and β, s = τ + β, has area 1 and
//
//   1/Pn = τ + β/2      Pw = (2τ + 3β)/s²
//
// Polymer made in several increments or by several sites has the mass-weighted means of 1/Pn and Pw. By
// moments, Pn = first/zeroth and Pw = second/first. On one grid the composite has the means of its sites'
// curves to rounding.
#pragma once

#include "app/evaluation/distributions.h"

namespace app {

std::string section_curve_name(const DistributionSection& section);
std::string site_curve_name(const DistributionSection& section, std::size_t site);

std::vector<CurveCheck> curve_checks(const Distribution& distribution, const DistributionResults& results,
                                     minihost::Host& host);

}  // namespace app
