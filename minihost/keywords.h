#pragma once

#include <string>

#include "minihost/store_words.h"

namespace minihost {

class Store;

// The keyword tables: a table, named by word 1 of ST_TABLES, with one row per keyword, whose last word leads
// to a sub-table; the row of the sub-table leads to the value that replaces the keyword in a built
// sentence.
class KeywordTables {
public:
    explicit KeywordTables(Store& store);

    // Number of a keyword of up to 12 characters. Throws Error for one that the table does not have.
    static Int number(const std::string& keyword);

    // Position of an item of a row of the table at a position.
    static Position item(Position table, Int row, Int item);

    struct Reading {
        BlockId table;
        Position position;
        Int length;
    };
    // Where a table entry leads. Throws Error for a number that is no table entry.
    Reading read(Int entry) const;

    // Word 1 of the keyword-value block of an ATTR-COMPS sentence.
    BlockId attribute_sentence_value() const { return value_; }

private:
    Store& store_;
    BlockId keywords_;
    BlockId sub_table_;
    BlockId value_;
};

}  // namespace minihost
