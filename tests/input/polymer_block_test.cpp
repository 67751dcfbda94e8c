#include "input/checked_paragraph.h"

using namespace support;
using namespace minihost;

namespace {

using Texts = std::vector<std::string>;

const PolymerSentence polymer{{"P"}};
const SegmentSentence segments{{{"A", 2}}};
const AttributeSentence attributes{{{"P", {"ZMOM", "SFLOW"}}, {"Q", {"ZMOM", "SFLOW"}}}};

}  // namespace

TEST(PolymerParagraph, ListsSegmentsAndOligomersByIndexAndTheRestByOrderOfInput)
{
    const SegmentSentence unsorted{
        {{"E", 1}, {"B", 4}, {"A", 1}, {"D", 3}, {"X", 1}, {"C", 9}, {"B", 2}, {"W", 2}}};
    // A blank ID repeats the last one written, also when that was in error; of two counts the later holds.
    const std::vector<OligomerSentence::Entry> oligomers{
        {"R", "C", 5}, {"O", "A", 2}, {"", "B", 1}, {"", "A", 3}, {"X", "A", 7}, {"", "B", 8}, {"P", "X", 4}};
    CheckedParagraph world;
    // Of two sentences of a kind the last holds; no kind has the number 9.
    world.check({SegmentSentence{{{"I", 1}}}, PolymerSentence{{"P", "X"}}, attributes,
                 SentenceWords{9, {1, 2, 3}}, unsorted, PolymerSentence{{"Q", "X", "P", "Q"}},
                 OligomerSentence{oligomers}, CatalystSentence{{{"W", 1.5}, {"X", 2.5}, {"K", 3.5}}},
                 InitiatorSentence{{"X", "I"}}});
    EXPECT_EQ(world.message_numbers(), (Ints{4, 5, 6, 11, 7, 7, 8, 10, 10, 31, 31}));
    EXPECT_EQ(world.lists(), (Texts{"W A B C D E", "Q P", "P O R", "W - K", "E A", "D", "B", "W", "- I"}));
    EXPECT_EQ(world.integers(world.block(POLYPROPS_SEGMENT_LIST), 8, 6), (Ints{2, 1, 4, 9, 3, 1}));
    EXPECT_EQ(world.reals(world.block(POLYPROPS_OLIGOMER_LIST), 18),
              (Values{0, 0, 0, 0, 0, 0, 0, 3, 1, 0, 0, 0, 0, 0, 0, 5, 0, 0}));
    EXPECT_EQ(world.reals(world.block(POLYPROPS_CATALYST_LIST), 3), (Values{1.5, 0, 3.5}));
}

TEST(PolymerParagraph, CountsEntriesForItsParametersAndAttributeGroups)
{
    CheckedParagraph world;
    world.check({PolymerSentence{{"P", "X"}},
                 SegmentSentence{{{"A", 1}, {"B", 2}, {"C", 3}, {"D", 4}, {"E", 3}, {"X", 1}}}, attributes,
                 OligomerSentence{{{"O", "A", 2}, {"R", "A", 1}, {"R", "B", 1}}},
                 CatalystSentence{{{"K", 1}}}, SiteSentence{3, {21, 22, 23}, 0.25}});
    const BlockId root = world.integers(2, 200, 1)[0];
    ASSERT_EQ(world.integers(root, 13, 1), (Ints{world.host.polymer_block()}));
    EXPECT_EQ(world.integers(world.host.polymer_block(), 1, 1), (Ints{17}));
    const BlockId copy = world.block(5);
    const NamePair p = name_pair("P");
    EXPECT_EQ(world.integers(copy, world.integers(copy, 1, 1)[0], 2), (Ints{p[0], p[1]}));
    EXPECT_EQ(world.integers(world.block(16), 1, 5), (Ints{4, 0, 0, 0, 0}));
    const BlockId parameters = world.block(8);
    EXPECT_EQ(world.integers(parameters, 1, 13), (Ints{3, 2, 6, 2, 1, 1, 1, 2, 1, 0, 21, 22, 23}));
    EXPECT_EQ(world.reals(parameters, 1), (Values{0.25}));
    const BlockId layout = world.block(14);
    // Six words, one more than segments, for each of five groups; four, one more than site types, for six.
    EXPECT_EQ(world.integers(layout, 2, 22),
              (Ints{1, 7, 13, 19, 25, 31, 35, 39, 43, 47, 51, 6, 6, 6, 6, 6, 4, 4, 4, 4, 4, 4}));
    EXPECT_EQ(world.host.store().integer_length(layout), 23);
    EXPECT_EQ(world.host.store().real_length(layout), 55);

    world.check({polymer, segments, attributes});
    EXPECT_EQ(world.block(POLYPROPS_PARAMETERS), parameters);
    EXPECT_EQ(world.integers(parameters, 1, 13), (Ints{0, 1, 1, 2, 1, 1, 1, 2, 1, 0, 21, 22, 23}))
        << "what would be zero now stays as it was, but for the site types";
    EXPECT_EQ(world.reals(parameters, 1), (Values{0}));
    EXPECT_FALSE(world.host.store().exists(layout)) << "a replaced table is freed";
    EXPECT_EQ(world.integers(world.block(POLYPROPS_ATTRIBUTE_LAYOUT), 2, 22),
              (Ints{1, 3, 5, 7, 9, 11, 12, 13, 14, 15, 16, 2, 2, 2, 2, 2, 1, 1, 1, 1, 1, 1}));
}

TEST(PolymerParagraph, FilesDistributionRequestsByType)
{
    CheckedParagraph world;
    world.check({polymer, segments, attributes,
                 DistributionSentence{{{"P", 4, {1, 2, 3}, 0.5},
                                       {"X", 4, {9, 9, 9}, 9},
                                       {"Q", 2, {4, 5, 6}, 1.5},
                                       {"P", 7, {9, 9, 9}, 9},
                                       {"Q", 4, {7, 8, 9}, 2.5}}}});
    EXPECT_EQ(world.message_numbers(), (Ints{10}));
    const Ints directory = world.integers(world.block(POLYPROPS_DISTRIBUTION_DIRECTORY), 1, 5);
    EXPECT_EQ((Ints{directory[0], directory[1], directory[3]}), (Ints{4, 0, 0}));
    constexpr Int p = 7, q = 8;
    EXPECT_EQ(world.integers(directory[2], 1, 6), (Ints{1, q, 2, 4, 5, 6}));
    EXPECT_EQ(world.reals(directory[2], 1), (Values{1.5}));
    EXPECT_EQ(world.integers(directory[4], 1, 11), (Ints{2, p, q, 4, 4, 1, 7, 2, 8, 3, 9}));
    EXPECT_EQ(world.reals(directory[4], 2), (Values{0.5, 2.5}));

    world.check({polymer, segments, attributes});
    EXPECT_EQ(world.integers(world.block(POLYPROPS_DISTRIBUTION_DIRECTORY), 1, 5), (Ints{4, 0, 0, 0, 0}));
}

TEST(PolymerParagraph, ReadsNothingBeyondAFaultySentence)
{
    constexpr Int far = std::numeric_limits<Int>::max();
    const NamePair p = name_pair("P"), k = name_pair("K");
    CheckedParagraph world;
    world.check(
        {SentenceWords{1, {4, 0, far, p[0], p[1]}},  // more entries than words
         SentenceWords{2, {far, 0, 1}},              // a list that begins nowhere
         SentenceWords{8, {4, -1, 0, p[0], p[1]}},   // less than no entries
         SentenceWords{5, {4, 0, 1, k[0], k[1]}},    // no reals
         SentenceWords{6, {-3}},                     // shorter than its kind
         segments, attributes,
         SentenceWords{
             7, {7, 13, 13, 13, 13, 3, p[0], p[1], p[0], p[1], p[0], p[1], 1, 1, 1}}});  // lists share words
    EXPECT_EQ(world.message_numbers(), (Ints{31}));
    EXPECT_EQ(world.list(POLYPROPS_POLYMER_LIST), "P");
    EXPECT_EQ(world.list(POLYPROPS_INITIATOR_LIST), "");
    EXPECT_EQ(world.reals(world.block(POLYPROPS_CATALYST_LIST), 1), (Values{0}));
    EXPECT_EQ(world.integers(world.block(POLYPROPS_ATTRIBUTE_LAYOUT), 12, 1), (Ints{5 * 2 + 5 + 1}));
    const BlockId requests = world.integers(world.block(POLYPROPS_DISTRIBUTION_DIRECTORY), 2, 1)[0];
    EXPECT_EQ(world.integers(requests, 1, 16), (Ints{3, 7, 7, 7, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}));
}

TEST(PolymerParagraph, ReadsListsFromTheFirstToTheLastWordOfASentence)
{
    const NamePair p = name_pair("P");
    const struct {
        SentenceWords sentence;
        Ints messages;
        Ints requests;  // by type
    } cases[] = {
        {{1, {1, 0, 1}}, {4}, {}},
        {{1, {0, 0, 1, p[0], p[1]}}, {2}, {}},
        {{1, {-2, 0, 1, p[0], p[1]}}, {2}, {}},
        {{7, {7, 15, 13, 13, 13, 1, p[0], p[1], 0, 0, 0, 0, 0, 0, 2}}, {}, {0, 1, 0, 0}},
        {{7, {7, 16, 13, 13, 13, 1, p[0], p[1], 0, 0, 0, 0, 0, 0, 2}}, {}, {0, 0, 0, 0}},
    };
    for (const auto& [sentence, messages, requests] : cases) {
        CheckedParagraph world;
        world.host.messages().suppress(30);
        world.check(requests.empty() ? std::vector<Sentence>{sentence, segments}
                                     : std::vector<Sentence>{sentence, polymer, segments, attributes});
        EXPECT_EQ(world.message_numbers(), messages);
        if (requests.empty()) continue;
        Ints found;
        for (const BlockId id : world.integers(world.block(POLYPROPS_DISTRIBUTION_DIRECTORY), 2, 4))
            found.push_back(id == 0 ? 0 : world.host.store().integer(id, 1));
        EXPECT_EQ(found, requests);
    }
}

TEST(PolymerParagraph, CopiesNoWordsOfAnEmptySentence)
{
    CheckedParagraph world;
    const ServiceLog log;
    EXPECT_EQ(world.check({SentenceWords{1}, SentenceWords{5}, SentenceWords{6}}), 0);
    EXPECT_EQ(log.count("UT_GET_SENTENCE"), 3);
    EXPECT_EQ(log.count("ST_COPY_I") + log.count("ST_COPY_R"), 0);
}

TEST(PolymerParagraph, WithLessThanNoSentencesIsNoneWithoutSentences)
{
    CheckedParagraph world;
    world.host.paragraph().set({});
    world.host.store().set_integer(ST_TABLES[1], 3, -1);
    world.check_again();
    EXPECT_EQ(world.message_numbers(), Ints{});
    EXPECT_GT(world.host.polymer_block(), 0);
}

TEST(PolymerParagraph, AcceptsOneThatNamesNeitherChainsNorSegments)
{
    CheckedParagraph world;
    EXPECT_EQ(world.check({InitiatorSentence{{"I"}}}), 0);
    EXPECT_TRUE(world.host.messages().printed().empty());
    EXPECT_EQ(world.lists(), (Texts{"", "", "", "", "", "", "", "", "I"}));
    EXPECT_EQ(world.host.paragraph().times_ended(), 1);
    world.host.paragraph().handle()[0] = 0;
    world.check({InitiatorSentence{{"I"}}});
    EXPECT_EQ(world.host.paragraph().times_ended(), 1) << "only a paragraph that asks for it is ended";
}

TEST(PolymerParagraph, BuildsNothingForAnotherOperationOrAfterAnUnreadableSentence)
{
    CheckedParagraph world;
    EXPECT_EQ(world.check({polymer, segments}, 3), 0);
    EXPECT_EQ(world.check({polymer, segments}, 5), 5) << "the answer, nothing else";
    world.host.paragraph().fail_at(2);
    EXPECT_EQ(world.check({polymer, segments}), 2);
    EXPECT_TRUE(world.host.messages().printed().empty());
    EXPECT_LE(world.host.polymer_block(), 0);
    EXPECT_EQ(world.host.paragraph().times_ended(), 0);
}
