#include "support/polymer_block.h"

#include <algorithm>
#include <string>

#include "minihost/error.h"
#include "minihost/store.h"

namespace support {
namespace {

using minihost::Error;
using minihost::Store;

constexpr Int block_words = 17;

BlockId lay_list(Store& store, const std::vector<Int>& entries)
{
    const auto count = static_cast<Int>(entries.size());
    const BlockId id = store.allocate_integers(count + 1);
    store.set_integer(id, 1, count);
    for (Int i = 1; i <= count; ++i) store.set_integer(id, i + 1, entries[static_cast<std::size_t>(i - 1)]);
    return id;
}

BlockId lay_segments(Store& store, const std::vector<PolymerLists::Segment>& segments)
{
    std::vector<Int> words;
    for (const auto& segment : segments) words.push_back(segment.component);
    for (const auto& segment : segments) words.push_back(static_cast<Int>(segment.type));
    const BlockId id = lay_list(store, words);
    store.set_integer(id, 1, static_cast<Int>(segments.size()));
    return id;
}

void lay_counts(Store& store, BlockId id, Int column, const PolymerLists::Oligomer& oligomer,
                const std::vector<PolymerLists::Segment>& segments)
{
    const auto rows = static_cast<Int>(segments.size());
    for (Int s = 1; s <= rows; ++s) store.set_real(id, (column - 1) * rows + s, 0.0);
    for (const auto& [component, count] : oligomer.counts) {
        const auto is_it = [c = component](const auto& segment) { return segment.component == c; };
        const auto found = std::find_if(segments.begin(), segments.end(), is_it);
        if (found == segments.end())
            throw Error("oligomer " + std::to_string(oligomer.component) + ": component " +
                        std::to_string(component) + " is not a segment");
        store.set_real(id, (column - 1) * rows + (found - segments.begin()) + 1, count);
    }
}

BlockId lay_oligomers(Store& store, const std::vector<PolymerLists::Oligomer>& oligomers,
                      const std::vector<PolymerLists::Segment>& segments)
{
    const auto count = static_cast<Int>(oligomers.size());
    const BlockId id = store.allocate_two_part(count + 1, count * static_cast<Int>(segments.size()));
    store.set_integer(id, 1, count);
    for (Int k = 1; k <= count; ++k) {
        const auto& oligomer = oligomers[static_cast<std::size_t>(k - 1)];
        store.set_integer(id, k + 1, oligomer.component);
        lay_counts(store, id, k, oligomer, segments);
    }
    return id;
}

BlockId lay_parameters(Store& store, const PolymerLists& lists)
{
    const BlockId id = store.allocate_two_part(13, 1);
    for (Int k = 1; k <= 13; ++k) store.set_integer(id, k, 0);
    store.set_integer(id, 1, lists.sites);
    store.set_real(id, 1, 0.0);
    return id;
}

}  // namespace

BlockId lay_polymer_block(minihost::Store& store, const PolymerLists& lists)
{
    PolymerLists sorted = lists;
    const auto by_component = [](const auto& a, const auto& b) { return a.component < b.component; };
    std::stable_sort(sorted.segments.begin(), sorted.segments.end(), by_component);
    std::stable_sort(sorted.oligomers.begin(), sorted.oligomers.end(), by_component);

    const BlockId id = store.allocate_integers(block_words);
    for (Int k = 2; k <= block_words; ++k) store.set_integer(id, k, 0);
    store.set_integer(id, 1, block_words);
    store.set_integer(id, 2, lay_segments(store, sorted.segments));
    store.set_integer(id, 3, lay_list(store, sorted.polymers));
    store.set_integer(id, 6, lay_oligomers(store, sorted.oligomers, sorted.segments));
    store.set_integer(id, 8, lay_parameters(store, sorted));
    store.set_integer(id, 9, lay_list(store, sorted.end_segments));
    return id;
}

}  // namespace support
