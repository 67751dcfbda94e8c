// Words of the host's store and of its records.
//
// A word is a signed 64-bit integer or holds the bits of a double; which one depends on the block. A store
// position is a type of its own, so that it cannot be taken for a component index.
#pragma once

#include <array>
#include <bit>
#include <string_view>

#include "host/views.h"
#include "polyprops/host.h"

namespace polyprops {

enum class Position : Int {};

constexpr Position operator+(Position p, Int words)
{
    return Position{static_cast<Int>(p) + words};
}

// Word k of a record or of the store: the only place where a word number becomes a subscript.
template <class T>
constexpr T& word(T* record, Int k)
{
    return record[k - 1];
}

inline Int* address_of(Position p)
{
    return &word(ST_WORDS, static_cast<Int>(p));
}
inline Int integer_at(Position p)
{
    return *address_of(p);
}
inline Real real_at(Position p)
{
    return std::bit_cast<Real>(*address_of(p));
}
inline void write_real(Position p, Real value)
{
    *address_of(p) = std::bit_cast<Int>(value);
}

// Consecutive reals of the store.
class RealWords {
public:
    RealWords() = default;
    explicit RealWords(Position first) : first_(address_of(first)) {}

    Real operator()(Int i) const { return std::bit_cast<Real>(word(first_, i)); }

private:
    const Int* first_ = nullptr;
};

// Four characters of a text, from the given one on, followed by four blanks: so the host writes text into a
// word.
constexpr Int text_word(std::string_view text, std::size_t from = 0)
{
    std::array<char, 8> characters{' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '};
    for (std::size_t i = 0; i < 4 && from + i < text.size(); ++i) characters[i] = text[from + i];
    return std::bit_cast<Int>(characters);
}

// A name of up to eight characters in two words of four.
struct NamePair {
    std::array<Int, 2> words;

    constexpr explicit NamePair(std::string_view name) : words{text_word(name), text_word(name, 4)} {}
    constexpr NamePair(Int first, Int second) : words{first, second} {}

    const Int* data() const { return words.data(); }
    // The eight characters, trailing blanks kept.
    std::array<char, 8> characters() const
    {
        std::array<char, 8> text{};
        for (std::size_t half = 0; half < 2; ++half) {
            const auto stored = std::bit_cast<std::array<char, 8>>(words[half]);
            for (std::size_t i = 0; i < 4; ++i) text[4 * half + i] = stored[i];
        }
        return text;
    }
    friend bool operator==(const NamePair&, const NamePair&) = default;
};

// ---- records ----

inline Real missing_value_bound()
{
    return word(ST_RGLOBAL, 1);
}
inline Real zero_bound()
{
    return word(ST_RGLOBAL, 2);
}
// At or above the bound a value counts as not given; a NaN counts as given.
inline bool is_missing(Real value)
{
    return at_least(value, missing_value_bound());
}

// Given and above zero, both bounds themselves excluded.
inline bool is_between_bounds(Real value)
{
    return above(value, zero_bound()) && below(value, missing_value_bound());
}

inline Int polymer_count_of_run()
{
    return word(ST_NCOMP, 17);
}
inline bool keeps_polydispersity_parameter()
{
    return word(ST_GLOBAL, 30) == 100;
}

// A pure-component parameter: an offset of 0 means that the vector does not exist.
class ParameterVector {
public:
    bool exists() const { return offset_ != 0; }
    Real value_or(Real absent, Component c) const
    {
        return exists() ? real_at(Position{offset_ + c.index}) : absent;
    }

    static ParameterVector molecular_weight() { return ParameterVector{306}; }
    static ParameterVector degree_of_polymerization() { return ParameterVector{540}; }
    static ParameterVector crystallinity() { return ParameterVector{601}; }
    static ParameterVector polydispersity() { return ParameterVector{684}; }

private:
    explicit ParameterVector(Int entry) : offset_(word(ST_POFF1, entry)) {}

    Int offset_;
};

// The component's own molecular weight in g/mol; 0 when the run has no molecular weights.
inline Real molecular_weight(Component c)
{
    return ParameterVector::molecular_weight().value_or(0.0, c);
}

// The first eight characters of a component's name; the host's name table holds three such words a name.
inline Int first_word_of_name(Component c)
{
    return integer_at(Position{word(ST_POFF4, 1) + 3 * (c.index - 1) + 1});
}

}  // namespace polyprops
