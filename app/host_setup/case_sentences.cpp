#include "app/host_setup/case_sentences.h"

#include <algorithm>

namespace app {

namespace {

std::vector<std::string> ids(const std::vector<PlacedName>& references)
{
    std::vector<std::string> ids;
    ids.reserve(references.size());
    for (const auto& reference : references) ids.push_back(reference.id);
    return ids;
}

minihost::SegmentSentence sentence(const std::vector<Segment>& segments)
{
    minihost::SegmentSentence sentence;
    for (const auto& [component, type] : segments)
        sentence.entries.push_back({component.id, static_cast<Int>(type)});
    return sentence;
}

minihost::AttributeSentence sentence(const std::vector<AttributeList>& lists)
{
    minihost::AttributeSentence sentence;
    for (const auto& [component, names] : lists) sentence.entries.push_back({component.id, ids(names)});
    return sentence;
}

minihost::OligomerSentence sentence(const std::vector<OligomerPart>& parts)
{
    minihost::OligomerSentence sentence;
    for (const auto& part : parts)
        sentence.entries.push_back(
            {part.is_continued ? std::string{} : part.oligomer.id, part.segment.id, part.count});
    return sentence;
}

minihost::CatalystSentence sentence(const std::vector<Catalyst>& catalysts)
{
    minihost::CatalystSentence sentence;
    for (const auto& [component, value] : catalysts) sentence.entries.push_back({component.id, value});
    return sentence;
}

minihost::SiteSentence sentence(const Sites& sites)
{
    minihost::SiteSentence sentence{.sites = sites.count, .real = sites.real};
    std::ranges::copy(sites.integers, sentence.further);
    return sentence;
}

minihost::DistributionSentence sentence(const std::vector<DistributionRequest>& requests)
{
    minihost::DistributionSentence sentence;
    for (const auto& [polymer, type, integers, real] : requests)
        sentence.entries.push_back({polymer.id, type, {integers[0], integers[1], integers[2]}, real});
    return sentence;
}

}  // namespace

std::vector<minihost::Sentence> sentences(const Paragraph& paragraph)
{
    std::vector<minihost::Sentence> all;
    if (!paragraph.polymers.empty()) all.emplace_back(minihost::PolymerSentence{ids(paragraph.polymers)});
    const auto add = [&all](const auto& list) {
        if (!list.empty()) all.emplace_back(sentence(list));
    };
    add(paragraph.segments);
    add(paragraph.attributes);
    add(paragraph.oligomers);
    add(paragraph.catalysts);
    if (paragraph.sites) all.emplace_back(sentence(*paragraph.sites));
    add(paragraph.distributions);
    if (!paragraph.initiators.empty())
        all.emplace_back(minihost::InitiatorSentence{ids(paragraph.initiators)});
    return all;
}

std::vector<minihost::ScalingEntry> scaling_entries(const Case& input)
{
    const double absent = input.settings.missing_value_bound;
    std::vector<minihost::ScalingEntry> entries;
    for (const auto& [component, attribute, first, second] : input.catalyst_scaling)
        entries.push_back({component.id, attribute.id, first.value_or(absent), second.value_or(absent)});
    return entries;
}

}  // namespace app
