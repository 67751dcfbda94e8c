#include "input/polymer_block_room.h"

#include <algorithm>

namespace polyprops::input {

namespace {

constexpr Int directory_length = 17;

// Block 2 of the store names the polymer root block, and that one the polymer block.
IntegerBlock polymer_root()
{
    constexpr Int store_directory = 2;
    return find_integers(find_integers(store_directory)(200));
}
Int& polymer_block_id()
{
    return polymer_root()(13);
}

Int allocate_directory()
{
    const Int id = allocate_integers(directory_length);
    const IntegerBlock directory = find_integers(id);
    clear(&directory(1), directory_length);
    directory(1) = directory_length;
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
    if (attributes.is_given()) block.write_id(Word::attribute_sentence, attributes.id);
    return block;
}

void PolymerBlock::make_room(const Sentences& sentences) const
{
    const Int segments = sentences.segments.entry_count;
    make_list(Word::polymers, sentences.polymers.entry_count + 1);
    make_oligomer_block(sentences.oligomers.entry_count, segments);
    make_list(Word::segments, 2 * segments + 1);
    make_list(Word::end_segments, segments + 1);
    make_list(Word::type_2_segments, segments + 1);
    make_list(Word::type_3_segments, segments + 1);
    make_list(Word::type_4_segments, segments + 1);
    make_catalyst_block(sentences.catalysts);
    make_list(Word::initiators, sentences.initiators.entry_count + 1);
    make_list(Word::distributions, 5);
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
    if (has(word)) release(id_in(word));
    const Int id = allocate_two_part(integers, reals);
    find_two_part(id).integers(1) = 0;
    write_id(word, id);
}

// An earlier block is known to hold the oligomers that it lists, each with the segments that are still
// listed: whatever else it has room for, the store does not say.
void PolymerBlock::make_oligomer_block(Int oligomers, Int segments) const
{
    if (has(Word::oligomers)) {
        const Int listed = two_part(Word::oligomers).integers(1);
        const Int rows = has(Word::segments) ? list(Word::segments)(1) : 0;
        if (oligomers <= listed && oligomers * segments <= listed * rows) return;
    }
    make_two_part_list(Word::oligomers, oligomers + 1, 3 * segments * oligomers + 1);
}

void PolymerBlock::make_catalyst_block(const Sentence& catalysts) const
{
    const Int count = catalysts.entry_count;
    if (has(Word::catalysts) && two_part(Word::catalysts).integers(1) >= count) return;
    make_two_part_list(Word::catalysts, std::max(catalysts.integer_count, count + 1),
                       std::max(catalysts.real_count, count));
}

}  // namespace polyprops::input
