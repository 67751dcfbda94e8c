// The word store: blocks of integers, of reals, or of both, named by ids, inside the one array ST_WORDS.
//
// Plain mode reuses freed space first-fit and clears new blocks. Checked mode is for tests: guard words
// enclose every block, every allocation moves every movable block, new, freed and vacated words hold a
// pattern that is a signalling NaN and a huge count, and the address sanitizer sees nothing but live blocks.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "minihost/arena.h"
#include "minihost/store_words.h"

namespace minihost {

enum class BlockKind { integers, reals, two_part };

// Pinned blocks keep their position for life, whatever is allocated.
enum class Placement { movable, pinned };

class Store {
public:
    enum class Mode { plain, checked };

    // Words that the array has room for.
    static constexpr Int capacity = 16'000'000;

    // Contents of a new word in checked mode.
    static constexpr Word poison = 0x7FF4'DEAD'0BAD'F00D;

    // Checked when the environment variable POLYPROPS_CHECKED_STORE is set to anything but 0, otherwise
    // plain.
    static Mode default_mode();

    explicit Store(Mode mode);
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    // New blocks. Throw Error for a negative length and when the store is full.
    BlockId allocate_integers(Int length, Placement placement = Placement::movable);
    BlockId allocate_reals(Int length, Placement placement = Placement::movable);
    BlockId allocate_two_part(Int integers, Int reals, Placement placement = Placement::movable);
    // An integer block of zeros.
    BlockId allocate_zeros(Int length, Placement placement = Placement::movable);

    // Gives an integer block a new length; the words that fit keep their contents.
    void resize_integers(BlockId id, Int length);
    void free(BlockId id);

    // Position of word 1. Throw Error for an id that was never given, was freed, or names another kind of
    // block.
    Position integers(BlockId id) const;
    Position reals(BlockId id) const;
    Position keys(BlockId id) const;    // of a two-part block
    Position values(BlockId id) const;  // of a two-part block

    bool exists(BlockId id) const;
    BlockKind kind(BlockId id) const;
    Int integer_length(BlockId id) const;  // of an integer block or of the keys of a two-part block
    Int real_length(BlockId id) const;     // of a block of reals or of the values of a two-part block

    // Word k of a block, range-checked: of its integers (keys) or of its reals (values).
    Word integer(BlockId id, Int k) const;
    void set_integer(BlockId id, Int k, Word value);
    double real(BlockId id, Int k) const;
    void set_real(BlockId id, Int k, double value);
    // Writes the name pair of a text of up to eight characters to words k and k+1 of the integers.
    void set_name(BlockId id, Int k, std::string_view name);

    // Refuses a run of words that starts inside the store but does not lie wholly in it (plain mode) or in
    // one block (checked mode). Words outside the store are the caller's own and pass.
    void check_run(const void* first, Int count, const char* service) const;

    // Throws Error, naming the block, when a guard word is damaged. Does nothing in plain mode.
    void verify() const;

    // Contents of all live blocks in the order of their ids, to compare before and after a call.
    std::vector<Word> contents() const;

    Int block_count() const { return live_; }

private:
    struct Extent {
        Position position = 0;
        Int length = 0;
    };
    struct Block {
        BlockKind kind;
        Placement placement;
        bool live = true;
        Extent integers;
        Extent reals;
    };

    BlockId allocate(BlockKind kind, Int integers, Int reals, Placement placement);
    const Block& block(BlockId id) const;
    const Block& block_of(BlockId id, BlockKind kind, const char* wanted) const;
    const Extent& integer_extent(BlockId id) const;
    const Extent& real_extent(BlockId id) const;
    Arena& arena(Placement placement);
    Extent place(Int length, Placement placement);
    void release(const Extent& extent, Placement placement);
    void move_everything();
    void move(Extent& extent, Arena& target);
    Extent open(Position start, Int length) const;
    void check_guards(BlockId id, const Block& block) const;
    static Position word_of_extent(const Extent& extent, BlockId id, Int k, const char* part);

    Mode mode_;
    Int guard_;  // guard words on either side of a block
    Arena pinned_;
    Arena halves_[2];
    int half_ = 0;
    std::vector<Block> blocks_;
    Int live_ = 0;
};

}  // namespace minihost
