// Contradictions among the values that a stream gives of its polymers. Only values of the case file are
// compared, never a value with one that was derived from it.
#pragma once

#include <vector>

#include "app/evaluation/given_polymer.h"

namespace app {

// A warning for each pair of values that differ by more than 0.01 % of the larger; it says which of them the
// results use.
std::vector<Diagnostic> contradictions(const Stream& stream, const Settings& settings, minihost::Host& host);

// The length and the weight of an oligomer's molecule by its parameters and by its segments.
std::vector<Diagnostic> oligomer_contradictions(const Case& input);

}  // namespace app
