// The polymer block as the paragraph check makes it: a directory of the run's polymer lists.
//
// Blocks left by an earlier paragraph are used again. A list that is too short is enlarged; a two-part block
// that might be too small is replaced, since the host cannot be asked how many reals it holds.
#pragma once

#include "input/sentence_data.h"
#include "polyprops/polymer_block.h"

namespace polyprops::input {

class PolymerBlock {
public:
    using Word = PolypropsPolymerWord;

    // Locates the polymer block of the run, or makes an empty one, and notes the copy of the attribute
    // sentence.
    static PolymerBlock locate_or_make(const Sentence& attributes);

    // Makes sure that every list exists and has room for what the sentences name.
    void make_room(const Sentences& sentences) const;

    Int id_in(Word word) const { return directory()(word); }
    void write_id(Word word, Int id) const { directory()(word) = id; }
    bool has(Word word) const { return id_in(word) >= 1; }

    // Frees the block that a word names, if any. The word forgets it first: a host that stops the check at
    // its next allocation finds no freed block in its polymer block.
    void release_named_by(Word word) const
    {
        const Int id = id_in(word);
        if (id < 1) return;
        write_id(word, 0);
        release(id);
    }

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
