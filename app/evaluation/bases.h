// A stream on three bases: apparent (a mole of a polymer has its molecular weight in the case), true (a mole
// of chains) and segment (chains taken apart into their segments).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/case/case_model.h"
#include "app/evaluation/stream_list.h"

namespace app {

enum class Basis { apparent, true_chains, segment };
std::string_view text(Basis basis);

// The amount of one component, or on the segment basis of one segment.
struct Amount {
    std::string component;
    ComponentClass kind;
    double mole_flow;  // kmol/h
    double mass_flow;  // kg/h
    double mole_fraction;
    double mass_fraction;
};

struct Closure {
    Basis basis;
    double mole_fraction_sum;
    double mass_fraction_sum;
    double mole_flow;        // kmol/h
    double mass_flow;        // kg/h
    double mass_difference;  // of the mass flow from that of the first basis, relative to the latter
};

struct Composition {
    Basis basis;
    std::vector<Amount> amounts;
};

// In the order of the bases; the closures have an entry for each composition.
struct Compositions {
    std::vector<Composition> bases;
    std::vector<Closure> closures;
};

// Of the selected stream on all bases.
Compositions compositions(const StreamList& list, const minihost::Host& host);

// One stream on the bases `from` and `to`. Chains cannot be told from segments: `from` is another basis.
Compositions convert(const std::string& stream, Basis from, Basis to, minihost::Host& host);

}  // namespace app
