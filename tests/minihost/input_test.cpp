// The host's side of input processing: messages, sentences, keyword tables, forwarded sentences.
#include <gtest/gtest.h>
#include <polyprops/host.h>

#include <algorithm>

#include "minihost/error.h"
#include "minihost/host.h"
#include "support/world.h"

namespace minihost {
namespace {

using support::World;

constexpr Int zero = 0;

Int check_level(Int severity, Int number)
{
    const Int two = 2;
    const Int global8 = ST_GLOBAL[8 - 1];
    return ST_ERROR_CHECK(name_pair("POLSEM").data(), &severity, &number, &ST_GLOBAL[6 - 1], &global8, &zero,
                          &zero, &two);
}

void print(Int lines)
{
    ST_PRINT_ERROR(&lines);
}

void compose(const std::string& first, const std::string& second)
{
    std::fill_n(ST_ERROUT, 160, ' ');
    std::copy(first.begin(), first.end(), ST_ERROUT);
    std::copy(second.begin(), second.end(), ST_ERROUT + 80);
}

TEST(Messages, ArePrintedUpToTheLevelUnlessAnsweredOtherwise)
{
    auto world = World{}.conventional("A");
    MessageLog& messages = world.host().messages();
    EXPECT_EQ(check_level(2, 4), 1);
    compose("      ONE", "      TWO");
    print(2);
    messages.set_level(1);
    EXPECT_EQ(check_level(2, 4), 0);
    print(2);
    EXPECT_EQ(check_level(1, 28), 1);
    messages.suppress(28);
    EXPECT_EQ(check_level(1, 28), 0);
    ASSERT_EQ(messages.printed().size(), 1u);
    EXPECT_EQ(messages.printed()[0].routine, "POLSEM");
    EXPECT_EQ(messages.printed()[0].lines, (std::vector<std::string>{"      ONE", "      TWO"}));
    EXPECT_EQ(messages.prints_of_suppressed(), 1);
    messages.answer(4, 1);
    check_level(2, 4);
    print(1);
    EXPECT_EQ(messages.printed()[1].lines[0][0], '#')
        << "an earlier text must not stand in for a missing one";
    EXPECT_THROW(print(1), Error) << "no check came before";
}

/// A delivered sentence, read as the paragraph check reads it.
struct Delivered {
    explicit Delivered(Int number, Int status_before = 0) : kind(number), status(status_before)
    {
        Int extra = 0;
        UT_GET_SENTENCE(&number, &kind, Host::active().paragraph().handle(), &zero, &zero, &zero, &zero,
                        &extra, &integers, &integer_length, &extra, &reals, &real_length, &status);
    }
    Int word(Int k) const { return k <= integer_length ? ST_WORDS[integers + k - 2] : -1; }
    std::string name(Int k) const { return name_of(ST_WORDS + integers + k - 2); }

    Int kind;
    Int status;
    Int integers = 0;
    Int integer_length = 0;
    Int reals = 0;
    Int real_length = 0;
};

TEST(Sentences, DataStayThroughAllocationsAndGoWithTheNextSentence)
{
    auto world = World{}.conventional("A");
    auto& host = world.host();
    host.paragraph().set({PolymerSentence{{"P"}}, PolymerSentence{{"Q"}}});
    const Delivered first(1);
    host.store().allocate_integers(100);
    EXPECT_EQ(first.name(first.word(1)), "P");
    const Delivered second(2);
    EXPECT_NE(second.integers, first.integers);
#ifndef __SANITIZE_ADDRESS__
    EXPECT_EQ(first.word(1), Store::poison);
#endif
    host.paragraph().fail_at(1);
    EXPECT_EQ(Delivered(1).status, 2);
    UT_END_SENTENCES(host.paragraph().handle());
    EXPECT_EQ(host.paragraph().times_ended(), 1);
    EXPECT_THROW(Delivered(3), Error);
    EXPECT_THROW(host.paragraph().set({PolymerSentence{{"NINECHARS"}}}), Error);
}

TEST(Components, AreFoundByTheirWholePairOfWords)
{
    auto world = World{}.conventional("STYRENE").conventional("STY");
    world.host();
    const auto find = [](NamePair pair) {
        Int status = 0;
        Int index = -1;
        PS_FIND_COMPONENT(&pair[0], &pair[1], UT_COMPONENT_IDS, &status, &index);
        return std::pair{status, index};
    };
    EXPECT_EQ(find(name_pair("STY")), (std::pair<Int, Int>{2, world.index("STY")}));
    EXPECT_EQ(find(name_pair("STYR")).first, 1);
    EXPECT_EQ(find({0, 0}).first, 1);
    EXPECT_EQ(find({name_pair("STY")[0], 0}).first, 1) << "the second half must be blank";
}

/// The five blocks of a forwarded sentence, built as the paragraph check builds them.
struct BuiltSentence {
    explicit BuiltSentence(Host& host, const std::string& id, const std::vector<std::string>& names)
        : store(host.store())
    {
        const auto n = static_cast<Int>(names.size());
        head = store.allocate_integers(10);
        const BlockId keyword = store.allocate_integers(1);
        descriptor = store.allocate_integers(12);
        values = store.allocate_integers(2 * n + 6);
        const BlockId real = store.allocate_reals(1);
        const Int heads[] = {
            3, 0, 1, descriptor, descriptor, ST_GLOBAL[8], ST_GLOBAL[9], ST_GLOBAL[8], ST_GLOBAL[9], keyword};
        const Int descriptors[] = {0, values, real, 1, 0, 0, 1, 4, n, 6, 1, 3};
        for (Int k = 1; k <= 10; ++k) store.set_integer(head, k, heads[k - 1]);
        for (Int k = 1; k <= 12; ++k) store.set_integer(descriptor, k, descriptors[k - 1]);
        store.set_integer(keyword, 1, keyword_value());
        store.set_integer(values, 4, text_word("CV"));
        set_name(5, id);
        for (Int i = 0; i < n; ++i) set_name(7 + 2 * i, names[static_cast<std::size_t>(i)]);
    }
    void set_name(Int word, const std::string& name)
    {
        for (Int half = 0; half < 2; ++half)
            store.set_integer(values, word + half, name_pair(name)[static_cast<std::size_t>(half)]);
    }
    static Int keyword_value()
    {
        const Int one = 1, seven = 7;
        const Word text[] = {text_word("ATTR"), text_word("-COM"), text_word("PS")};
        const Int number = ST_FIND_KEYWORD(text, &zero);
        const Position table = ST_FIND_I(&ST_TABLES[1 - 1]);
        Int position = 0, out = 0, value = 0;
        ST_READ_TABLE(&ST_WORDS[ST_KEYWORD_TEXT(&table, &number, &seven) - 1], &ST_TABLES[2 - 1], &position,
                      &out, &out);
        ST_READ_TABLE(&ST_WORDS[ST_KEYWORD_TEXT(&position, &one, &seven) - 1], &value, &out, &out, &out);
        return value;
    }
    Int process() const
    {
        const Int code = 3030, two = 2;
        Int result = -1;
        PS_PROCESS_SENTENCE(&code, &two, Host::active().semantics_context(), &head, &descriptor, &result);
        return result;
    }

    Store& store;
    BlockId head = 0;
    BlockId descriptor = 0;
    BlockId values = 0;
};

TEST(PropertySentences, GiveComponentsTheirAttributes)
{
    Host host({{.id = "P"}, {.id = "Q"}}, {.store_mode = Store::Mode::checked});
    EXPECT_EQ(BuiltSentence(host, "P", {"ZMOM", "SFLOW"}).process(), 0);
    EXPECT_NE(host.attributes().find(1, "SFLOW"), nullptr);
    EXPECT_EQ(host.attributes().find(2, "SFLOW"), nullptr);
    EXPECT_EQ(BuiltSentence(host, "X", {"ZMOM"}).process(), 1);
    EXPECT_EQ(BuiltSentence(host, "Q", {"ZMON"}).process(), 1);
    const auto& forwarded = host.property_sentences().forwarded();
    ASSERT_EQ(forwarded.size(), 3u);
    EXPECT_EQ(forwarded[1].refusal, "unknown component \"X\"");
    EXPECT_EQ(forwarded[2].refusal, "unknown attribute \"ZMON\"");
}

TEST(PropertySentences, WithAWrongWordAreRefused)
{
    Host host({{.id = "P"}}, {.store_mode = Store::Mode::checked});
    const struct {
        BlockId BuiltSentence::*block;
        std::vector<Int> words;
    } checked[] = {{&BuiltSentence::head, {1, 3, 4, 5, 6, 7, 8, 9, 10}},
                   {&BuiltSentence::descriptor, {1, 2, 3, 4, 7, 8, 9, 10, 11, 12}},
                   {&BuiltSentence::values, {4}}};
    for (const auto& [block, words] : checked)
        for (const Int word : words) {
            const BuiltSentence sentence(host, "P", {"ZMOM"});
            host.store().set_integer(sentence.*block, word, -99);
            EXPECT_THROW(sentence.process(), Error) << "word " << word << " of block " << sentence.*block;
        }
    EXPECT_TRUE(host.property_sentences().forwarded().empty());
}

}  // namespace
}  // namespace minihost
