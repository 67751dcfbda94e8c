#include "app/evaluation/input_results.h"

#include "app/host_setup/loaded_case.h"

namespace app {

namespace {

using minihost::Host;

std::vector<CarriedAttribute> carried_attributes(Host& host)
{
    std::vector<CarriedAttribute> all;
    for (Int c = 1; c <= host.components().count(); ++c)
        for (const auto& carried : host.attributes().carried_by(c))
            all.push_back({host.components().at(c).id, std::string{carried.kind->name},
                           minihost::attribute_length(*carried.kind, host.dimensions())});
    return all;
}

std::vector<ScaledElement> scaled_elements(const Case& input, Host& host)
{
    std::vector<ScaledElement> all;
    for (const auto& entry : input.catalyst_scaling) {
        const auto& [component, attribute] = std::pair{entry.component.id, entry.attribute.id};
        const auto index = host.components().index(component);
        // Not carried, and reported with a severity that the case does not print.
        if (!host.attributes().find(index, attribute)) continue;
        const auto first = host.attribute_blocks().values(index, attribute, 3);
        const auto second = host.attribute_blocks().values(index, attribute, 1);
        for (std::size_t e = 0; e < first.size(); ++e)
            all.push_back({component, attribute, static_cast<Int>(e) + 1, first[e], second[e]});
    }
    return all;
}

}  // namespace

InputResults evaluate_input(const Case& input)
{
    const LoadedCase loaded{input};
    if (!loaded.messages().empty()) return {loaded.messages(), {}, {}, {}};
    return {{},
            minihost::read_polymer_input(loaded.host()),
            carried_attributes(loaded.host()),
            scaled_elements(input, loaded.host())};
}

}  // namespace app
