// The polymer block as the paragraph check makes it: a directory of the run's polymer lists.
//
// Blocks left by an earlier paragraph are used again. A list that is too short is enlarged; a two-part block
// that might be too small is replaced, since the host cannot be asked how many reals it holds.
#pragma once

#include "input/sentence_data.h"

namespace polyprops::input {

class PolymerBlock {
public:
    // Words of the directory; each holds the id of a block.
    enum class Word : Int {
        segments = 2,
        polymers = 3,
        attribute_sentence = 5,
        oligomers = 6,
        catalysts = 7,
        parameters = 8,
        end_segments = 9,
        type_3_segments = 11,
        type_4_segments = 12,
        type_2_segments = 13,
        attribute_layout = 14,
        distributions = 16,
        initiators = 17,
    };

    // Locates the polymer block of the run, or makes an empty one, and notes the copy of the attribute
    // sentence.
    static PolymerBlock locate_or_make(const Sentence& attributes);

    // Makes sure that every list exists and has room for what the sentences name.
    void make_room(const Sentences& sentences) const;

    Int id_in(Word word) const { return directory()(static_cast<Int>(word)); }
    void write_id(Word word, Int id) const { directory()(static_cast<Int>(word)) = id; }
    bool has(Word word) const { return id_in(word) >= 1; }

    // Good until the next allocation.
    IntegerBlock list(Word word) const { return find_integers(id_in(word)); }
    TwoPartBlock two_part(Word word) const { return find_two_part(id_in(word)); }

private:
    explicit PolymerBlock(Int id) : id_(id) {}

    IntegerBlock directory() const { return find_integers(id_); }
    void make_list(Word word, Int length) const;
    void make_two_part_list(Word word, Int integers, Int reals) const;
    void make_oligomer_block(Int oligomers, Int segments) const;
    void make_catalyst_block(const Sentence& catalysts) const;

    Int id_;
};

}  // namespace polyprops::input
