// The blocks of the CATSCALE sentence, and the component attribute blocks that it writes into.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "minihost/attributes.h"
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

// Each component's attribute block: a directory of its attributes, and three columns of reals.
class AttributeBlocks {
public:
    AttributeBlocks(Store& store, const ComponentTable& components) : store_(store), components_(components)
    {
    }

    // Lays a block for every component, replacing those of an earlier call, and points ST_PROPTAB at them.
    // The columns hold 0.
    void lay(const AttributeTable& attributes, const AttributeDimensions& dimensions);

    // Elements of an attribute in column 1, 2 or 3. Throws Error when there is no such attribute or column.
    std::vector<double> values(Int component, std::string_view attribute, Int column) const;

private:
    BlockId lay_ids();
    BlockId lay_component(Int component, const AttributeTable& attributes,
                          const AttributeDimensions& dimensions);
    void drop();

    Store& store_;
    const ComponentTable& components_;
    BlockId ids_ = 0;
    std::vector<BlockId> blocks_;
    BlockId directory_ = 0;
};

// Lays the data of a CATSCALE sentence and returns the id of the block that names them: its word 4 is the id
// of the data block. Throws Error for an unknown component.
BlockId lay_scaling_sentence(Store& store, const ComponentTable& components,
                             const std::vector<ScalingEntry>& entries);

}  // namespace minihost
