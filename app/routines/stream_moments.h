// Moments and averages of all polymer of a stream, one entry for each catalyst site type and the total last;
// the total as the only entry where no sites are distinguished.
#pragma once

#include "app/routines/component.h"
#include "minihost/streams.h"

namespace app::routines {

struct StreamMoments {
    Reals zeroth, first, second;  // kmol/h
    Reals mass;                   // kg/h

    std::size_t sites() const { return zeroth.size() - 1; }
};

// Molecular weights by component index, g/mol.
StreamMoments stream_moments(const minihost::StreamView& stream, const Reals& molecular_weights,
                             std::size_t sites);

struct PolymerMade {
    Reals mass;                 // kg/h
    Reals mean_segment_weight;  // g/mol
    Reals mn, mw;               // g/mol
    Reals dpn, dpw, pdi;        // 1

    std::size_t sites() const { return mass.size() - 1; }
};

// The polymer that the outlet holds beyond all inlets.
PolymerMade polymer_made(const std::vector<minihost::StreamView>& inlets, const minihost::StreamView& outlet,
                         const Reals& molecular_weights, std::size_t sites);

// The polymer of a stream: beyond an empty one.
PolymerMade polymer_held(const minihost::StreamView& stream, const Reals& molecular_weights,
                         std::size_t sites);

}  // namespace app::routines
