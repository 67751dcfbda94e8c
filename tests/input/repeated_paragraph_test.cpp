#include <gtest/gtest.h>

#include "input/checked_paragraph.h"

using namespace support;
using namespace minihost;

namespace {

using Reals = std::vector<double>;

const AttributeSentence attributes{
    {{"P", {"ZMOM", "SFLOW"}}, {"Q", {"ZMOM", "SFLOW"}}, {"K", {"CPSFLOW", "CVSFLOW"}}}};

std::vector<Sentence> paragraph(const std::vector<std::string>& polymers,
                                const std::vector<std::string>& segments,
                                const std::vector<OligomerSentence::Entry>& oligomers, std::size_t catalysts)
{
    SegmentSentence segment_list;
    for (const auto& id : segments) segment_list.entries.push_back({id, 1});
    CatalystSentence catalyst_list;
    for (std::size_t k = 1; k <= catalysts; ++k)
        catalyst_list.entries.push_back({"K", static_cast<double>(k)});
    InitiatorSentence initiators{std::vector<std::string>(catalysts, "I")};
    return {PolymerSentence{polymers},
            segment_list,
            OligomerSentence{oligomers},
            catalyst_list,
            initiators,
            attributes};
}

}  // namespace

// The checked store fences every block and poisons freed ones: a list that is written beyond its end, or read
// after it was replaced, ends the test.
TEST(RepeatedParagraph, GrowsAndShrinksItsBlocks)
{
    CheckedParagraph world;
    const auto expect = [&](const char* polymers, const char* segments, const char* oligomers,
                            const Reals& counts, const char* catalysts, const char* initiators) {
        EXPECT_TRUE(world.host.messages().printed().empty());
        EXPECT_EQ(world.list(word::polymers), polymers);
        EXPECT_EQ(world.list(word::segments), segments);
        EXPECT_EQ(world.list(word::end_segments), segments);
        EXPECT_EQ(world.list(word::oligomers), oligomers);
        EXPECT_EQ(world.reals(world.block(word::oligomers), static_cast<Int>(counts.size())), counts);
        EXPECT_EQ(world.list(word::catalysts), catalysts);
        EXPECT_EQ(world.list(word::initiators), initiators);
    };
    world.check(paragraph({"P"}, {"A", "B"}, {{"O", "B", 2}}, 1));
    expect("P", "A B", "O", {0, 2}, "K", "I");
    const BlockId oligomers = world.block(word::oligomers);

    world.check(
        paragraph({"Q", "P"}, {"A", "B", "C", "D", "E"}, {{"O", "E", 3}, {"R", "A", 4}, {"", "B", 5}}, 4));
    expect("Q P", "A B C D E", "O R", {0, 0, 0, 0, 3, 4, 5, 0, 0, 0}, "K K K K", "I I I I");
    EXPECT_FALSE(world.host.store().exists(oligomers)) << "too small a block is freed";
    const BlockId larger = world.block(word::oligomers);
    const BlockId catalysts = world.block(word::catalysts);

    world.check(paragraph({"P"}, {"C"}, {{"R", "C", 6}}, 2));
    expect("P", "C", "R", {6}, "K K", "I I");
    EXPECT_EQ(world.block(word::oligomers), larger) << "a block with room is used again";
    EXPECT_EQ(world.block(word::catalysts), catalysts);

    world.check(paragraph({"P", "Q"}, {"A", "B", "C"}, {{"O", "A", 1}, {"", "C", 2}}, 3));
    expect("P Q", "A B C", "O", {1, 0, 2}, "K K K", "I I I");
}

TEST(RepeatedParagraph, KeepsOligomersOnlyWhileTheirTableFitsTheSegments)
{
    CheckedParagraph world;
    world.check(paragraph({"P"}, {"B", "C"}, {{"O", "B", 2}}, 0));
    world.check(paragraph({"P"}, {"B", "C"}, {}, 0));
    EXPECT_EQ(world.list(word::oligomers), "O");
    world.check(paragraph({"P"}, {"A", "B", "C"}, {}, 0));
    EXPECT_EQ(world.list(word::oligomers), "");
    world.check(paragraph({"P"}, {"A", "B"}, {{"R", "B", 3}}, 0));
    EXPECT_EQ(world.list(word::oligomers), "R");
    EXPECT_EQ(world.reals(world.block(word::oligomers), 2), (Reals{0, 3}));
    const BlockId oligomers = world.block(word::oligomers);
    world.check(paragraph({"P"}, {"A", "B", "C", "D", "E", "W", "I"}, {{"R", "I", 4}}, 0));
    EXPECT_NE(world.block(word::oligomers), oligomers) << "one column of more rows needs a larger block";
    EXPECT_EQ(world.reals(world.block(word::oligomers), 7), (Reals{0, 0, 0, 0, 0, 0, 4}));
}
