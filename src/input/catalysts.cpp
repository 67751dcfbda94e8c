#include "input/catalysts.h"

#include "input/components.h"
#include "input/input_messages.h"

namespace polyprops::input {

namespace {

// Component index of the ID; 0, with a message, when it names none.
Int index_or_zero(const NamePair& id, const Message& unknown)
{
    const auto c = find_component(id);
    if (!c) report(unknown, id);
    return c ? c->index : 0;
}

}  // namespace

void list_catalysts(const Sentence& catalysts, const PolymerBlock& block)
{
    const SentenceWords words = catalysts.words();
    const Int ids = words.list_start(1);
    const TwoPartBlock target = block.two_part(POLYPROPS_CATALYST_LIST);
    target.integers(1) = catalysts.entry_count;
    for (Int i = 1; i <= catalysts.entry_count; ++i) {
        const Int index = index_or_zero(words.name(ids, i), messages::unknown_catalyst);
        target.integers(i + 1) = index;
        target.reals.write(i, index == 0 ? 0.0 : words.real(i));
    }
}

void list_initiators(const Sentence& initiators, const PolymerBlock& block)
{
    const SentenceWords words = initiators.words();
    const Int ids = words.list_start(1);
    const IntegerBlock target = block.list(POLYPROPS_INITIATOR_LIST);
    target(1) = initiators.entry_count;
    for (Int i = 1; i <= initiators.entry_count; ++i)
        target(i + 1) = index_or_zero(words.name(ids, i), messages::unknown_initiator);
}

}  // namespace polyprops::input
