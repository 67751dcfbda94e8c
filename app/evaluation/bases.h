// A stream on three bases: apparent (a mole of a polymer is what its molecular weight in the case stands
// for), true (a mole of chains) and segment (chains taken apart into their segments).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/case/case_model.h"
#include "app/evaluation/stream_list.h"

namespace app {

enum class Basis { apparent, true_chains, segment };
std::string_view text(Basis basis);

// How much of one component, or on the segment basis of one segment, the stream holds.
struct Amount {
    std::string component;
    ComponentClass kind;
    double mole_flow;  // kmol/h
    double mass_flow;  // kg/h
    double mole_fraction;
    double mass_fraction;
};

struct Composition {
    Basis basis;
    std::vector<Amount> amounts;
};

struct Closure {
    Basis basis;
    double mole_fraction_sum;
    double mass_fraction_sum;
    double mole_flow;        // kmol/h
    double mass_flow;        // kg/h
    double mass_difference;  // of the mass flow from that of the first basis, relative to the latter
};

// Of the selected stream, in the order of the bases.
std::vector<Composition> compositions(const StreamList& list, const minihost::Host& host);

// One stream on the bases `from` and `to`. Chains cannot be told from segments: `from` is one of the others.
std::vector<Composition> convert(const std::string& stream, Basis from, Basis to, minihost::Host& host);

std::vector<Closure> closures(const std::vector<Composition>& compositions);

}  // namespace app
