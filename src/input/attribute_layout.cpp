#include "input/attribute_layout.h"

#include <algorithm>
#include <limits>

namespace polyprops::input {

namespace {

using Word = PolymerBlock::Word;

constexpr Int groups_by_segment = 5;
constexpr Int groups = 11;

// Beyond this the length of the table is no integer; the host refuses to allocate far less.
constexpr Int most_site_types = std::numeric_limits<Int>::max() / 16;

}  // namespace

void lay_out_attributes(Int site_types, const PolymerBlock& block)
{
    if (block.has(Word::attribute_layout)) release(block.id_in(Word::attribute_layout));
    const Int sites = std::clamp<Int>(site_types, 0, most_site_types);
    const Int segments = block.list(Word::segments)(1);
    const Int id = allocate_two_part(23, 5 * segments + 6 * sites + 12);
    block.write_id(Word::attribute_layout, id);
    const IntegerBlock table = find_two_part(id).integers;
    Int start = 1;
    for (Int group = 1; group <= groups; ++group) {
        const Int length = (group <= groups_by_segment ? segments : sites) + 1;
        table(1 + group) = start;
        table(1 + groups + group) = length;
        start += length;
    }
}

}  // namespace polyprops::input
