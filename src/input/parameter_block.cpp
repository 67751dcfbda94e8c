#include "input/parameter_block.h"

#include <array>

namespace polyprops::input {

namespace {

using Word = PolymerBlock::Word;

void make_parameter_block(const PolymerBlock& block)
{
    if (block.has(POLYPROPS_PARAMETERS)) return;
    const Int id = allocate_two_part(POLYPROPS_PARAMETER_INTEGERS, POLYPROPS_PARAMETER_REALS);
    clear(&find_two_part(id).integers(1), POLYPROPS_PARAMETER_INTEGERS);
    block.write_id(POLYPROPS_PARAMETERS, id);
}

}  // namespace

void write_parameters(const Sentences& sentences, Int oligomer_count, const PolymerBlock& block)
{
    struct Value {
        Int word;
        Int value;
    };
    const SiteScalars& sites = sentences.sites;
    make_parameter_block(block);
    const auto count_in = [&](Word list) { return block.list(list)(1); };
    const std::array values{
        Value{POLYPROPS_POLYMER_ENTRIES, sentences.polymers.entry_count},
        Value{POLYPROPS_SEGMENT_ENTRIES, sentences.segments.entry_count},
        Value{POLYPROPS_LISTED_OLIGOMERS, oligomer_count},
        Value{POLYPROPS_LISTED_END_SEGMENTS, count_in(POLYPROPS_END_SEGMENT_LIST)},
        Value{POLYPROPS_CATALYST_ENTRIES, sentences.catalysts.entry_count},
        Value{POLYPROPS_LISTED_REPEAT_SEGMENTS, count_in(POLYPROPS_REPEAT_SEGMENT_LIST)},
        Value{POLYPROPS_LISTED_BRANCH3_SEGMENTS, count_in(POLYPROPS_BRANCH3_SEGMENT_LIST)},
        Value{POLYPROPS_LISTED_BRANCH4_SEGMENTS, count_in(POLYPROPS_BRANCH4_SEGMENT_LIST)},
        Value{POLYPROPS_SITE_INTEGERS, sites.integers[0]},
        Value{POLYPROPS_SITE_INTEGERS + 1, sites.integers[1]},
        Value{POLYPROPS_SITE_INTEGERS + 2, sites.integers[2]},
    };
    const TwoPartBlock target = block.two_part(POLYPROPS_PARAMETERS);
    target.integers(POLYPROPS_SITE_TYPES) = sites.site_type_count;
    target.reals.write(1, sites.real);
    for (const auto& [word, value] : values)
        if (value != 0) target.integers(word) = value;
}

}  // namespace polyprops::input
