// Numbers of a case that a run replaces.
#pragma once

#include <toml++/toml.h>

#include <string>

namespace app {

// A key as diagnostics write it: `streams.FEED.attributes.PS.ZMOM`, `distributions.PE.sites[2].tau`, a part
// with other characters than letters, digits, - and _ in quotes; elements of arrays count from 1.
struct Override {
    std::string key;
    double value = 0;
};

// Throws std::invalid_argument for a key that leads to no number of the case.
void apply(const Override& change, toml::table& root);

}  // namespace app
