// Moments and averages of all polymer of a stream, per catalyst site type and in total.
#pragma once

#include <string>
#include <vector>

#include "minihost/embedded_host.h"

namespace app {

// One entry per site type and the total last; the total alone in a stream whose polymers carry no site
// moments.
struct StreamMoments {
    std::vector<double> zeroth, first, second;  // kmol/h
    std::vector<double> mass;                   // kg/h

    std::size_t sites() const { return zeroth.size() - 1; }
};
StreamMoments stream_moments(const std::string& stream, minihost::Host& host);

struct PolymerResults {
    std::vector<double> mass;            // kg/h
    std::vector<double> segment_weight;  // g/mol
    std::vector<double> mn, mw;          // g/mol
    std::vector<double> dpn, dpw, pdi;   // 1
};
PolymerResults polymer_results(const std::string& stream, minihost::Host& host);

}  // namespace app
