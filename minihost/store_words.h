// Integers, reals and text in 64-bit words.
//
// Names and component IDs travel as pairs of words: four characters and four blanks in each. The component
// name table is the exception: eight characters a word.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

namespace minihost {

using Int = std::int64_t;
using Word = std::int64_t;
using Position = std::int64_t;  // 1-based position in the word store
using BlockId = std::int64_t;   // positive name of a store block
using NamePair = std::array<Word, 2>;

inline Word word_of(double value)
{
    return std::bit_cast<Word>(value);
}
inline double real_of(Word word)
{
    return std::bit_cast<double>(word);
}

// A word of up to eight characters, blank-padded on the right.
Word text_word(std::string_view text);

// Up to eight characters as two words of four characters and four blanks. Throws Error for a longer text.
NamePair name_pair(std::string_view name);

// The name that a pair of words holds, without trailing blanks.
std::string name_of(const Word* pair);

}  // namespace minihost
