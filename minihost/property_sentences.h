// Property sentences that the paragraph check builds and forwards: the way in which components get
// attributes.
#pragma once

#include <string>
#include <vector>

#include "minihost/store_words.h"

namespace minihost {

class AttributeTable;
class ComponentTable;
class KeywordTables;
class Store;

class PropertySentences {
public:
    struct Forwarded {
        std::string component;
        std::vector<std::string> names;
        std::string refusal;  // why the host refused it; empty when the component carries the attributes
    };

    PropertySentences(const Store& store, const ComponentTable& components, const KeywordTables& keywords,
                      AttributeTable& attributes)
        : store_(store), components_(components), keywords_(keywords), attributes_(attributes)
    {
    }

    // Takes a forwarded ATTR-COMPS sentence. Returns false, and says why in its record, when the ID is not a
    // component or a name is not an attribute. Throws Error for blocks that are not laid out as they must
    // be.
    bool process(BlockId head, BlockId descriptor);

    const std::vector<Forwarded>& forwarded() const { return forwarded_; }
    void clear() { forwarded_.clear(); }

private:
    void expect(BlockId block, const char* name, Int word, Word expected) const;
    void check_head(BlockId head, BlockId descriptor) const;
    void check_descriptor(BlockId descriptor) const;
    Forwarded read_values(BlockId values, Int names) const;
    std::string refusal_of(const Forwarded& sentence) const;

    const Store& store_;
    const ComponentTable& components_;
    const KeywordTables& keywords_;
    AttributeTable& attributes_;
    std::vector<Forwarded> forwarded_;
};

}  // namespace minihost
