// The index of a component in the order of the case, from 1: not a position in a list of components.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace app::routines {

using Int = std::int64_t;
using Reals = std::vector<double>;

struct Component {
    Int index = 0;
    bool operator==(const Component&) const = default;
};

using Components = std::vector<Component>;

// The place of a component in a vector by component index.
inline std::size_t at(Component c)
{
    return static_cast<std::size_t>(c.index - 1);
}

inline std::vector<Int> indices(const Components& components)
{
    std::vector<Int> all;
    all.reserve(components.size());
    for (const auto c : components) all.push_back(c.index);
    return all;
}

inline Int count(const Components& components)
{
    return std::ssize(components);
}

}  // namespace app::routines
