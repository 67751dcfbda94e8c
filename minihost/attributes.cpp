#include "minihost/attributes.h"

#include <algorithm>

#include "minihost/error.h"

namespace minihost {

const std::vector<AttributeKind>& attribute_kinds()
{
    using enum AttributeShape;
    static const std::vector<AttributeKind> kinds = {
        {"DPN", scalar, false, "number-average degree of polymerization"},
        {"DPW", scalar, false, "weight-average degree of polymerization"},
        {"DPZ", scalar, false, "z-average degree of polymerization"},
        {"PDI", scalar, false, "polydispersity index"},
        {"MWN", scalar, false, "number-average molecular weight, g/mol"},
        {"MWW", scalar, false, "weight-average molecular weight, g/mol"},
        {"MWZ", scalar, false, "z-average molecular weight, g/mol"},
        {"MWSEG", scalar, false, "mean segment molecular weight, g/mol"},
        {"ZMOM", scalar, true, "zeroth moment: flow of chains"},
        {"FMOM", scalar, true, "first moment: flow of segments in chains"},
        {"SMOM", scalar, true, "second moment"},
        {"TMOM", scalar, true, "third moment"},
        {"SFLOW", by_segment, true, "flow of each segment"},
        {"SFRAC", by_segment, false, "mole fraction of each segment"},
        {"EFRAC", by_end_segment, false, "fraction of each end segment among the chain ends"},
        {"CPSFLOW", by_site, true, "flow of potential sites of each site type"},
        {"CVSFLOW", by_site, true, "flow of vacant sites of each site type"},
        {"SDPN", by_site, false, "DPN of the chains of each site type"},
        {"SDPW", by_site, false, "DPW of the chains of each site type"},
        {"SPDI", by_site, false, "PDI of the chains of each site type"},
        {"SMWN", by_site, false, "MWN of the chains of each site type, g/mol"},
        {"SMWW", by_site, false, "MWW of the chains of each site type, g/mol"},
        {"SZMOM", by_site, true, "ZMOM of each site type"},
        {"SFMOM", by_site, true, "FMOM of each site type"},
        {"SSMOM", by_site, true, "SMOM of each site type"},
        {"SSFLOW", by_segment_and_site, true, "SFLOW of each site type, site by site"},
        {"SSFRAC", by_segment_and_site, false, "SFRAC of each site type, site by site"},
    };
    return kinds;
}

const AttributeKind* find_attribute_kind(std::string_view name)
{
    const auto& kinds = attribute_kinds();
    const auto found =
        std::find_if(kinds.begin(), kinds.end(), [name](const auto& kind) { return kind.name == name; });
    return found == kinds.end() ? nullptr : &*found;
}

Int attribute_length(const AttributeKind& kind, const AttributeDimensions& dimensions)
{
    const Int sites = std::max<Int>(dimensions.sites, 1);
    switch (kind.shape) {
        case AttributeShape::scalar:
            return 1;
        case AttributeShape::by_segment:
            return dimensions.segments;
        case AttributeShape::by_end_segment:
            return dimensions.end_segments;
        case AttributeShape::by_site:
            return sites;
        default:
            return dimensions.segments * sites;
    }
}

AttributeTable::AttributeTable(Int component_count) : rows_(static_cast<std::size_t>(component_count)) {}

std::size_t AttributeTable::row(Int component) const
{
    if (component < 1 || component > static_cast<Int>(rows_.size()))
        throw Error("component index " + std::to_string(component) + " is not in 1.." +
                    std::to_string(rows_.size()));
    return static_cast<std::size_t>(component - 1);
}

void AttributeTable::check_open(const char* subject) const
{
    if (frozen_) throw Error(std::string(subject) + " cannot change: streams already hold attribute values");
}

void AttributeTable::carry(Int component, const std::vector<std::string>& names)
{
    auto& entries = rows_[row(component)];
    for (const std::string& name : names) {
        const AttributeKind* kind = find_attribute_kind(name);
        if (!kind) throw Error("unknown attribute \"" + name + "\"");
        if (find(component, name)) continue;
        check_open("the attributes of a component");
        entries.push_back({kind});
        dimensions_.reset();
    }
}

void AttributeTable::hide(Int component, std::string_view name, Int offset)
{
    if (offset > 0) throw Error("a hidden attribute needs an offset of 0 or less");
    if (!find(component, name)) throw Error("attribute \"" + std::string(name) + "\" is not carried");
    hidden_[{component, std::string(name)}] = offset;
}

void AttributeTable::lay_out(const AttributeDimensions& dimensions)
{
    if (dimensions_ == dimensions) return;
    check_open("the numbers of segments and sites");
    Int offset = static_cast<Int>(rows_.size());
    for (auto& entries : rows_) {
        for (Entry& entry : entries) {
            entry.offset = offset;
            entry.length = attribute_length(*entry.kind, dimensions);
            offset += entry.length;
        }
    }
    substream_length_ = offset;
    dimensions_ = dimensions;
}

const AttributeTable::Entry* AttributeTable::find(Int component, std::string_view name) const
{
    const auto& entries = rows_[row(component)];
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [name](const Entry& entry) { return entry.kind->name == name; });
    return found == entries.end() ? nullptr : &*found;
}

Int AttributeTable::reported_offset(Int component, std::string_view name) const
{
    const Entry* entry = find(component, name);
    if (hidden_.empty()) return entry->offset;
    const auto hidden = hidden_.find({component, std::string(name)});
    return hidden == hidden_.end() ? entry->offset : hidden->second;
}

const std::vector<AttributeTable::Entry>& AttributeTable::carried_by(Int component) const
{
    return rows_[row(component)];
}

}  // namespace minihost
