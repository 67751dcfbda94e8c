#include "cli/built.h"

#include <algorithm>

namespace cli {

namespace {

using minihost::BlockId;
using minihost::Host;
using minihost::Int;
using minihost::Store;

// Words of the polymer block.
enum Word : Int {
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

    std::vector<std::string> list(Word word) const
    {
        std::vector<std::string> ids;
        if (!has_polymer_block()) return ids;
        for (Int i = 1; i <= count(block(word)); ++i) ids.push_back(id_in(block(word), i + 1));
        return ids;
    }

    std::vector<BuiltSegment> segments_by_type() const
    {
        const auto in_order = list(Word::segments);
        std::vector<BuiltSegment> all;
        for (const auto& [word, type] : {std::pair{Word::end_segments, 1},
                                         {Word::repeat_segments, 2},
                                         {Word::branch3_segments, 3},
                                         {Word::branch4_segments, 4}})
            for (const auto& id : list(word))
                all.push_back({id, type, std::ranges::find(in_order, id) - in_order.begin() + 1});
        return all;
    }

    std::vector<BuiltOligomer> make_up() const
    {
        const Int rows = count(block(Word::segments));
        std::vector<BuiltOligomer> all;
        for (const auto& id : list(Word::oligomers)) {
            BuiltOligomer oligomer{id, {}};
            for (Int s = 1; s <= rows; ++s)
                oligomer.counts.push_back(
                    store_.real(block(Word::oligomers), static_cast<Int>(all.size()) * rows + s));
            all.push_back(std::move(oligomer));
        }
        return all;
    }

    // An entry whose ID no component has keeps its place, which then holds 0.
    std::vector<BuiltCatalyst> catalyst_list() const
    {
        const BlockId id = block(Word::catalysts);
        std::vector<BuiltCatalyst> all;
        for (Int i = 1; i <= count(id); ++i)
            if (store_.integer(id, i + 1) > 0) all.push_back({id_in(id, i + 1), store_.real(id, i)});
        return all;
    }

    std::vector<std::string> initiator_list() const
    {
        const BlockId id = block(Word::initiators);
        std::vector<std::string> all;
        for (Int i = 1; i <= count(id); ++i)
            if (store_.integer(id, i + 1) > 0) all.push_back(id_in(id, i + 1));
        return all;
    }

    BuiltSites sites() const
    {
        const BlockId id = block(Word::parameters);
        return {store_.integer(id, 1),
                {store_.integer(id, 11), store_.integer(id, 12), store_.integer(id, 13)},
                store_.real(id, 1)};
    }

    std::vector<BuiltGroup> layout() const
    {
        const BlockId id = block(Word::attribute_layout);
        std::vector<BuiltGroup> groups;
        for (Int g = 1; g <= attribute_groups; ++g)
            groups.push_back({store_.integer(id, 1 + g), store_.integer(id, 1 + attribute_groups + g)});
        return groups;
    }

    std::vector<BuiltRequest> requests() const
    {
        const BlockId directory = block(Word::distributions);
        std::vector<BuiltRequest> all;
        for (Int type = 1; type <= count(directory); ++type)
            if (const BlockId id = store_.integer(directory, type + 1); id > 0) append_requests(id, all);
        return all;
    }

private:
    BlockId block(Word word) const { return store_.integer(polymer_block_, word); }
    Int count(BlockId id) const { return store_.integer(id, 1); }
    std::string id_in(BlockId id, Int word) const { return components_.at(store_.integer(id, word)).id; }

    // Column by column: components, types, and three columns of further integers.
    void append_requests(BlockId id, std::vector<BuiltRequest>& all) const
    {
        const Int rows = count(id);
        const auto at = [&](Int column, Int r) { return store_.integer(id, 1 + column * rows + r); };
        for (Int r = 1; r <= rows; ++r)
            all.push_back({id_in(id, 1 + r), at(1, r), {at(2, r), at(3, r), at(4, r)}, store_.real(id, r)});
    }

    const Store& store_;
    const minihost::ComponentTable& components_;
    BlockId polymer_block_;
};

}  // namespace

Built read_built(Host& host)
{
    const Reader reader{host};
    if (!reader.has_polymer_block()) return {};
    return {.segment_list = reader.list(Word::segments),
            .segments = reader.segments_by_type(),
            .polymers = reader.list(Word::polymers),
            .oligomers = reader.make_up(),
            .catalysts = reader.catalyst_list(),
            .initiators = reader.initiator_list(),
            .sites = reader.sites(),
            .attribute_layout = reader.layout(),
            .distributions = reader.requests()};
}

std::vector<std::string> segment_list(Host& host)
{
    return Reader{host}.list(Word::segments);
}

std::vector<std::string> end_segment_list(Host& host)
{
    return Reader{host}.list(Word::end_segments);
}

}  // namespace cli
