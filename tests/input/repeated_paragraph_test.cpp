#include <iterator>
#include <sstream>

#include "input/checked_paragraph.h"

using namespace support;
using namespace minihost;

namespace {

std::vector<std::string> ids(const std::string& text)
{
    std::istringstream words(text);
    return {std::istream_iterator<std::string>(words), {}};
}

}  // namespace

// The checked store fences every block and poisons freed ones: a list that is written beyond its end, or read
// after it was replaced, ends the test.
TEST(RepeatedParagraph, GrowsAndShrinksItsBlocks)
{
    struct Step {
        const char* polymers;
        const char* segments;
        const char* catalysts;
        std::vector<OligomerSentence::Entry> oligomers;
        const char* listed_oligomers;
        Values counts;
        bool oligomers_stay;  // in their block, which has room
        bool catalysts_stay;
    };
    const Step steps[] = {
        {"P", "A B", "K", {{"O", "B", 2}}, "O", {0, 2}, false, false},
        {"Q P", "A B C", "K K K", {{"O", "C", 3}, {"R", "A", 4}}, "O R", {0, 0, 3, 4, 0, 0}, false, false},
        {"P", "C", "K K", {{"R", "C", 6}}, "R", {6}, true, true},
        {"P Q", "A B C", "K K K", {{"O", "A", 1}, {"", "C", 2}}, "O", {1, 0, 2}, false, false},
        // Without an oligomer sentence the table holds while it fits the number of segments.
        {"P", "A B D", "", {}, "O", {1, 0, 2}, true, true},
        {"P", "A B C D", "", {}, "", {}, true, true},
        {"P", "A B", "", {{"R", "B", 3}}, "R", {0, 3}, false, true},
        // One column of more rows needs a larger block.
        {"P", "W A B C D E I", "", {{"R", "I", 4}}, "R", {0, 0, 0, 0, 0, 0, 4}, false, true},
    };
    CheckedParagraph world;
    BlockId oligomers = 0, catalysts = 0;
    for (const Step& step : steps) {
        SCOPED_TRACE(step.segments);
        SegmentSentence segments;
        for (const auto& id : ids(step.segments)) segments.entries.push_back({id, 1});
        CatalystSentence catalyst;
        for (const auto& id : ids(step.catalysts)) catalyst.entries.push_back({id, 1});
        world.check({PolymerSentence{ids(step.polymers)}, segments, OligomerSentence{step.oligomers},
                     catalyst, InitiatorSentence{ids(step.catalysts)}});
        EXPECT_EQ(world.list(POLYPROPS_POLYMER_LIST), step.polymers);
        EXPECT_EQ(world.list(POLYPROPS_SEGMENT_LIST), step.segments);
        EXPECT_EQ(world.list(POLYPROPS_END_SEGMENT_LIST), step.segments);
        EXPECT_EQ(world.list(POLYPROPS_CATALYST_LIST), step.catalysts);
        EXPECT_EQ(world.list(POLYPROPS_INITIATOR_LIST), step.catalysts);
        EXPECT_EQ(world.list(POLYPROPS_OLIGOMER_LIST), step.listed_oligomers);
        EXPECT_EQ(world.reals(world.block(POLYPROPS_OLIGOMER_LIST), std::ssize(step.counts)), step.counts);

        EXPECT_EQ(world.block(POLYPROPS_OLIGOMER_LIST) == oligomers, step.oligomers_stay);
        EXPECT_EQ(world.block(POLYPROPS_CATALYST_LIST) == catalysts, step.catalysts_stay);
        EXPECT_TRUE(step.oligomers_stay || oligomers == 0 || !world.host.store().exists(oligomers));
        oligomers = world.block(POLYPROPS_OLIGOMER_LIST);
        catalysts = world.block(POLYPROPS_CATALYST_LIST);
    }
}
