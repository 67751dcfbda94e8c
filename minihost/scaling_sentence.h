// The CATSCALE sentence: values for attributes of catalysts, in the blocks in which a host delivers them.
#pragma once

#include <string>
#include <vector>

#include "minihost/store_words.h"

namespace minihost {

class ComponentTable;
class Store;

// One entry: two values for an attribute of a component. A value at the missing-value bound is not given.
struct ScalingEntry {
    std::string component;
    std::string attribute;
    double first;
    double second;
};

// Lays the data of a CATSCALE sentence and returns the id of the block that names them: its word 4 is the id
// of the data block. Throws Error for an unknown component.
BlockId lay_scaling_sentence(Store& store, const ComponentTable& components,
                             const std::vector<ScalingEntry>& entries);

}  // namespace minihost
