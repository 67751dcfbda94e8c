#include "minihost/polymer_paragraph.h"

#include <polyprops/host.h>

#include <string>

#include "minihost/error.h"
#include "minihost/store.h"

namespace minihost {

void PolymerParagraph::set(const std::vector<Sentence>& sentences)
{
    std::vector<SentenceWords> words;
    words.reserve(sentences.size());
    for (const Sentence& sentence : sentences) words.push_back(words_of(sentence));
    sentences_ = std::move(words);
    drop_delivered();
    if (block_ > 0) store_.free(block_);
    block_ = store_.allocate_integers(3);
    for (Int k = 1; k <= 3; ++k) store_.set_integer(block_, k, k == 3 ? count() : 0);
    ST_TABLES[2 - 1] = block_;
}

PolymerParagraph::Delivery PolymerParagraph::deliver(Int number)
{
    if (number < 1 || number > count())
        throw Error("sentence " + std::to_string(number) + " was asked for; the paragraph has " +
                    std::to_string(count()));
    const SentenceWords& words = sentences_[static_cast<std::size_t>(number - 1)];
    const auto integer_length = static_cast<Int>(words.integers.size());
    const auto real_length = static_cast<Int>(words.reals.size());
    // The new data are laid before the old are dropped: they never take the same place.
    const BlockId integers = store_.allocate_integers(integer_length, Placement::pinned);
    const BlockId reals = store_.allocate_reals(real_length, Placement::pinned);
    for (Int k = 1; k <= integer_length; ++k)
        store_.set_integer(integers, k, words.integers[static_cast<std::size_t>(k - 1)]);
    for (Int k = 1; k <= real_length; ++k)
        store_.set_real(reals, k, words.reals[static_cast<std::size_t>(k - 1)]);
    drop_delivered();
    integers_ = integers;
    reals_ = reals;
    return {words.kind, store_.integers(integers), integer_length, store_.reals(reals), real_length};
}

void PolymerParagraph::end()
{
    drop_delivered();
    ++times_ended_;
}

void PolymerParagraph::drop_delivered()
{
    if (integers_ == 0) return;
    store_.free(integers_);
    store_.free(reals_);
    integers_ = reals_ = 0;
}

}  // namespace minihost
