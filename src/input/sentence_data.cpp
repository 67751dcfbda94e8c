#include "input/sentence_data.h"

namespace polyprops::input {

namespace {

// One sentence as the host delivers it.
struct Delivery {
    Int kind;
    Int integer_position = 0;
    Int integer_count = 0;
    Int real_position = 0;
    Int real_count = 0;

    // The position of no words is anything, and must not become an address.
    SentenceWords words() const
    {
        const IntegerBlock integers = integer_count > 0 ? integers_at(integer_position) : no_integers;
        return {{integers, RealBlock{Position{real_position}}}, integer_count, real_count};
    }
};

constexpr Int catalyst_sites = 6;

struct Kind {
    Int code;
    Sentence Sentences::*copy;
    bool has_reals;
    Int count_word;
};
constexpr std::array kinds{
    Kind{1, &Sentences::polymers, false, 3},   Kind{2, &Sentences::segments, false, 3},
    Kind{3, &Sentences::attributes, false, 3}, Kind{4, &Sentences::oligomers, true, 6},
    Kind{5, &Sentences::catalysts, true, 3},   Kind{7, &Sentences::distributions, true, 6},
    Kind{8, &Sentences::initiators, false, 2},
};

Delivery ask_for_sentence(Int number, const Int* paragraph, Int* status)
{
    constexpr Int zero = 0;
    Int unused_1 = 0;
    Int unused_2 = 0;
    // The host takes the kind word in as the sentence number.
    Delivery sentence{number};
    UT_GET_SENTENCE(&number, &sentence.kind, paragraph, &zero, &zero, &zero, &zero, &unused_1,
                    &sentence.integer_position, &sentence.integer_count, &unused_2, &sentence.real_position,
                    &sentence.real_count, status);
    sentence.integer_count = std::max<Int>(sentence.integer_count, 0);
    sentence.real_count = std::max<Int>(sentence.real_count, 0);
    return sentence;
}

Real* real_address(Int position)
{
    return reinterpret_cast<Real*>(address_of(Position{position}));
}

// Sentence words do not move while their copy is made, unlike blocks.
Sentence copy_of(const Delivery& from, const Kind& kind)
{
    const SentenceWords words = from.words();
    const Int entries = words.name_count(words.list_start(1), words.integer(kind.count_word));
    Sentence copy{0, from.integer_count, kind.has_reals ? from.real_count : 0, kind.has_reals, entries};
    Int integers = 0;
    Int reals = 0;
    Int unused = 0;
    if (kind.has_reals)
        ST_ALLOC_M(&copy.integer_count, &copy.real_count, &copy.id, &integers, &reals, &unused);
    else
        ST_ALLOC_I(&copy.integer_count, &copy.id, &integers);
    if (copy.integer_count > 0)
        ST_COPY_I(address_of(Position{from.integer_position}), address_of(Position{integers}),
                  &copy.integer_count);
    if (copy.real_count > 0)
        ST_COPY_R(real_address(from.real_position), real_address(reals), &copy.real_count);
    return copy;
}

SiteScalars scalars_of(const SentenceWords& words)
{
    return {words.integer(1), {words.integer(11), words.integer(12), words.integer(13)}, words.real(1)};
}

}  // namespace

SentenceWords Sentence::words() const
{
    if (!is_given()) return {};
    if (has_reals) return {find_two_part(id), integer_count, real_count};
    return {{find_integers(id), RealBlock{}}, integer_count, 0};
}

Int number_of_sentences()
{
    return find_integers(word(ST_TABLES, 2))(3);
}

std::optional<Sentences> read_sentences(Int count, const Int* paragraph, Int* status)
{
    constexpr Int unreadable = 2;
    Sentences sentences;
    for (Int number = 1; number <= count; ++number) {
        const Delivery sentence = ask_for_sentence(number, paragraph, status);
        if (*status == unreadable) return std::nullopt;
        if (sentence.kind == catalyst_sites) sentences.sites = scalars_of(sentence.words());
        for (const Kind& kind : kinds)
            if (kind.code == sentence.kind) sentences.*kind.copy = copy_of(sentence, kind);
    }
    return sentences;
}

}  // namespace polyprops::input
