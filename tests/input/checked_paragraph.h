// A host with named components whose polymer paragraphs go through the check. The blocks that the check built
// are shown by component IDs. The store is a checked one.
#pragma once

#include <polyprops/polymer_block.h>

#include "support/routine_calls.h"

namespace support {

// Components W, segments A B C D E, polymers P Q, oligomers O R, catalyst K, initiator I, with the indices 1
// to 12 in this order.
struct CheckedParagraph {
    minihost::Host host{{{"W"}, {"A"}, {"B"}, {"C"}, {"D"}, {"E"}, {"P"}, {"Q"}, {"O"}, {"R"}, {"K"}, {"I"}},
                        {.store_mode = minihost::Store::Mode::checked}};

    // The status after the check, 0 before it.
    Int check(const std::vector<minihost::Sentence>& sentences, Int op = 2)
    {
        host.paragraph().set(sentences);
        return check_again(op);
    }
    Int check_again(Int op = 2)
    {
        host.messages().clear();
        host.property_sentences().clear();
        Int status = 0;
        POLY_POLSEM(nullptr, &op, host.semantics_context(), host.paragraph().handle(), nullptr, &status);
        host.store().verify();
        return status;
    }

    Ints message_numbers()
    {
        Ints numbers;
        for (const auto& message : host.messages().printed()) numbers.push_back(message.number);
        return numbers;
    }
    minihost::BlockId block(Int word) { return host.store().integer(host.polymer_block(), word); }
    Ints integers(minihost::BlockId id, Int first, Int count)
    {
        Ints words;
        for (Int k = 0; k < count; ++k) words.push_back(host.store().integer(id, first + k));
        return words;
    }
    Values reals(minihost::BlockId id, Int count)
    {
        Values words;
        for (Int k = 1; k <= count; ++k) words.push_back(host.store().real(id, k));
        return words;
    }
    // The IDs that a list block or the keys of a two-part block hold, "-" for 0.
    std::string list(Int word)
    {
        std::string text;
        for (const Int index : integers(block(word), 2, host.store().integer(block(word), 1)))
            text += (text.empty() ? "" : " ") + (index == 0 ? "-" : host.components().at(index).id);
        return text;
    }
    // Of the words of segments, polymers, oligomers, catalysts, segments by type and initiators.
    std::vector<std::string> lists()
    {
        std::vector<std::string> all;
        for (const Int word : {2, 3, 6, 7, 9, 11, 12, 13, 17}) all.push_back(list(word));
        return all;
    }
    // "P:ZMOM,SFLOW" for each forwarded sentence.
    std::string forwarded()
    {
        std::string text;
        for (const auto& sentence : host.property_sentences().forwarded()) {
            text += (text.empty() ? "" : " ") + sentence.component + ":";
            for (const auto& name : sentence.names) text += (text.back() == ':' ? "" : ",") + name;
        }
        return text;
    }
};

}  // namespace support
