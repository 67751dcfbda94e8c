// The host's summary file: a sequence of tokens, numbered data sets and list sets, and blocks of values.
//
// ST_SUMGLOBAL counts them: word 2 the current block, word 3 the next data set, word 4 the next list set.
#pragma once

#include <algorithm>

#include "host/words.h"

namespace polyprops {

inline bool summary_is_wanted()
{
    const Int report_switch = word(ST_RPTGLOBAL, 12);
    return report_switch == 1 || report_switch == 2;
}

namespace summary {

inline Real no_real()
{
    return std::bit_cast<Real>(word(ST_INITV, 1));
}
inline Int no_integer()
{
    return word(ST_INITV, 2);
}

// ---- tokens ----

inline void put(Int kind, Int length, const Int* data, Real real)
{
    ST_SUMMARY_OUT(&kind, &length, data, &real);
}
// Up to twelve characters, four to a word.
inline void put_text(Int kind, std::string_view text)
{
    const Int length = static_cast<Int>(text.size());
    std::array<Int, 3> words;
    for (Int& part : words) {
        part = text_word(text);
        text.remove_prefix(std::min<std::size_t>(text.size(), 4));
    }
    put(kind, length, words.data(), no_real());
}
inline void put_integer(Int kind, Int value)
{
    put(kind, 0, &value, no_real());
}

inline void definition_break()
{
    put_integer(word(ST_GLOBAL, 8), no_integer());
}
inline void data_break()
{
    put_integer(word(ST_GLOBAL, 8), 0);
}
inline void text_token(std::string_view text)
{
    put_text(0, text);
}
inline void integer(Int value)
{
    put_integer(0, value);
}
inline void real(Real value)
{
    const Int unused = no_integer();
    put(0, -1, &unused, value);
}
inline void open()
{
    put_text(1, " ");
}
inline void close(std::string_view text = " ")
{
    put_text(2, text);
}
inline void name(std::string_view text)
{
    put_text(3, text);
}
inline void label(std::string_view text)
{
    put_text(7, text);
}
inline void separator()
{
    put_integer(8, 1);
}

// ---- counters ----

inline Int next_data_set()
{
    return word(ST_SUMGLOBAL, 3);
}
inline Int next_list_set()
{
    return word(ST_SUMGLOBAL, 4);
}
inline void count_data_set()
{
    ++word(ST_SUMGLOBAL, 3);
}
inline void count_list_set()
{
    word(ST_SUMGLOBAL, 2) = word(ST_SUMGLOBAL, 4);
    ++word(ST_SUMGLOBAL, 4);
}

// ---- a block of values ----

// The context is the host's own, handed back to it unseen.
template <class Values>
void data_block(const void* context, const NamePair& block, Values write_values)
{
    const Int zero = 0;
    data_break();
    RP_SUMMARY_HEADER(context, block.data(), &zero);
    open();
    write_values();
    close();
    data_break();
}

}  // namespace summary

}  // namespace polyprops
