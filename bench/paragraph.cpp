// One check of a large polymer paragraph through the embedded host, for counting its instructions.
//
//   polyprops_paragraph                   names the routine
//   polyprops_paragraph POLY_POLSEM N     checks a paragraph of N components: a quarter of them
//                                         segments, an eighth polymers with attribute lists, half as many
//                                         oligomer entries as components
#include <cstdio>
#include <string>

#include "minihost/embedded_host.h"
#include "polyprops/polyprops.h"

namespace {

using minihost::ComponentClass;

std::vector<minihost::Component> components(int count)
{
    std::vector<minihost::Component> all;
    for (int c = 0; c < count; ++c) {
        const std::string number = std::to_string(c);
        ComponentClass kind = ComponentClass::oligomer;
        if (c % 4 == 0) kind = ComponentClass::segment;
        if (c % 8 == 1) kind = ComponentClass::polymer;
        all.push_back(
            {.id = "C" + number, .name = "N" + number, .component_class = kind, .molecular_weight = 28});
    }
    return all;
}

std::vector<minihost::Sentence> paragraph(const std::vector<minihost::Component>& all)
{
    minihost::PolymerSentence polymers;
    minihost::SegmentSentence segments;
    minihost::OligomerSentence oligomers;
    minihost::AttributeSentence attributes;
    for (const auto& component : all) {
        if (component.component_class == ComponentClass::segment)
            segments.entries.push_back({component.id, 2});
        if (component.component_class != ComponentClass::polymer) continue;
        polymers.ids.push_back(component.id);
        attributes.entries.push_back({component.id, {"ZMOM", "FMOM", "SMOM", "SFLOW"}});
    }
    const std::size_t entries = all.size() / 2;
    for (std::size_t k = 0, c = 0; k < entries; ++k, c = (c + 1) % all.size()) {
        while (all[c].component_class != ComponentClass::oligomer) c = (c + 1) % all.size();
        oligomers.entries.push_back({all[c].id, segments.entries[k % segments.entries.size()].id, 2.0});
    }
    return {polymers, segments, attributes, oligomers};
}

}  // namespace

int main(int count, char** arguments)
{
    if (count != 3) {
        std::puts("POLY_POLSEM");
        return 0;
    }
    const auto all = components(std::stoi(arguments[2]));
    minihost::Host host{all};
    host.paragraph().set(paragraph(all));
    const std::int64_t unused = 0;
    const std::int64_t check = 2;
    std::int64_t status = 0;
    POLY_POLSEM(&unused, &check, host.semantics_context(), host.paragraph().handle(), &unused, &status);
    return host.messages().printed().empty() ? 0 : 1;
}
