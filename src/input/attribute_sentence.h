// One ATTR-COMPS entry on its way to the host's property semantics, as the keyword sentence that the host's
// own translator would have made of it.
#pragma once

#include "input/sentence_data.h"

namespace polyprops::input {

struct AttributeEntry {
    NamePair component;  // as written
    Int name_count;
    Int names;  // the word at which the list of attribute names begins
};

AttributeEntry attribute_entry(const SentenceWords& words, Int entry);

void forward_attribute_sentence(const AttributeEntry& entry, const Sentence& attributes, const void* context);

}  // namespace polyprops::input
