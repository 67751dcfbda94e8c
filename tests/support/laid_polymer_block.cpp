#include "support/laid_polymer_block.h"

#include <polyprops/polymer_block.h>

#include "minihost/store.h"

namespace support {
namespace {

using minihost::Store;

void fill(Store& store, BlockId id, const std::vector<Int>& integers)
{
    Int k = 0;
    for (const Int word : integers) store.set_integer(id, ++k, word);
}

BlockId lay(Store& store, const std::vector<Int>& integers)
{
    const BlockId id = store.allocate_integers(std::ssize(integers));
    fill(store, id, integers);
    return id;
}

BlockId lay(Store& store, const std::vector<Int>& keys, const std::vector<double>& values)
{
    const BlockId id = store.allocate_two_part(std::ssize(keys), std::ssize(values));
    fill(store, id, keys);
    Int k = 0;
    for (const double word : values) store.set_real(id, ++k, word);
    return id;
}

// A list begins with the number of its entries.
BlockId lay_list(Store& store, std::vector<Int> entries)
{
    entries.insert(entries.begin(), std::ssize(entries));
    return lay(store, entries);
}

}  // namespace

BlockId lay_polymer_block(Store& store, const PolymerLists& lists)
{
    std::vector<Int> segments{std::ssize(lists.segments)};
    for (const auto& segment : lists.segments) segments.push_back(segment.component);
    for (const auto& segment : lists.segments) segments.push_back(static_cast<Int>(segment.type));

    std::vector<Int> oligomers{std::ssize(lists.oligomers)};
    std::vector<double> counts;
    for (auto oligomer : lists.oligomers) {
        oligomers.push_back(oligomer.component);
        for (const auto& segment : lists.segments) counts.push_back(oligomer.counts[segment.component]);
    }

    std::vector<Int> parameters(POLYPROPS_PARAMETER_INTEGERS);
    parameters[POLYPROPS_SITE_TYPES - 1] = lists.sites;
    std::vector<Int> block(POLYPROPS_POLYMER_BLOCK_LENGTH);
    block[0] = std::ssize(block);
    block[POLYPROPS_SEGMENT_LIST - 1] = lay(store, segments);
    block[POLYPROPS_POLYMER_LIST - 1] = lay_list(store, lists.polymers);
    block[POLYPROPS_OLIGOMER_LIST - 1] = lay(store, oligomers, counts);
    block[POLYPROPS_PARAMETERS - 1] = lay(store, parameters, {0});
    block[POLYPROPS_END_SEGMENT_LIST - 1] = lay_list(store, lists.end_segments);
    return lay(store, block);
}

}  // namespace support
