// Blocks of the host's store as input semantics reads, makes and writes them.
//
// The host may move every block whenever one is allocated: a view is good until the next allocation, a block
// is passed on by its id and found again. New blocks hold anything.
#pragma once

#include "host/words.h"

namespace polyprops::input {

using IntegerBlock = Vector<Int>;
inline constexpr IntegerBlock no_integers{nullptr};

class RealBlock {
public:
    RealBlock() = default;
    explicit RealBlock(Position first) : first_(first) {}

    Real operator()(Int word) const { return real_at(first_ + (word - 1)); }
    void write(Int word, Real value) const { write_real(first_ + (word - 1), value); }

private:
    Position first_{1};
};

struct TwoPartBlock {
    IntegerBlock integers;
    RealBlock reals;
};

inline IntegerBlock integers_at(Int position)
{
    return IntegerBlock{address_of(Position{position})};
}

inline IntegerBlock find_integers(Int id)
{
    return integers_at(ST_FIND_I(&id));
}
inline RealBlock find_reals(Int id)
{
    return RealBlock{Position{ST_FIND_R(&id)}};
}
inline TwoPartBlock find_two_part(Int id)
{
    Int integers = 0;
    Int reals = 0;
    Int unused = 0;
    ST_FIND_M(&id, &integers, &reals, &unused);
    return {integers_at(integers), RealBlock{Position{reals}}};
}

// The allocations return the id of the new block.
inline Int allocate_integers(Int length)
{
    Int id = 0;
    Int position = 0;
    ST_ALLOC_I(&length, &id, &position);
    return id;
}
inline Int allocate_reals(Int length)
{
    Int id = 0;
    Int position = 0;
    ST_ALLOC_R(&length, &id, &position);
    return id;
}
inline Int allocate_two_part(Int integers, Int reals)
{
    Int id = 0;
    Int integer_position = 0;
    Int real_position = 0;
    Int unused = 0;
    ST_ALLOC_M(&integers, &reals, &id, &integer_position, &real_position, &unused);
    return id;
}
inline void enlarge_integers(Int id, Int length)
{
    Int position = 0;
    ST_REALLOC_I(&id, &length, &position);
}
inline void release(Int id)
{
    ST_FREE(&id);
}

// A list block that is filled entry by entry; its count is right after each of them.
class ListWriter {
public:
    explicit ListWriter(IntegerBlock block) : block_(block) { block_(1) = 0; }

    Int count() const { return block_(1); }
    void append(Component c) const
    {
        ++block_(1);
        block_(block_(1) + 1) = c.index;
    }

private:
    IntegerBlock block_;
};

// Position of c among the entries of a list block, 0 when it is none of them; the host searches.
inline Int position_in_list(const IntegerBlock& list, Component c)
{
    return CC_INDEX(&list(2), &list(1), &c.index);
}

}  // namespace polyprops::input
