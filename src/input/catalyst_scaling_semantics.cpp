// The CATSCALE sentence: each entry gives one attribute of a component two values, which go into columns 1
// and 3 of all its elements in the component's attribute data. Nothing is allocated, so blocks stay where
// they are found.
#include "input/blocks.h"
#include "input/input_messages.h"
#include "polyprops/polyprops.h"

namespace polyprops::input {

namespace {

IntegerBlock property_table(Int k)
{
    return find_integers(word(ST_PROPTAB, k));
}

// The entries of the sentence, one list for each of their parts.
class ScalingEntries {
public:
    explicit ScalingEntries(const IntegerBlock& sentence)
        : components_(find_integers(sentence(11))),
          names_(find_integers(sentence(12))),
          first_(find_reals(sentence(13))),
          second_(find_reals(sentence(14)))
    {
    }

    Component component(Int i) const { return {components_(i)}; }
    NamePair attribute(Int i) const { return {names_(2 * i - 1), names_(2 * i)}; }
    Real first(Int i) const { return first_(i); }
    Real second(Int i) const { return second_(i); }

private:
    IntegerBlock components_;
    IntegerBlock names_;
    RealBlock first_;
    RealBlock second_;
};

// Word at which attribute j of an attribute block is described: name (two words), elements, offset.
constexpr Int description_of(Int j)
{
    return 4 * j + 1;
}

// Word at which an attribute is described, 0 when the component does not carry it.
Int find_description(const IntegerBlock& block, const NamePair& name)
{
    for (Int j = 1; j <= block(1); ++j) {
        const Int word = description_of(j);
        if (NamePair{block(word), block(word + 1)} == name) return word;
    }
    return 0;
}

// A value that is not below the missing-value bound is not given; neither is a NaN.
void write_column(const RealBlock& data, Int first_word, Int count, Real value)
{
    if (!below(value, missing_value_bound())) return;
    for (Int e = 0; e < count; ++e) data.write(first_word + e, value);
}

void write_values(const IntegerBlock& block, Int description, Real first, Real second)
{
    const Int count = block(description + 2);
    const Int offset = block(description + 3);
    if (count < 1) return;
    const RealBlock data = find_reals(block(4));
    write_column(data, offset + 1, count, second);
    write_column(data, offset + 2 * block(2) + 1, count, first);
}

// False when the component does not carry the attribute of the entry.
bool scale(const ScalingEntries& entries, Int i, const IntegerBlock& attribute_blocks)
{
    const Int id = attribute_blocks(entries.component(i).index + 1);
    if (id < 1) return false;
    const IntegerBlock block = find_integers(id);
    const Int description = find_description(block, entries.attribute(i));
    if (description == 0) return false;
    write_values(block, description, entries.first(i), entries.second(i));
    return true;
}

NamePair id_in(const IntegerBlock& ids, Component c)
{
    return {ids(2 * c.index - 1), ids(2 * c.index)};
}

void scale_attributes(const IntegerBlock& sentence, Int& status)
{
    constexpr Int all_applied = -1;
    constexpr Int some_ignored = 1;
    status = all_applied;
    const Int count = sentence(6);
    if (count < 1) return;
    const ScalingEntries entries{sentence};
    const IntegerBlock ids = property_table(4);
    const IntegerBlock attribute_blocks = property_table(7);
    for (Int i = 1; i <= count; ++i) {
        if (scale(entries, i, attribute_blocks)) continue;
        status = some_ignored;
        report(messages::attribute_not_used, id_in(ids, entries.component(i)), entries.attribute(i));
    }
}

}  // namespace

}  // namespace polyprops::input

using namespace polyprops;

void POLY_CATSCALESEM(const Int* OP, const Int* SENTENCE, Int* STATUS, const Int* /*UNUSED1*/,
                      const Int* LOCATED)
{
    constexpr Int check = 2;
    if (*OP != check) return;
    input::find_integers(*LOCATED);
    input::scale_attributes(input::find_integers(input::find_integers(*SENTENCE)(4)), *STATUS);
}
