#include "minihost/property_sentences.h"

#include <polyprops/host.h>

#include "minihost/attributes.h"
#include "minihost/component_table.h"
#include "minihost/error.h"
#include "minihost/keywords.h"
#include "minihost/store.h"

namespace minihost {
namespace {

void expect_length(const char* name, Int length, Int expected)
{
    if (length != expected)
        throw Error("the " + std::string(name) + " of a forwarded sentence has " + std::to_string(length) +
                    " words; expected " + std::to_string(expected));
}

}  // namespace

bool PropertySentences::process(BlockId head, BlockId descriptor)
{
    check_head(head, descriptor);
    check_descriptor(descriptor);
    Forwarded sentence = read_values(store_.integer(descriptor, 2), store_.integer(descriptor, 9));
    sentence.refusal = refusal_of(sentence);
    if (sentence.refusal.empty()) attributes_.carry(components_.index(sentence.component), sentence.names);
    forwarded_.push_back(sentence);
    return sentence.refusal.empty();
}

void PropertySentences::expect(BlockId block, const char* name, Int word, Word expected) const
{
    const Word seen = store_.integer(block, word);
    if (seen != expected)
        throw Error("word " + std::to_string(word) + " of the " + name + " of a forwarded sentence is " +
                    std::to_string(seen) + "; expected " + std::to_string(expected));
}

void PropertySentences::check_head(BlockId head, BlockId descriptor) const
{
    expect_length("head", store_.integer_length(head), 10);
    expect(head, "head", 1, KeywordTables::number("ATTR-COMPS"));
    expect(head, "head", 3, 1);
    for (const Int word : {4, 5}) expect(head, "head", word, descriptor);
    for (const Int word : {6, 8}) expect(head, "head", word, ST_GLOBAL[9 - 1]);
    for (const Int word : {7, 9}) expect(head, "head", word, ST_GLOBAL[10 - 1]);
    const BlockId keyword_value = store_.integer(head, 10);
    expect_length("keyword value", store_.integer_length(keyword_value), 1);
    expect(keyword_value, "keyword value", 1, keywords_.attribute_sentence_value());
}

void PropertySentences::check_descriptor(BlockId descriptor) const
{
    expect_length("descriptor", store_.integer_length(descriptor), 12);
    const Int fixed[][2] = {{1, 0}, {4, 1}, {7, 1}, {8, 4}, {10, 6}, {11, 1}, {12, 3}};
    for (const auto& [word, value] : fixed) expect(descriptor, "descriptor", word, value);
    expect_length("real part", store_.real_length(store_.integer(descriptor, 3)), 1);
}

PropertySentences::Forwarded PropertySentences::read_values(BlockId values, Int names) const
{
    expect_length("values", store_.integer_length(values), 2 * names + 6);
    expect(values, "values", 4, text_word("CV"));
    const auto name_at = [&](Int word) {
        const NamePair pair = {store_.integer(values, word), store_.integer(values, word + 1)};
        return name_of(pair.data());
    };
    Forwarded sentence{.component = name_at(5), .names = {}, .refusal = ""};
    for (Int i = 0; i < names; ++i) sentence.names.push_back(name_at(7 + 2 * i));
    return sentence;
}

std::string PropertySentences::refusal_of(const Forwarded& sentence) const
{
    if (components_.find(sentence.component) == 0) return "unknown component \"" + sentence.component + "\"";
    for (const std::string& name : sentence.names)
        if (!find_attribute_kind(name)) return "unknown attribute \"" + name + "\"";
    return "";
}

}  // namespace minihost
