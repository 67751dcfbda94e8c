// The summary file: one token a line, as docs/summary-file.md describes it.
//
// A token comes as kind, length, data words and a real. A kind leaves what it does not use at the run's
// initial values (ST_INITV); text has four characters to a word. Anything else is refused.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "minihost/store_words.h"

namespace minihost {

struct SummaryToken {
    enum class Kind {
        definition_break,
        data_break,
        word,
        integer,
        real,
        open,
        close,
        name,
        label,
        separator,
        header
    };

    Kind kind;
    std::string text = {};     // of word, close ("" for one without a name), name, label, header
    Int integer = 0;           // of integer
    double real = 0.0;         // of real
    std::string context = {};  // of header: the subject of the block

    // The token's line in the file, without its end.
    std::string line() const;
};

class SummaryFile {
public:
    // Counters of data sets and blocks start at 1, the report switch at 1.
    SummaryFile();

    // The library writes summary tokens only when this is 1 or 2.
    void set_report_switch(Int value);

    // A context to hand to routines that write blocks: blocks are headed by its name.
    const void* context(const std::string& name) { return &*contexts_.insert(name).first; }

    // Append a token. Throw Error for one that breaks a rule.
    void write_token(Int kind, Int length, const Word* data, double real);
    void write_header(const void* context, const Word* block_name, Int zero);

    const std::vector<SummaryToken>& tokens() const { return tokens_; }
    std::string text() const;

private:
    std::set<std::string> contexts_;
    std::vector<SummaryToken> tokens_;
};

}  // namespace minihost
