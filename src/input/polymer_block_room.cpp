#include "input/polymer_block_room.h"

#include <algorithm>

namespace polyprops::input {

namespace {

Int& polymer_block_id()
{
    const Int root = find_integers(POLYPROPS_RUN_DIRECTORY_ID)(POLYPROPS_ROOT_WORD);
    return find_integers(root)(POLYPROPS_POLYMER_BLOCK_WORD);
}

Int allocate_directory()
{
    constexpr Int length = POLYPROPS_POLYMER_BLOCK_LENGTH;
    const Int id = allocate_integers(length);
    const IntegerBlock directory = find_integers(id);
    clear(&directory(1), length);
    directory(1) = length;
    return id;
}

}  // namespace

PolymerBlock PolymerBlock::locate_or_make(const Sentence& attributes)
{
    if (polymer_block_id() < 1) {
        const Int id = allocate_directory();
        polymer_block_id() = id;
    }
    const PolymerBlock block{polymer_block_id()};
    if (attributes.is_given()) block.write_id(POLYPROPS_ATTRIBUTE_SENTENCE, attributes.id);
    return block;
}

void PolymerBlock::make_room(const Sentences& sentences) const
{
    const Int segments = sentences.segments.entry_count;
    make_list(POLYPROPS_POLYMER_LIST, sentences.polymers.entry_count + 1);
    make_oligomer_block(sentences.oligomers.entry_count, segments);
    make_list(POLYPROPS_SEGMENT_LIST, 2 * segments + 1);
    make_list(POLYPROPS_END_SEGMENT_LIST, segments + 1);
    make_list(POLYPROPS_REPEAT_SEGMENT_LIST, segments + 1);
    make_list(POLYPROPS_BRANCH3_SEGMENT_LIST, segments + 1);
    make_list(POLYPROPS_BRANCH4_SEGMENT_LIST, segments + 1);
    make_catalyst_block(sentences.catalysts);
    make_list(POLYPROPS_INITIATOR_LIST, sentences.initiators.entry_count + 1);
    make_list(POLYPROPS_DISTRIBUTION_DIRECTORY, POLYPROPS_DISTRIBUTION_TYPES + 1);
}

void PolymerBlock::make_list(Word word, Int length) const
{
    if (has(word)) {
        if (list(word)(1) + 1 < length) enlarge_integers(id_in(word), length);
        return;
    }
    const Int id = allocate_integers(length);
    find_integers(id)(1) = 0;
    write_id(word, id);
}

void PolymerBlock::make_two_part_list(Word word, Int integers, Int reals) const
{
    release_named_by(word);
    const Int id = allocate_two_part(integers, reals);
    find_two_part(id).integers(1) = 0;
    write_id(word, id);
}

// An earlier block is known to hold the oligomers that it lists, each with the segments that are still
// listed: whatever else it has room for, the store does not say.
void PolymerBlock::make_oligomer_block(Int oligomers, Int segments) const
{
    if (has(POLYPROPS_OLIGOMER_LIST)) {
        const Int listed = two_part(POLYPROPS_OLIGOMER_LIST).integers(1);
        const Int rows = has(POLYPROPS_SEGMENT_LIST) ? list(POLYPROPS_SEGMENT_LIST)(1) : 0;
        if (oligomers <= listed && oligomers * segments <= listed * rows) return;
    }
    make_two_part_list(POLYPROPS_OLIGOMER_LIST, oligomers + 1, 3 * segments * oligomers + 1);
}

void PolymerBlock::make_catalyst_block(const Sentence& catalysts) const
{
    const Int count = catalysts.entry_count;
    if (has(POLYPROPS_CATALYST_LIST) && two_part(POLYPROPS_CATALYST_LIST).integers(1) >= count) return;
    make_two_part_list(POLYPROPS_CATALYST_LIST, std::max(catalysts.integer_count, count + 1),
                       std::max(catalysts.real_count, count));
}

}  // namespace polyprops::input
