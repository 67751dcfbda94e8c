// Component attribute blocks, into which the library writes the values of the CATSCALE sentence.
#pragma once

#include <string_view>
#include <vector>

#include "minihost/attributes.h"
#include "minihost/store_words.h"

namespace minihost {

class ComponentTable;
class Store;

// A block per component: a directory of its attributes, and three columns of reals.
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

}  // namespace minihost
