#include "input/parameter_block.h"

#include <array>

namespace polyprops::input {

namespace {

using Word = PolymerBlock::Word;

constexpr Int integer_count = 13;

void make_parameter_block(const PolymerBlock& block)
{
    if (block.has(Word::parameters)) return;
    const Int id = allocate_two_part(integer_count, 1);
    clear(&find_two_part(id).integers(1), integer_count);
    block.write_id(Word::parameters, id);
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
        Value{2, sentences.polymers.entry_count},
        Value{3, sentences.segments.entry_count},
        Value{4, oligomer_count},
        Value{5, count_in(Word::end_segments)},
        Value{6, sentences.catalysts.entry_count},
        Value{7, count_in(Word::type_2_segments)},
        Value{8, count_in(Word::type_3_segments)},
        Value{9, count_in(Word::type_4_segments)},
        Value{11, sites.word_11},
        Value{12, sites.word_12},
        Value{13, sites.word_13},
    };
    const TwoPartBlock target = block.two_part(Word::parameters);
    target.integers(1) = sites.site_type_count;
    target.reals.write(1, sites.real_1);
    for (const auto& [word, value] : values)
        if (value != 0) target.integers(word) = value;
}

}  // namespace polyprops::input
