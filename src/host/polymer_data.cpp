#include "host/polymer_data.h"

namespace polyprops {

namespace {

enum class Word : Int { segments = 2, polymers = 3, oligomers = 6, end_segments = 9 };

Position find_integers(Int id)
{
    return Position{ST_FIND_I(&id)};
}

ComponentList list_at(Position p)
{
    return {integer_at(p), address_of(p + 1)};
}

OligomerTable find_oligomers(Int id, Int rows)
{
    Int key = 0;
    Int value = 0;
    Int unused = 0;
    ST_FIND_M(&id, &key, &value, &unused);
    return {list_at(Position{key}), RealWords{Position{value}}, rows};
}

}  // namespace

PolymerData PolymerData::locate(unsigned parts)
{
    PolymerData data;
    data.located_ = parts;
    Int id = 0;
    CC_POLYMER_BLOCK(&id);
    data.exists_ = id > 0;
    if (!data.exists_) return data;

    const Position block = find_integers(id);
    const auto id_in = [&](Word word) { return integer_at(block + (static_cast<Int>(word) - 1)); };
    const auto list_in = [&](Word word) { return list_at(find_integers(id_in(word))); };
    if (parts & segment_list) data.segments_ = list_in(Word::segments);
    if (parts & polymer_list) data.polymers_ = list_in(Word::polymers);
    if (parts & oligomer_block)
        data.oligomers_ = find_oligomers(id_in(Word::oligomers), data.segments().count());
    if (parts & end_segment_list) data.end_segments_ = list_in(Word::end_segments);
    return data;
}

}  // namespace polyprops
