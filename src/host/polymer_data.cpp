#include "host/polymer_data.h"

#include "polyprops/polymer_block.h"

namespace polyprops {

namespace {

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

void PolymerData::ensure(unsigned parts)
{
    if (!asked_) {
        CC_POLYMER_BLOCK(&id_);
        asked_ = true;
    }
    const unsigned wanted = parts & ~located_;
    located_ |= parts;
    if (!exists() || wanted == 0) return;

    if (block_ == nowhere) block_ = find_integers(id_);
    const auto id_in = [&](PolypropsPolymerWord word) { return integer_at(block_ + (word - 1)); };
    const auto list_in = [&](PolypropsPolymerWord word) { return list_at(find_integers(id_in(word))); };
    if (wanted & segment_list) segments_ = list_in(POLYPROPS_SEGMENT_LIST);
    if (wanted & polymer_list) polymers_ = list_in(POLYPROPS_POLYMER_LIST);
    if (wanted & oligomer_block)
        oligomers_ = find_oligomers(id_in(POLYPROPS_OLIGOMER_LIST), segments().count());
    if (wanted & end_segment_list) end_segments_ = list_in(POLYPROPS_END_SEGMENT_LIST);
}

}  // namespace polyprops
