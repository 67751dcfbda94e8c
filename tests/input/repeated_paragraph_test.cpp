#include <gtest/gtest.h>

#include "input/checked_paragraph.h"

using namespace support;
using namespace minihost;

namespace {

using Reals = std::vector<double>;

const AttributeSentence attributes{
    {{"P", {"ZMOM", "SFLOW"}}, {"Q", {"ZMOM", "SFLOW"}}, {"K", {"CPSFLOW", "CVSFLOW"}}}};

// Every segment is an end segment.
std::vector<Sentence> paragraph(const std::vector<std::string>& polymers,
                                const std::vector<std::string>& segments,
                                const std::vector<OligomerSentence::Entry>& oligomers, std::size_t catalysts)
{
    SegmentSentence segment_list;
    for (const auto& id : segments) segment_list.entries.push_back({id, 1});
    return {PolymerSentence{polymers},
            segment_list,
            OligomerSentence{oligomers},
            CatalystSentence{std::vector<CatalystSentence::Entry>(catalysts, {"K", 1})},
            InitiatorSentence{std::vector<std::string>(catalysts, "I")},
            attributes};
}

std::string lists(CheckedParagraph& world)
{
    std::string text;
    for (const Int list : {word::polymers, word::segments, word::end_segments, word::oligomers,
                           word::catalysts, word::initiators})
        text += world.list(list) + "/";
    return text;
}

Reals counts(CheckedParagraph& world, Int elements)
{
    return world.reals(world.block(word::oligomers), elements);
}

}  // namespace

// The checked store fences every block and poisons freed ones: a list that is written beyond its end, or read
// after it was replaced, ends the test.
TEST(RepeatedParagraph, GrowsAndShrinksItsBlocks)
{
    CheckedParagraph world;
    world.check(paragraph({"P"}, {"A", "B"}, {{"O", "B", 2}}, 1));
    EXPECT_EQ(lists(world), "P/A B/A B/O/K/I/");
    EXPECT_EQ(counts(world, 2), (Reals{0, 2}));
    const BlockId small = world.block(word::oligomers);

    world.check(
        paragraph({"Q", "P"}, {"A", "B", "C", "D", "E"}, {{"O", "E", 3}, {"R", "A", 4}, {"", "B", 5}}, 4));
    EXPECT_EQ(lists(world), "Q P/A B C D E/A B C D E/O R/K K K K/I I I I/");
    EXPECT_EQ(counts(world, 10), (Reals{0, 0, 0, 0, 3, 4, 5, 0, 0, 0}));
    EXPECT_FALSE(world.host.store().exists(small)) << "too small a block is freed";
    const BlockId oligomers = world.block(word::oligomers), catalysts = world.block(word::catalysts);

    world.check(paragraph({"P"}, {"C"}, {{"R", "C", 6}}, 2));
    EXPECT_EQ(lists(world), "P/C/C/R/K K/I I/");
    EXPECT_EQ(counts(world, 1), (Reals{6}));
    EXPECT_EQ(world.block(word::oligomers), oligomers) << "a block with room is used again";
    EXPECT_EQ(world.block(word::catalysts), catalysts);

    world.check(paragraph({"P", "Q"}, {"A", "B", "C"}, {{"O", "A", 1}, {"", "C", 2}}, 3));
    EXPECT_EQ(lists(world), "P Q/A B C/A B C/O/K K K/I I I/");
    EXPECT_EQ(counts(world, 3), (Reals{1, 0, 2}));
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
    EXPECT_EQ(counts(world, 2), (Reals{0, 3}));
    const BlockId oligomers = world.block(word::oligomers);
    world.check(paragraph({"P"}, {"A", "B", "C", "D", "E", "W", "I"}, {{"R", "I", 4}}, 0));
    EXPECT_NE(world.block(word::oligomers), oligomers) << "one column of more rows needs a larger block";
    EXPECT_EQ(counts(world, 7), (Reals{0, 0, 0, 0, 0, 0, 4}));
}
