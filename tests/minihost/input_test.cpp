// The host's side of input processing: messages, sentences, forwarded sentences.
#include "support/routine_calls.h"

namespace minihost {
namespace {

using support::World;

constexpr Int zero = 0;

Int check_level(Int severity, Int number)
{
    const Int two = 2, global8 = ST_GLOBAL[8 - 1];
    return ST_ERROR_CHECK(name_pair("POLSEM").data(), &severity, &number, &ST_GLOBAL[6 - 1], &global8, &zero,
                          &zero, &two);
}

TEST(Messages, HoldWhatWasComposedForThemAlone)
{
    auto world = World{}.conventional("A");
    const auto& printed = world.host().messages().printed();
    const Int one = 1, two = 2;
    EXPECT_EQ(check_level(2, 4), 1);
    const std::string gap(71, ' ');
    std::ranges::copy("      ONE" + gap + "      TWO" + gap, ST_ERROUT);
    ST_PRINT_ERROR(&two);
    EXPECT_EQ(check_level(2, 4), 1);
    ST_PRINT_ERROR(&one);
    EXPECT_EQ(printed.at(0).routine, "POLSEM");
    EXPECT_EQ(printed.at(0).lines, (std::vector<std::string>{"      ONE", "      TWO"}));
    EXPECT_EQ(printed.at(1).lines[0][0], '#') << "an earlier text must not replace a missing one";
    EXPECT_THROW(ST_PRINT_ERROR(&one), Error) << "no check came before";
}

TEST(Sentences, DataStayThroughAllocationsAndGoWithTheNextSentence)
{
    auto world = World{}.conventional("A");
    auto& paragraph = world.host().paragraph();
    paragraph.set({PolymerSentence{{"P"}}, PolymerSentence{{"Q"}}});
    const Position first = paragraph.deliver(1).integers;
    world.host().store().allocate_integers(100);
    EXPECT_EQ(name_of(ST_WORDS + first - 1 + ST_WORDS[first - 1] - 1), "P");
    EXPECT_NE(paragraph.deliver(2).integers, first);
#ifndef __SANITIZE_ADDRESS__
    EXPECT_EQ(ST_WORDS[first - 1], Store::poison);
#endif
    EXPECT_THROW(paragraph.deliver(3), Error);
    EXPECT_THROW(paragraph.set({PolymerSentence{{"NINECHARS"}}}), Error);
}

// The five blocks of a forwarded sentence, built as the paragraph check builds them.
struct BuiltSentence {
    BuiltSentence(Host& host, const char* id, const char* attribute) : store(host.store())
    {
        const BlockId keyword = store.allocate_integers(1);
        const BlockId real = store.allocate_reals(1);
        set(keyword, 1, {host.keywords().attribute_sentence_value()});
        const Int integers = ST_GLOBAL[8], reals = ST_GLOBAL[9];
        set(head, 1, {3, 0, 1, descriptor, descriptor, integers, reals, integers, reals, keyword});
        set(descriptor, 1, {0, values, real, 1, 0, 0, 1, 4, 1, 6, 1, 3});
        const NamePair component = name_pair(id), name = name_pair(attribute);
        set(values, 4, {text_word("CV"), component[0], component[1], name[0], name[1]});
    }
    void set(BlockId block, Int first, const std::vector<Word>& words) const
    {
        for (const Word word : words) store.set_integer(block, first++, word);
    }
    Int process() const
    {
        const Int code = 3030, two = 2;
        Int result = -1;
        PS_PROCESS_SENTENCE(&code, &two, Host::active().semantics_context(), &head, &descriptor, &result);
        return result;
    }

    Store& store;
    BlockId head = store.allocate_integers(10);
    BlockId descriptor = store.allocate_integers(12);
    BlockId values = store.allocate_integers(8);
};

TEST(PropertySentences, WithUnknownNamesOrAWrongWordAreRefused)
{
    Host host({{.id = "P"}}, {.store_mode = Store::Mode::checked});
    EXPECT_EQ(BuiltSentence(host, "P", "ZMOM").process(), 0);
    EXPECT_NE(host.attributes().find(1, "ZMOM"), nullptr);
    EXPECT_EQ(BuiltSentence(host, "X", "ZMOM").process(), 1);
    EXPECT_EQ(BuiltSentence(host, "P", "ZMON").process(), 1);
    const auto& forwarded = host.property_sentences().forwarded();
    EXPECT_EQ(forwarded.at(1).refusal, "unknown component \"X\"");
    EXPECT_EQ(forwarded.at(2).refusal, "unknown attribute \"ZMON\"");
    const std::pair<BlockId BuiltSentence::*, std::vector<Int>> checked[] = {
        {&BuiltSentence::head, {1, 3, 4, 5, 6, 7, 8, 9, 10}},
        {&BuiltSentence::descriptor, {1, 2, 3, 4, 7, 8, 9, 10, 11, 12}},
        {&BuiltSentence::values, {4}}};
    for (const auto& [block, words] : checked)
        for (const Int word : words) {
            const BuiltSentence sentence(host, "P", "ZMOM");
            host.store().set_integer(sentence.*block, word, -99);
            EXPECT_THROW(sentence.process(), Error) << "word " << word << " of block " << sentence.*block;
        }
    EXPECT_EQ(forwarded.size(), 3u);
}

}  // namespace
}  // namespace minihost
