// Layout of sentence data. A sentence begins with words that tell where its lists begin and how many entries
// they have; the lists follow. Words that no kind uses hold a number that fits nowhere, and a word of it
// separates the lists: a reader that counts on lists being adjacent, or that looks into the wrong word, does
// not get far.
#include "minihost/paragraph_sentences.h"

#include <functional>

namespace minihost {
namespace {

constexpr Word unused = -7777;
constexpr std::size_t header_words = 8;

class Writer {
public:
    explicit Writer(Int kind, std::size_t header = header_words) : words_{.kind = kind}
    {
        words_.integers.assign(header, unused);
    }

    // Sets word k of the header.
    void header(std::size_t k, Word value) { words_.integers.at(k - 1) = value; }
    void count(std::size_t k, std::size_t entries) { header(k, static_cast<Word>(entries)); }

    // The next word begins the list that word k of the header names.
    void begin_list(std::size_t k)
    {
        words_.integers.push_back(unused);
        header(k, next());
    }
    Word next() const { return static_cast<Word>(words_.integers.size()) + 1; }
    void word(Word value) { words_.integers.push_back(value); }
    void real(double value) { words_.reals.push_back(value); }
    void name(const std::string& text)
    {
        for (const Word half : name_pair(text)) word(half);
    }
    // The list that word k of the header names: one name of each entry.
    template <class Entries, class Name = std::identity>
    void list_names(std::size_t k, const Entries& entries, Name name_of_entry = {})
    {
        begin_list(k);
        for (const auto& entry : entries) name(std::invoke(name_of_entry, entry));
    }
    void set(Word k, Word value) { words_.integers.at(static_cast<std::size_t>(k - 1)) = value; }
    SentenceWords finish() { return std::move(words_); }

private:
    SentenceWords words_;
};

SentenceWords list_of_ids(Int kind, std::size_t count_word, const std::vector<std::string>& ids)
{
    Writer writer(kind);
    writer.count(count_word, ids.size());
    writer.list_names(1, ids);
    return writer.finish();
}

SentenceWords encode(const PolymerSentence& sentence)
{
    return list_of_ids(1, 3, sentence.ids);
}
SentenceWords encode(const InitiatorSentence& sentence)
{
    return list_of_ids(8, 2, sentence.ids);
}
SentenceWords encode(const SentenceWords& sentence)
{
    return sentence;
}

SentenceWords encode(const SegmentSentence& sentence)
{
    Writer writer(2);
    writer.count(3, sentence.entries.size());
    writer.list_names(1, sentence.entries, &SegmentSentence::Entry::id);
    for (const auto& entry : sentence.entries) writer.word(entry.type);
    return writer.finish();
}

SentenceWords encode(const AttributeSentence& sentence)
{
    Writer writer(3);
    writer.count(3, sentence.entries.size());
    writer.list_names(1, sentence.entries, &AttributeSentence::Entry::id);
    writer.begin_list(2);
    Word descriptor = writer.next();
    for (const auto& entry : sentence.entries) {
        writer.word(static_cast<Word>(entry.names.size()));
        writer.word(unused);
    }
    for (const auto& entry : sentence.entries) {
        writer.word(unused);
        writer.set(descriptor + 1, writer.next());
        descriptor += 2;
        for (const auto& name : entry.names) writer.name(name);
    }
    return writer.finish();
}

SentenceWords encode(const OligomerSentence& sentence)
{
    Writer writer(4);
    writer.count(6, sentence.entries.size());
    writer.begin_list(1);
    for (const auto& entry : sentence.entries) {
        if (!entry.id.empty()) {
            writer.name(entry.id);
            continue;
        }
        writer.word(0);
        writer.word(0);
    }
    writer.list_names(2, sentence.entries, &OligomerSentence::Entry::segment);
    writer.real(static_cast<double>(unused));
    writer.header(3, 2);
    for (const auto& entry : sentence.entries) writer.real(entry.count);
    return writer.finish();
}

SentenceWords encode(const CatalystSentence& sentence)
{
    Writer writer(5);
    writer.count(3, sentence.entries.size());
    writer.list_names(1, sentence.entries, &CatalystSentence::Entry::id);
    for (const auto& entry : sentence.entries) writer.real(entry.value);
    return writer.finish();
}

SentenceWords encode(const SiteSentence& sentence)
{
    Writer writer(6, 13);
    writer.header(1, sentence.sites);
    for (std::size_t k = 0; k < 3; ++k) writer.header(11 + k, sentence.further[k]);
    writer.real(sentence.real);
    return writer.finish();
}

SentenceWords encode(const DistributionSentence& sentence)
{
    Writer writer(7);
    writer.count(6, sentence.entries.size());
    writer.list_names(1, sentence.entries, &DistributionSentence::Entry::polymer);
    writer.begin_list(2);
    for (const auto& entry : sentence.entries) writer.word(entry.type);
    for (std::size_t k = 0; k < 3; ++k) {
        writer.begin_list(3 + k);
        for (const auto& entry : sentence.entries) writer.word(entry.further[k]);
    }
    for (const auto& entry : sentence.entries) writer.real(entry.real);
    return writer.finish();
}

}  // namespace

SentenceWords words_of(const Sentence& sentence)
{
    return std::visit([](const auto& kind) { return encode(kind); }, sentence);
}

}  // namespace minihost
