#include "minihost/polymer_input.h"

#include <algorithm>

namespace minihost {

namespace {


// Words of the polymer block.
enum BlockWord : Int {
    segments = 2,
    polymers = 3,
    oligomers = 6,
    catalysts = 7,
    parameters = 8,
    end_segments = 9,
    branch3_segments = 11,
    branch4_segments = 12,
    repeat_segments = 13,
    attribute_layout = 14,
    distributions = 16,
    initiators = 17,
};

constexpr Int attribute_groups = 11;

class Reader {
public:
    explicit Reader(Host& host)
        : store_(host.store()), components_(host.components()), polymer_block_(host.polymer_block())
    {
    }

    bool has_polymer_block() const { return polymer_block_ > 0; }

    std::vector<std::string> list(BlockWord word) const
    {
        std::vector<std::string> ids;
        if (!has_polymer_block()) return ids;
        for (Int i = 1; i <= count(block(word)); ++i) ids.push_back(id_in(block(word), i + 1));
        return ids;
    }

    std::vector<ListedSegment> segments_by_type() const
    {
        const auto in_order = list(BlockWord::segments);
        std::vector<ListedSegment> all;
        for (const auto& [word, type] : {std::pair{BlockWord::end_segments, 1},
                                         {BlockWord::repeat_segments, 2},
                                         {BlockWord::branch3_segments, 3},
                                         {BlockWord::branch4_segments, 4}})
            for (const auto& id : list(word))
                all.push_back({id, type, std::ranges::find(in_order, id) - in_order.begin() + 1});
        return all;
    }

    std::vector<ListedOligomer> make_up() const
    {
        const Int rows = count(block(BlockWord::segments));
        std::vector<ListedOligomer> all;
        for (const auto& id : list(BlockWord::oligomers)) {
            ListedOligomer oligomer{id, {}};
            for (Int s = 1; s <= rows; ++s)
                oligomer.counts.push_back(
                    store_.real(block(BlockWord::oligomers), static_cast<Int>(all.size()) * rows + s));
            all.push_back(std::move(oligomer));
        }
        return all;
    }

    // An entry whose ID no component has keeps its place, which then holds 0.
    std::vector<ListedCatalyst> catalyst_list() const
    {
        const BlockId id = block(BlockWord::catalysts);
        std::vector<ListedCatalyst> all;
        for (Int i = 1; i <= count(id); ++i)
            if (store_.integer(id, i + 1) > 0) all.push_back({id_in(id, i + 1), store_.real(id, i)});
        return all;
    }

    std::vector<std::string> initiator_list() const
    {
        const BlockId id = block(BlockWord::initiators);
        std::vector<std::string> all;
        for (Int i = 1; i <= count(id); ++i)
            if (store_.integer(id, i + 1) > 0) all.push_back(id_in(id, i + 1));
        return all;
    }

    SiteData sites() const
    {
        const BlockId id = block(BlockWord::parameters);
        return {store_.integer(id, 1),
                {store_.integer(id, 11), store_.integer(id, 12), store_.integer(id, 13)},
                store_.real(id, 1)};
    }

    std::vector<AttributeGroup> layout() const
    {
        const BlockId id = block(BlockWord::attribute_layout);
        std::vector<AttributeGroup> groups;
        for (Int g = 1; g <= attribute_groups; ++g)
            groups.push_back({store_.integer(id, 1 + g), store_.integer(id, 1 + attribute_groups + g)});
        return groups;
    }

    std::vector<ListedDistribution> requests() const
    {
        const BlockId directory = block(BlockWord::distributions);
        std::vector<ListedDistribution> all;
        for (Int type = 1; type <= count(directory); ++type)
            if (const BlockId id = store_.integer(directory, type + 1); id > 0) append_requests(id, all);
        return all;
    }

private:
    BlockId block(BlockWord word) const { return store_.integer(polymer_block_, word); }
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
    const Reader reader{host};
    if (!reader.has_polymer_block()) return {};
    return {.segment_list = reader.list(BlockWord::segments),
            .segments = reader.segments_by_type(),
            .polymers = reader.list(BlockWord::polymers),
            .oligomers = reader.make_up(),
            .catalysts = reader.catalyst_list(),
            .initiators = reader.initiator_list(),
            .sites = reader.sites(),
            .attribute_layout = reader.layout(),
            .distributions = reader.requests()};
}

std::vector<std::string> segment_list(Host& host)
{
    return Reader{host}.list(BlockWord::segments);
}

std::vector<std::string> end_segment_list(Host& host)
{
    return Reader{host}.list(BlockWord::end_segments);
}

}  // namespace minihost
