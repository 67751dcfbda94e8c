#include "minihost/catalyst_scaling.h"

#include <polyprops/host.h>

#include "minihost/component_table.h"
#include "minihost/error.h"
#include "minihost/store.h"

namespace minihost {
namespace {

constexpr Int columns = 3;
constexpr Int entry_words = 4;  // of an attribute in the directory of a component's attribute block

void set_name(Store& store, BlockId id, Int word, std::string_view name)
{
    const NamePair pair = name_pair(name);
    store.set_integer(id, word, pair[0]);
    store.set_integer(id, word + 1, pair[1]);
}

BlockId allocate_cleared(Store& store, Int length)
{
    const BlockId id = store.allocate_integers(length);
    for (Int k = 1; k <= length; ++k) store.set_integer(id, k, 0);
    return id;
}

BlockId lay_reals(Store& store, const std::vector<ScalingEntry>& entries, double ScalingEntry::*value)
{
    const BlockId id = store.allocate_reals(static_cast<Int>(entries.size()));
    Int k = 0;
    for (const auto& entry : entries) store.set_real(id, ++k, entry.*value);
    return id;
}

}  // namespace

void AttributeBlocks::lay(const AttributeTable& attributes, const AttributeDimensions& dimensions)
{
    drop();
    ids_ = lay_ids();
    for (Int c = 1; c <= components_.count(); ++c)
        blocks_.push_back(lay_component(c, attributes, dimensions));
    directory_ = allocate_cleared(store_, components_.count() + 1);
    for (Int c = 1; c <= components_.count(); ++c)
        store_.set_integer(directory_, c + 1, blocks_[static_cast<std::size_t>(c - 1)]);
    ST_PROPTAB[4 - 1] = ids_;
    ST_PROPTAB[7 - 1] = directory_;
}

void AttributeBlocks::drop()
{
    if (directory_ == 0) return;
    for (const BlockId block : blocks_) {
        store_.free(store_.integer(block, 4));
        store_.free(block);
    }
    blocks_.clear();
    store_.free(ids_);
    store_.free(directory_);
    directory_ = 0;
}

BlockId AttributeBlocks::lay_ids()
{
    const BlockId id = store_.allocate_integers(2 * components_.count());
    for (Int c = 1; c <= components_.count(); ++c) set_name(store_, id, 2 * c - 1, components_.at(c).id);
    return id;
}

BlockId AttributeBlocks::lay_component(Int component, const AttributeTable& attributes,
                                       const AttributeDimensions& dimensions)
{
    const auto& carried = attributes.carried_by(component);
    const auto count = static_cast<Int>(carried.size());
    const BlockId id = allocate_cleared(store_, entry_words * (count + 1));
    Int rows = 0;
    for (Int j = 1; j <= count; ++j) {
        const AttributeKind& kind = *carried[static_cast<std::size_t>(j - 1)].kind;
        const Int length = attribute_length(kind, dimensions);
        set_name(store_, id, entry_words * j + 1, kind.name);
        store_.set_integer(id, entry_words * j + 3, length);
        store_.set_integer(id, entry_words * j + 4, rows);
        rows += length;
    }
    const BlockId reals = store_.allocate_reals(columns * rows);
    for (Int k = 1; k <= columns * rows; ++k) store_.set_real(reals, k, 0.0);
    store_.set_integer(id, 1, count);
    store_.set_integer(id, 2, rows);
    store_.set_integer(id, 4, reals);
    return id;
}

std::vector<double> AttributeBlocks::values(Int component, std::string_view attribute, Int column) const
{
    const BlockId id = blocks_.at(static_cast<std::size_t>(component - 1));
    const NamePair name = name_pair(attribute);
    for (Int j = 1; j <= store_.integer(id, 1); ++j) {
        const Int entry = entry_words * j;
        if (store_.integer(id, entry + 1) != name[0] || store_.integer(id, entry + 2) != name[1]) continue;
        const Int first = store_.integer(id, entry + 4) + (column - 1) * store_.integer(id, 2);
        std::vector<double> result;
        for (Int e = 1; e <= store_.integer(id, entry + 3); ++e)
            result.push_back(store_.real(store_.integer(id, 4), first + e));
        return result;
    }
    throw Error(components_.at(component).id + " does not carry attribute " + std::string(attribute));
}

BlockId lay_scaling_sentence(Store& store, const ComponentTable& components,
                             const std::vector<ScalingEntry>& entries)
{
    const auto count = static_cast<Int>(entries.size());
    const BlockId indices = store.allocate_integers(count);
    const BlockId names = store.allocate_integers(2 * count);
    for (Int i = 1; i <= count; ++i) {
        const ScalingEntry& entry = entries[static_cast<std::size_t>(i - 1)];
        store.set_integer(indices, i, components.index(entry.component));
        set_name(store, names, 2 * i - 1, entry.attribute);
    }
    const BlockId first = lay_reals(store, entries, &ScalingEntry::first);
    const BlockId second = lay_reals(store, entries, &ScalingEntry::second);
    const BlockId data = allocate_cleared(store, 14);
    const Int words[][2] = {{6, count}, {11, indices}, {12, names}, {13, first}, {14, second}};
    for (const auto& [word, value] : words) store.set_integer(data, word, value);
    const BlockId sentence = allocate_cleared(store, 4);
    store.set_integer(sentence, 4, data);
    return sentence;
}

}  // namespace minihost
