#pragma once

#include <array>
#include <vector>

#include "minihost/paragraph_sentences.h"
#include "minihost/store_words.h"

namespace minihost {

class Store;

// Delivers the sentences of the current polymer paragraph one by one. The data of a sentence stay where they
// are until the next one is asked for, and are gone then.
class PolymerParagraph {
public:
    struct Delivery {
        Int kind;
        Position integers;
        Int integer_length;
        Position reals;
        Int real_length;
    };

    explicit PolymerParagraph(Store& store) : store_(store) {}

    // Makes these sentences, numbered from 1, the current paragraph: word 2 of ST_TABLES names a block whose
    // word 3 is their number.
    void set(const std::vector<Sentence>& sentences);

    // The array that is handed to the paragraph check and comes back with each request for a sentence. Word
    // 1 is 1: the check is to tell when it is done.
    Int* handle() { return handle_.data(); }

    // Throws Error for a number that no sentence has.
    Delivery deliver(Int number);
    void end();

    // A request for this sentence fails (status 2); 0: none does.
    void fail_at(Int number) { failing_ = number; }
    bool fails(Int number) const { return failing_ == number; }

    Int count() const { return static_cast<Int>(sentences_.size()); }
    Int times_ended() const { return times_ended_; }

private:
    void drop_delivered();

    Store& store_;
    std::vector<SentenceWords> sentences_;
    std::array<Int, 4> handle_ = {1, 0, 0, 0};
    BlockId block_ = 0;
    BlockId integers_ = 0;
    BlockId reals_ = 0;
    Int failing_ = 0;
    Int times_ended_ = 0;
};

}  // namespace minihost
