// The sentences of the polymer paragraph.
//
// The host's translator delivers each sentence as integer and real words that stay readable until the next
// one is asked for. All but the catalyst-site scalars are copied into blocks of their own and read from
// there.
#pragma once

#include <algorithm>
#include <array>
#include <optional>

#include "input/blocks.h"

namespace polyprops::input {

// The words of one sentence. Words beyond its end read as 0, whatever a faulty count or list
// start says.
class SentenceWords {
public:
    SentenceWords() = default;
    SentenceWords(const TwoPartBlock& block, Int integer_count, Int real_count)
        : block_(block), integer_count_(integer_count), real_count_(real_count)
    {
    }

    // Lists begin at word 1 or later, so that no word is before the first.
    Int integer(Int word) const { return word <= integer_count_ ? block_.integers(word) : 0; }
    Real real(Int word) const { return word <= real_count_ ? block_.reals(word) : 0.0; }

    // The word at which a list begins, as an integer word says; one that is not in the sentence becomes the
    // word after its last, so that subscripts into the list cannot overflow.
    Int list_start(Int word) const { return start_within(word, integer_count_); }
    Int real_list_start(Int word) const { return start_within(word, real_count_); }

    NamePair name(Int list, Int entry) const
    {
        return {integer(list + 2 * entry - 2), integer(list + 2 * entry - 1)};
    }
    // A stated number of name pairs, limited to those that the sentence can hold.
    Int name_count(Int list, Int stated) const
    {
        return std::clamp<Int>(stated, 0, (integer_count_ - list + 1) / 2);
    }

private:
    Int start_within(Int word, Int count) const
    {
        const Int start = integer(word);
        return 1 <= start && start <= count ? start : count + 1;
    }

    TwoPartBlock block_{no_integers, RealBlock{}};
    Int integer_count_ = 0;
    Int real_count_ = 0;
};

// The copy of one sentence; all zero when the paragraph has no such sentence.
struct Sentence {
    Int id = 0;
    Int integer_count = 0;
    Int real_count = 0;
    bool has_reals = false;
    Int entry_count = 0;

    bool is_given() const { return id > 0; }
    // Located afresh: good until the next allocation.
    SentenceWords words() const;
};

// The catalyst-site sentence: the number of site types, and values that the host's readers understand.
struct SiteScalars {
    Int site_type_count = 0;
    std::array<Int, 3> integers = {};
    Real real = 0.0;
};

struct Sentences {
    Sentence polymers;
    Sentence segments;
    Sentence attributes;
    Sentence oligomers;
    Sentence catalysts;
    Sentence distributions;
    Sentence initiators;
    SiteScalars sites;
};

Int number_of_sentences();

// Reads and copies sentences 1..count, a later one of a kind in place of an earlier one. Nothing when the
// host sets the status to 2.
std::optional<Sentences> read_sentences(Int count, const Int* paragraph, Int* status);

}  // namespace polyprops::input
