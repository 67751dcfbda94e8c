// Moments of polymer chains from their mass or number, composition and averages, and the attributes that
// follow from moments.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "app/case/attribute_elements.h"

namespace app {

// Of one polymer in one stream. A moment that is not known is absent.
struct ChainMoments {
    std::optional<double> zeroth;         // chains, kmol/h
    std::optional<double> first;          // segments, kmol/h
    std::optional<double> second, third;  // kmol/h
    std::vector<double> segment_flows;    // kmol/h, in component order
    double mass = 0;                      // kg/h
};

// The moments of all fractions together; empty when a diagnostic tells why there are none.
std::optional<ChainMoments> chain_moments(const PolymerChains& chains, const Segments& segments,
                                          Diagnostics& diagnostics);

// The values of an attribute; empty when it does not follow from the moments.
std::vector<double> attribute_values(const ChainMoments& moments, std::string_view attribute);

}  // namespace app
