#include "minihost/keywords.h"

#include <polyprops/host.h>

#include <algorithm>
#include <iterator>

#include "minihost/error.h"
#include "minihost/store.h"

namespace minihost {
namespace {

constexpr const char* keywords[] = {"POLYMERS", "CATSCALE", "ATTR-COMPS"};
constexpr auto keyword_count = static_cast<Int>(std::size(keywords));
constexpr Int row_words = 7;
constexpr Int entry_item = 7;

// Table entries are no block ids: a table is reached only by reading its entry.
constexpr Int entry_base = 50'000;

BlockId lay_table(Store& store, Int rows)
{
    const BlockId id = store.allocate_zeros(1 + rows * row_words, Placement::pinned);
    store.set_integer(id, 1, rows);
    return id;
}

void set_entry(Store& store, BlockId table, Int row, BlockId target)
{
    store.set_integer(table, 1 + (row - 1) * row_words + entry_item, entry_base + target);
}

}  // namespace

KeywordTables::KeywordTables(Store& store)
    : store_(store),
      keywords_(lay_table(store, keyword_count)),
      sub_table_(lay_table(store, 1)),
      value_(lay_table(store, 1))
{
    set_entry(store, keywords_, number("ATTR-COMPS"), sub_table_);
    set_entry(store, sub_table_, 1, value_);
    ST_TABLES[1 - 1] = keywords_;
}

Int KeywordTables::number(const std::string& keyword)
{
    const auto* found = std::find(std::begin(keywords), std::end(keywords), keyword);
    if (found == std::end(keywords)) throw Error("unknown keyword \"" + keyword + "\"");
    return found - std::begin(keywords) + 1;
}

Position KeywordTables::item(Position table, Int row, Int item)
{
    if (row < 1 || item < 1 || item > row_words)
        throw Error("the keyword tables have no item " + std::to_string(item) + " of row " +
                    std::to_string(row));
    return table + (row - 1) * row_words + item;
}

KeywordTables::Reading KeywordTables::read(Int entry) const
{
    const BlockId table = entry - entry_base;
    if (table != sub_table_ && table != value_)
        throw Error(std::to_string(entry) + " is no entry of the keyword tables");
    return {table, store_.integers(table), store_.integer_length(table)};
}

}  // namespace minihost
