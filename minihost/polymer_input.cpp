#include "minihost/polymer_input.h"

#include <polyprops/polymer_block.h>

#include <algorithm>

#include "minihost/embedded_host.h"

namespace minihost {
namespace {

class PolymerBlockReader {
public:
    explicit PolymerBlockReader(Host& host)
        : store_(host.store()), components_(host.components()), polymer_block_(host.polymer_block())
    {
    }

    bool has_polymer_block() const { return polymer_block_ > 0; }

    // The entry of an unknown ID holds 0.
    std::vector<std::string> ids(PolypropsPolymerWord word) const
    {
        std::vector<std::string> all;
        if (!has_polymer_block()) return all;
        const BlockId list = block(word);
        for (Int i = 1; i <= count(list); ++i)
            if (store_.integer(list, i + 1) > 0) all.push_back(id_in(list, i + 1));
        return all;
    }

    std::vector<ListedSegment> segments() const
    {
        const auto in_order = ids(POLYPROPS_SEGMENT_LIST);
        std::vector<ListedSegment> all;
        for (const auto& [word, type] : {std::pair{POLYPROPS_END_SEGMENT_LIST, 1},
                                         {POLYPROPS_REPEAT_SEGMENT_LIST, 2},
                                         {POLYPROPS_BRANCH3_SEGMENT_LIST, 3},
                                         {POLYPROPS_BRANCH4_SEGMENT_LIST, 4}})
            for (const auto& id : ids(word))
                all.push_back({id, type, std::ranges::find(in_order, id) - in_order.begin() + 1});
        return all;
    }

    std::vector<ListedOligomer> oligomers() const
    {
        const Int rows = count(block(POLYPROPS_SEGMENT_LIST));
        std::vector<ListedOligomer> all;
        for (const auto& id : ids(POLYPROPS_OLIGOMER_LIST)) {
            ListedOligomer oligomer{id, {}};
            for (Int s = 1; s <= rows; ++s)
                oligomer.counts.push_back(
                    store_.real(block(POLYPROPS_OLIGOMER_LIST), static_cast<Int>(all.size()) * rows + s));
            all.push_back(std::move(oligomer));
        }
        return all;
    }

    std::vector<ListedCatalyst> catalysts() const
    {
        const BlockId id = block(POLYPROPS_CATALYST_LIST);
        std::vector<ListedCatalyst> all;
        for (Int i = 1; i <= count(id); ++i)
            if (store_.integer(id, i + 1) > 0) all.push_back({id_in(id, i + 1), store_.real(id, i)});
        return all;
    }

    SiteData sites() const
    {
        const BlockId id = block(POLYPROPS_PARAMETERS);
        const auto further = [&](Int k) { return store_.integer(id, POLYPROPS_SITE_INTEGERS + k); };
        return {store_.integer(id, POLYPROPS_SITE_TYPES),
                {further(0), further(1), further(2)},
                store_.real(id, 1)};
    }

    std::vector<AttributeGroup> attribute_layout() const
    {
        const BlockId id = block(POLYPROPS_ATTRIBUTE_LAYOUT);
        std::vector<AttributeGroup> groups;
        for (Int g = 0; g < POLYPROPS_GROUPS; ++g)
            groups.push_back({store_.integer(id, POLYPROPS_GROUP_STARTS + g),
                              store_.integer(id, POLYPROPS_GROUP_LENGTHS + g)});
        return groups;
    }

    std::vector<ListedDistribution> distributions() const
    {
        const BlockId directory = block(POLYPROPS_DISTRIBUTION_DIRECTORY);
        std::vector<ListedDistribution> all;
        for (Int type = 1; type <= count(directory); ++type)
            if (const BlockId id = store_.integer(directory, type + 1); id > 0) append_requests(id, all);
        return all;
    }

private:
    BlockId block(PolypropsPolymerWord word) const { return store_.integer(polymer_block_, word); }
    Int count(BlockId id) const { return store_.integer(id, 1); }
    std::string id_in(BlockId id, Int word) const { return components_.at(store_.integer(id, word)).id; }

    // Column by column: components, types, and three columns of further integers.
    void append_requests(BlockId id, std::vector<ListedDistribution>& all) const
    {
        const Int rows = count(id);
        const auto at = [&](Int column, Int r) { return store_.integer(id, 1 + column * rows + r); };
        for (Int r = 1; r <= rows; ++r)
            all.push_back({id_in(id, 1 + r), at(1, r), {at(2, r), at(3, r), at(4, r)}, store_.real(id, r)});
    }

    const Store& store_;
    const ComponentTable& components_;
    BlockId polymer_block_;
};

}  // namespace

PolymerInput read_polymer_input(Host& host)
{
    const PolymerBlockReader reader{host};
    if (!reader.has_polymer_block()) return {};
    return {.segment_ids = reader.ids(POLYPROPS_SEGMENT_LIST),
            .segments = reader.segments(),
            .polymers = reader.ids(POLYPROPS_POLYMER_LIST),
            .oligomers = reader.oligomers(),
            .catalysts = reader.catalysts(),
            .initiators = reader.ids(POLYPROPS_INITIATOR_LIST),
            .sites = reader.sites(),
            .attribute_layout = reader.attribute_layout(),
            .distributions = reader.distributions()};
}

std::vector<std::string> segment_ids(Host& host)
{
    return PolymerBlockReader{host}.ids(POLYPROPS_SEGMENT_LIST);
}

std::vector<std::string> end_segment_ids(Host& host)
{
    return PolymerBlockReader{host}.ids(POLYPROPS_END_SEGMENT_LIST);
}

}  // namespace minihost
