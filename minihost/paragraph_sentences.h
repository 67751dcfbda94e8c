// The sentences of a polymer paragraph, as plain entries and as the words in which they travel.
//
// Nothing is checked here: IDs that no component has, repeated entries and odd numbers are the paragraph
// check's to find.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "minihost/store_words.h"

namespace minihost {

struct PolymerSentence {
    std::vector<std::string> ids;
};

struct SegmentSentence {
    struct Entry {
        std::string id;
        Int type;  // 1 end, 2 repeat, 3 and 4 branch points
    };
    std::vector<Entry> entries;
};

// ATTR-COMPS: the attributes that components are to carry.
struct AttributeSentence {
    struct Entry {
        std::string id;
        std::vector<std::string> names;
    };
    std::vector<Entry> entries;
};

struct OligomerSentence {
    struct Entry {
        std::string id;  // empty: the oligomer of the entry before
        std::string segment;
        double count;  // segments per molecule
    };
    std::vector<Entry> entries;
};

struct CatalystSentence {
    struct Entry {
        std::string id;
        double value;
    };
    std::vector<Entry> entries;
};

struct SiteSentence {
    Int sites;  // catalyst site types
    Int further[3] = {0, 0, 0};
    double real = 0.0;
};

struct DistributionSentence {
    struct Entry {
        std::string polymer;
        Int type;  // 1..4
        Int further[3];
        double real;
    };
    std::vector<Entry> entries;
};

struct InitiatorSentence {
    std::vector<std::string> ids;
};

// Integer and real data of a sentence, with its kind code.
struct SentenceWords {
    Int kind = 0;
    std::vector<Word> integers = {};
    std::vector<double> reals = {};
};

// A sentence of kind 1 to 8 in that order, or words that are delivered unchanged.
using Sentence =
    std::variant<PolymerSentence, SegmentSentence, AttributeSentence, OligomerSentence, CatalystSentence,
                 SiteSentence, DistributionSentence, InitiatorSentence, SentenceWords>;

// The words of a sentence. Throws Error for an ID or name of more than 8 characters.
SentenceWords words_of(const Sentence& sentence);

}  // namespace minihost
