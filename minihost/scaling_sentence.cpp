#include "minihost/scaling_sentence.h"

#include "minihost/component_table.h"
#include "minihost/store.h"

namespace minihost {
namespace {

BlockId lay_reals(Store& store, const std::vector<ScalingEntry>& entries, double ScalingEntry::*value)
{
    const BlockId id = store.allocate_reals(static_cast<Int>(entries.size()));
    Int k = 0;
    for (const auto& entry : entries) store.set_real(id, ++k, entry.*value);
    return id;
}

}  // namespace

BlockId lay_scaling_sentence(Store& store, const ComponentTable& components,
                             const std::vector<ScalingEntry>& entries)
{
    const auto count = static_cast<Int>(entries.size());
    const BlockId indices = store.allocate_integers(count);
    const BlockId names = store.allocate_integers(2 * count);
    for (Int i = 1; i <= count; ++i) {
        const ScalingEntry& entry = entries[static_cast<std::size_t>(i - 1)];
        store.set_integer(indices, i, components.index(entry.component));
        store.set_name(names, 2 * i - 1, entry.attribute);
    }
    const BlockId first = lay_reals(store, entries, &ScalingEntry::first);
    const BlockId second = lay_reals(store, entries, &ScalingEntry::second);
    const BlockId data = store.allocate_zeros(14);
    const Int words[][2] = {{6, count}, {11, indices}, {12, names}, {13, first}, {14, second}};
    for (const auto& [word, value] : words) store.set_integer(data, word, value);
    const BlockId sentence = store.allocate_zeros(4);
    store.set_integer(sentence, 4, data);
    return sentence;
}

}  // namespace minihost
