#include "input/checked_paragraph.h"

using namespace support;
using namespace minihost;

TEST(AttributeEntries, AreForwardedWhenTheyHoldWhatTheirRolesNeed)
{
    const struct {
        const char* name;
        std::vector<AttributeSentence::Entry> entries;
        Ints suppressed;
        Ints messages;
        const char* forwarded;
        Int segment_type = 2;
    } cases[] = {
        {"what the roles need, in any order",
         {{"Q", {"DPN", "SFLOW", "ZMOM"}},
          {"K", {"CVSFLOW", "CPSFLOW"}},
          {"W", {}},
          {"P", {"ZMOM", "SFLOW", "CVSFLOW", "CPSFLOW"}},
          {"Q", {"ZMOM", "SFLOW"}}},
         {},
         {},
         "Q:DPN,SFLOW,ZMOM K:CVSFLOW,CPSFLOW W: P:ZMOM,SFLOW,CVSFLOW,CPSFLOW Q:ZMOM,SFLOW"},
        {"less than that: in both roles polymer first, then catalyst",
         {{"X", {"ZMOM"}},
          {"P", {"CPSFLOW", "CVSFLOW"}},
          {"P", {"ZMOM", "SFLOW", "CVSFLOW"}},
          {"W", {"DPN", "EFRAC"}}},
         {},
         {22, 24, 26, 28},
         ""},
        {"suppressed: the next check follows", {{"Q", {"DPN"}}}, {24}, {25}, ""},
        {"suppressed: forwarded as it is", {{"Q", {"DPN"}}}, {24, 25}, {}, "Q:DPN"},
        {"suppressed: scanning goes on, and what is unknown has no role",
         {{"Q", {"EFRAC", "ZMOM", "SFLOW"}}, {"X", {"DPN"}}},
         {22, 28},
         {},
         "Q:EFRAC,ZMOM,SFLOW X:DPN"},
        {"EFRAC with an end segment", {{"W", {"DPN", "EFRAC"}}}, {}, {}, "W:DPN,EFRAC", 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        CheckedParagraph world;
        for (const Int number : c.suppressed) world.host.messages().suppress(number);
        // Of the unknown catalyst, and of polymers and catalysts that no entry names.
        for (const Int number : {10, 30, 31}) world.host.messages().suppress(number);
        // P is polymer and catalyst at once, Q a polymer, K a catalyst.
        const std::vector<Sentence> sentences{
            PolymerSentence{{"P", "Q"}}, SegmentSentence{{{"A", c.segment_type}}},
            CatalystSentence{{{"K", 1}, {"X", 1}, {"P", 1}}}, AttributeSentence{c.entries}};
        world.check(sentences);
        EXPECT_EQ(world.message_numbers(), c.messages);
        EXPECT_EQ(world.forwarded(), c.forwarded);
        EXPECT_EQ(world.integers(ST_TABLES[1], 3, 1), (Ints{4})) << "the current paragraph is current again";

        const BlockId copy = world.block(POLYPROPS_ATTRIBUTE_SENTENCE);
        world.check(sentences);
        EXPECT_NE(world.block(POLYPROPS_ATTRIBUTE_SENTENCE), copy)
            << "the block names the copy of the latest sentence";
    }
}
