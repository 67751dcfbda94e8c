#include "app/host_setup/required_attributes.h"

#include <fmt/format.h>

#include <algorithm>

namespace app {

namespace {

using minihost::Host;

struct Requirement {
    std::string_view attribute;
    std::string_view expected;
    std::string_view otherwise;
};

constexpr Requirement by_site[] = {
    {"SZMOM", "a number for each site type, in kmol/h", "the site types would have no chains"},
    {"SSFLOW", "a number for each segment of each site type, in kmol/h",
     "the site types would have no segments"},
    {"SSMOM", "a number for each site type, in kmol/h", "Mw of the site types would be 0"},
};

std::vector<Requirement> requirements(const Case& input, const Component& component, Int index, Host& host)
{
    const auto is_carried = [&](std::string_view name) {
        return host.attributes().find(index, name) != nullptr;
    };
    std::vector<Requirement> all{
        {"ZMOM", "a number in kmol/h", "the chains would not be counted"},
        {"SFLOW", "a number for each segment, in kmol/h", "the segments would not be known"}};
    if (!is_carried("DPN"))
        all.push_back({"FMOM", "a number in kmol/h", "Mn would be that of one segment"});
    else if (!component.dpn)
        all.push_back({"DPN", "a number of segments per chain", "Mn would be that of one segment"});
    if (!input.settings.pdi_from_parameters) all.push_back({"SMOM", "a number in kmol/h", "Mw would be 0"});
    if (host.dimensions().segments > 1)
        all.push_back({"SFRAC", "a mole fraction for each segment", "all segments would share equally"});
    if (host.dimensions().sites > 0 && std::ranges::all_of(by_site, is_carried, &Requirement::attribute))
        all.insert(all.end(), std::begin(by_site), std::end(by_site));
    std::erase_if(all, [&](const Requirement& needed) { return !is_carried(needed.attribute); });
    return all;
}

}  // namespace

void check_required_attributes(const Case& input, const Stream& stream, const Flow& polymer, Host& host,
                               Diagnostics& diagnostics)
{
    const auto& id = polymer.component.id;
    const auto is_of_polymer = [&](const AttributeValue& value) { return value.component.id == id; };
    const auto first = std::ranges::find_if(stream.attributes, is_of_polymer);
    const auto* component = input.find(id);
    if (first == stream.attributes.end() || !component) return;
    for (const auto& needed : requirements(input, *component, host.components().index(id), host)) {
        const auto is_given = [&](const AttributeValue& value) {
            return is_of_polymer(value) && value.name.id == needed.attribute;
        };
        if (std::ranges::none_of(stream.attributes, is_given))
            diagnostics.add(
                first->component.source,
                fmt::format("streams.{}.attributes.{}.{} is missing; expected {}, since {} carries it: {} "
                            "without it",
                            stream.name.id, id, needed.attribute, needed.expected, id, needed.otherwise));
    }
}

}  // namespace app
