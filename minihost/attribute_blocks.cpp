#include "minihost/attribute_blocks.h"

#include <polyprops/host.h>

#include "minihost/component_table.h"
#include "minihost/error.h"
#include "minihost/store.h"

namespace minihost {
namespace {

constexpr Int columns = 3;
constexpr Int entry_words = 4;  // of an attribute in the directory of a component's attribute block

}  // namespace

void AttributeBlocks::lay(const AttributeTable& attributes, const AttributeDimensions& dimensions)
{
    drop();
    ids_ = lay_ids();
    for (Int c = 1; c <= components_.count(); ++c)
        blocks_.push_back(lay_component(c, attributes, dimensions));
    directory_ = store_.allocate_zeros(components_.count() + 1);
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
    for (Int c = 1; c <= components_.count(); ++c) store_.set_name(id, 2 * c - 1, components_.at(c).id);
    return id;
}

BlockId AttributeBlocks::lay_component(Int component, const AttributeTable& attributes,
                                       const AttributeDimensions& dimensions)
{
    const auto& carried = attributes.carried_by(component);
    const auto count = static_cast<Int>(carried.size());
    const BlockId id = store_.allocate_zeros(entry_words * (count + 1));
    Int rows = 0;
    for (Int j = 1; j <= count; ++j) {
        const AttributeKind& kind = *carried[static_cast<std::size_t>(j - 1)].kind;
        const Int length = attribute_length(kind, dimensions);
        store_.set_name(id, entry_words * j + 1, kind.name);
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

}  // namespace minihost
