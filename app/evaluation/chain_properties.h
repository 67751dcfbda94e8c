// Properties of polymers and oligomers from those of their segments.
#pragma once

#include <string>
#include <vector>

#include "app/case/case_model.h"
#include "app/evaluation/stream_list.h"

namespace app {

struct ChainProperties {
    std::string component;
    ComponentClass kind;
    std::vector<double> values;  // one for each property of the case
};

// Every polymer and oligomer of the selected stream: its own value where the case gives one, else the average
// over its segments. A chain without segments has no such average: its value is not a number.
std::vector<ChainProperties> chain_properties(const Case& input, const StreamList& list,
                                              const minihost::Host& host);

}  // namespace app
