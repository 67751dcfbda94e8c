// Components as the input names them: by an ID of eight characters.
#pragma once

#include <optional>

#include "input/blocks.h"

namespace polyprops::input {

inline std::optional<Component> find_component(const NamePair& id)
{
    constexpr Int names_a_component = 2;
    Int status = 0;
    Int index = 0;
    const auto& [first, second] = id.words;
    PS_FIND_COMPONENT(&first, &second, UT_COMPONENT_IDS, &status, &index);
    if (status != names_a_component) return std::nullopt;
    return Component{index};
}

inline Int number_of_components()
{
    return find_integers(word(UT_COMPONENT_IDS, 1))(1);
}

// The ID of a component in the host's own list: two words of the six that each component has.
inline NamePair id_of(Component c)
{
    const IntegerBlock ids = find_integers(word(UT_COMPONENT_IDS, 1));
    const Int first = 2 + 6 * (c.index - 1);
    return {ids(first), ids(first + 1)};
}

}  // namespace polyprops::input
