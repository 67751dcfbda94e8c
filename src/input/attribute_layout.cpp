#include "input/attribute_layout.h"

#include <algorithm>
#include <limits>

namespace polyprops::input {

namespace {

constexpr Int groups_by_site = POLYPROPS_GROUPS - POLYPROPS_GROUPS_BY_SEGMENT;

// Beyond this the length of the table is no integer; the host refuses to allocate far less.
constexpr Int most_site_types = std::numeric_limits<Int>::max() / 16;

}  // namespace

void lay_out_attributes(Int site_types, const PolymerBlock& block)
{
    block.release_named_by(POLYPROPS_ATTRIBUTE_LAYOUT);
    const Int sites = std::clamp<Int>(site_types, 0, most_site_types);
    const Int segments = block.list(POLYPROPS_SEGMENT_LIST)(1);
    const Int id =
        allocate_two_part(POLYPROPS_LAYOUT_INTEGERS, POLYPROPS_GROUPS_BY_SEGMENT * segments +
                                                         groups_by_site * sites + POLYPROPS_GROUPS + 1);
    block.write_id(POLYPROPS_ATTRIBUTE_LAYOUT, id);
    const IntegerBlock table = find_two_part(id).integers;
    Int start = 1;
    for (Int group = 0; group < POLYPROPS_GROUPS; ++group) {
        const Int length = (group < POLYPROPS_GROUPS_BY_SEGMENT ? segments : sites) + 1;
        table(POLYPROPS_GROUP_STARTS + group) = start;
        table(POLYPROPS_GROUP_LENGTHS + group) = length;
        start += length;
    }
}

}  // namespace polyprops::input
