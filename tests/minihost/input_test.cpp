// The host's side of input processing: messages, sentences, keyword tables, forwarded sentences, scaling
// blocks.
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
    double real(Int k) const { return k <= real_length ? real_of(ST_WORDS[reals + k - 2]) : -1; }
    std::string name(Int k) const { return name_of(ST_WORDS + integers + k - 2); }

    Int kind;
    Int status;
    Int integers = 0;
    Int integer_length = 0;
    Int reals = 0;
    Int real_length = 0;
};

TEST(Sentences, EveryKindIsReadBackThroughTheWordsThatNameItsLists)
{
    auto world = World{}.conventional("A");
    PolymerParagraph& paragraph = world.host().paragraph();
    paragraph.set({PolymerSentence{{"PS", "LONGNAME"}}, SegmentSentence{{{"STY-R", 2}, {"END", 1}}},
                   AttributeSentence{{{"PS", {"ZMOM", "SFLOW"}}, {"CAT", {"CPSFLOW"}}}},
                   OligomerSentence{{{"DIMER", "STY-R", 2}, {"", "END", 1.5}}},
                   CatalystSentence{{{"CAT", 0.25}}}, SiteSentence{3, {11, 12, 13}, 0.5},
                   DistributionSentence{{{"PS", 1, {7, 8, 9}, 0.75}}}, InitiatorSentence{{"BPO"}},
                   SentenceWords{.kind = 9}});
    EXPECT_EQ(world.host().store().integer(ST_TABLES[2 - 1], 3), 9);

    const Delivered polymers(1);
    EXPECT_EQ(polymers.kind, 1);
    EXPECT_EQ(polymers.word(3), 2);
    EXPECT_EQ(polymers.name(polymers.word(1) + 2), "LONGNAME");
    const Delivered segments(2);
    EXPECT_EQ(segments.word(3), 2);
    EXPECT_EQ(segments.name(segments.word(1)), "STY-R");
    EXPECT_EQ(segments.word(segments.word(1) + 2 * 2 + 1), 1) << "type of the second";
    const Delivered attributes(3);
    EXPECT_EQ(attributes.word(3), 2);
    EXPECT_EQ(attributes.name(attributes.word(1) + 2), "CAT");
    EXPECT_EQ(attributes.word(attributes.word(2)), 2);
    EXPECT_EQ(attributes.name(attributes.word(attributes.word(2) + 1) + 2), "SFLOW");
    EXPECT_EQ(attributes.name(attributes.word(attributes.word(2) + 3)), "CPSFLOW");
    const Delivered oligomers(4);
    EXPECT_EQ(oligomers.word(6), 2);
    EXPECT_EQ(oligomers.name(oligomers.word(1)), "DIMER");
    EXPECT_EQ(oligomers.word(oligomers.word(1) + 2), 0);
    EXPECT_EQ(oligomers.name(oligomers.word(2) + 2), "END");
    EXPECT_EQ(oligomers.real(oligomers.word(3) + 1), 1.5);
    const Delivered catalysts(5);
    EXPECT_EQ(catalysts.word(3), 1);
    EXPECT_EQ(catalysts.name(catalysts.word(1)), "CAT");
    EXPECT_EQ(catalysts.real(1), 0.25);
    const Delivered sites(6);
    EXPECT_EQ(sites.word(1), 3);
    EXPECT_EQ(sites.word(13), 13);
    EXPECT_EQ(sites.real(1), 0.5);
    const Delivered distributions(7);
    EXPECT_EQ(distributions.word(6), 1);
    EXPECT_EQ(distributions.name(distributions.word(1)), "PS");
    EXPECT_EQ(distributions.word(distributions.word(2)), 1);
    for (Int k = 0; k < 3; ++k) EXPECT_EQ(distributions.word(distributions.word(3 + k)), 7 + k);
    EXPECT_EQ(distributions.real(1), 0.75);
    const Delivered initiators(8);
    EXPECT_EQ(initiators.word(2), 1);
    EXPECT_EQ(initiators.name(initiators.word(1)), "BPO");
    EXPECT_EQ(Delivered(9).kind, 9);
    EXPECT_THROW(Delivered(10), Error);
    EXPECT_THROW(paragraph.set({PolymerSentence{{"NINECHARS"}}}), Error);
}

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

TEST(CatalystScaling, BlocksNameEachOther)
{
    auto world =
        World{}.segments({"A"}).sites(2).polymer("P", {{"ZMOM", 1}, {"CPSFLOW", {1, 2}}}).conventional("W");
    Store& store = world.host().store();
    const AttributeBlocks& blocks = world.host().lay_attribute_blocks();
    const BlockId block = store.integer(ST_PROPTAB[7 - 1], world.index("P") + 1);
    EXPECT_EQ(store.integer(block, 1), 2);
    EXPECT_EQ(store.integer(block, 2), 3) << "rows: one of ZMOM, two of CPSFLOW";
    EXPECT_EQ(store.integer(block, 4 * 2 + 1), name_pair("CPSFLOW")[0]);
    EXPECT_EQ(store.integer(block, 4 * 2 + 3), 2);
    const BlockId reals = store.integer(block, 4);
    store.set_real(reals, store.integer(block, 4 * 2 + 4) + 2 * 3 + 2, 0.5);
    EXPECT_EQ(blocks.values(world.index("P"), "CPSFLOW", 3), (std::vector<double>{0, 0.5}));
    EXPECT_EQ(store.integer(store.integer(ST_PROPTAB[7 - 1], world.index("W") + 1), 1), 0);
    EXPECT_EQ(store.integer(ST_PROPTAB[4 - 1], 2 * world.index("W") - 1), name_pair("W")[0]);
    world.host().lay_attribute_blocks();
    EXPECT_THROW(store.reals(reals), Error) << "replaced blocks are freed";

    const BlockId sentence =
        lay_scaling_sentence(store, world.host().components(), {{"P", "ZMOM", 0.1, 0.2}});
    const BlockId data = store.integer(sentence, 4);
    EXPECT_EQ(store.integer(data, 6), 1);
    EXPECT_EQ(store.integer(store.integer(data, 11), 1), world.index("P"));
    EXPECT_EQ(store.integer(store.integer(data, 12), 1), name_pair("ZMOM")[0]);
    EXPECT_EQ(store.real(store.integer(data, 13), 1), 0.1);
    EXPECT_EQ(store.real(store.integer(data, 14), 1), 0.2);
}

}  // namespace
}  // namespace minihost
