#include "app/case/case_model.h"

#include <algorithm>

namespace app {

std::string_view text(ComponentClass kind)
{
    if (kind == ComponentClass::polymer) return "polymer";
    if (kind == ComponentClass::oligomer) return "oligomer";
    return kind == ComponentClass::segment ? "segment" : "conventional";
}

const Component* Case::find(std::string_view id) const
{
    const auto found =
        std::ranges::find(components, id, [](const Component& c) -> std::string_view { return c.id; });
    return found == components.end() ? nullptr : &*found;
}

std::vector<std::string_view> Case::ids() const
{
    std::vector<std::string_view> ids;
    for (const auto& component : components) ids.push_back(component.id);
    return ids;
}

}  // namespace app
