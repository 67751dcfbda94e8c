#include <gtest/gtest.h>
#include <polyprops/host.h>

#include "input/checked_paragraph.h"

using namespace support;
using namespace minihost;

namespace {

using Entries = std::vector<AttributeSentence::Entry>;
using Ints = std::vector<Int>;

// P is polymer and catalyst at once, Q a polymer, K a catalyst.
Int check(CheckedParagraph& world, const Entries& entries, Int segment_type = 2)
{
    return world.check({PolymerSentence{{"P", "Q"}}, SegmentSentence{{{"A", segment_type}}},
                        CatalystSentence{{{"K", 1}, {"X", 1}, {"P", 1}}}, AttributeSentence{entries}});
}

}  // namespace

// Message 10 of the unknown catalyst and the coverage of those that no entry names are part of every case.
TEST(AttributeEntries, AreForwardedWhenTheyHoldWhatTheirRolesNeed)
{
    struct Case {
        const char* name;
        AttributeSentence::Entry entry;
        Int segment_type;
        Ints suppressed;
        Int message;
        const char* forwarded;
    };
    const Case cases[] = {
        {"polymer", {"Q", {"DPN", "SFLOW", "ZMOM"}}, 2, {}, 0, "Q:DPN,SFLOW,ZMOM"},
        {"catalyst", {"K", {"CVSFLOW", "CPSFLOW"}}, 2, {}, 0, "K:CVSFLOW,CPSFLOW"},
        {"neither", {"W", {}}, 2, {}, 0, "W:"},
        {"both roles: polymer first", {"P", {"CPSFLOW", "CVSFLOW"}}, 2, {}, 24, ""},
        {"both roles: then catalyst", {"P", {"ZMOM", "SFLOW", "CVSFLOW"}}, 2, {}, 26, ""},
        {"both roles met",
         {"P", {"ZMOM", "SFLOW", "CVSFLOW", "CPSFLOW"}},
         2,
         {},
         0,
         "P:ZMOM,SFLOW,CVSFLOW,CPSFLOW"},
        {"suppressed: the next check follows", {"Q", {"DPN"}}, 2, {24}, 25, ""},
        {"suppressed: forwarded as it is", {"Q", {"DPN"}}, 2, {24, 25}, 0, "Q:DPN"},
        {"EFRAC without end segments", {"W", {"DPN", "EFRAC"}}, 2, {}, 28, ""},
        {"EFRAC with one", {"W", {"DPN", "EFRAC"}}, 1, {}, 0, "W:DPN,EFRAC"},
        {"EFRAC suppressed: scanning goes on",
         {"Q", {"EFRAC", "ZMOM", "SFLOW"}},
         2,
         {28},
         0,
         "Q:EFRAC,ZMOM,SFLOW"},
        {"unknown", {"X", {"ZMOM"}}, 2, {}, 22, ""},
        {"unknown and suppressed: no role", {"X", {"DPN"}}, 2, {22}, 0, "X:DPN"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        CheckedParagraph world;
        for (const Int number : c.suppressed) world.host.messages().suppress(number);
        for (const Int number : {10, 30, 31}) world.host.messages().suppress(number);
        check(world, {c.entry}, c.segment_type);
        EXPECT_EQ(world.message_numbers(), c.message == 0 ? Ints{} : Ints{c.message});
        EXPECT_EQ(world.forwarded(), c.forwarded);
    }
}

TEST(AttributeEntries, CoverEveryPolymerAndCatalystWhetherAcceptedOrNot)
{
    CheckedParagraph world;
    world.host.messages().suppress(10);
    const auto missing = [&](const Entries& entries) {
        check(world, entries);
        std::string text;
        for (const Message& message : world.host.messages().printed()) {
            const std::string& line = message.lines.back();
            text += std::to_string(message.number) + line.substr(line.find('"'), 2) + " ";
        }
        return text;
    };
    EXPECT_EQ(missing({}), "30\"P 30\"Q 31\"K 31\"P ");
    EXPECT_EQ(missing({{"W", {}}, {"Q", {"ZMOM", "SFLOW"}}, {"K", {"CPSFLOW", "CVSFLOW"}}}), "30\"P 31\"P ");
    world.host.messages().suppress(24);
    world.host.messages().answer(25, 1);
    check(world, {{"P", {}}, {"Q", {}}, {"K", {"CPSFLOW", "CVSFLOW"}}});
    EXPECT_EQ(world.message_numbers(), (Ints{25, 25})) << "a dropped entry still names its component";
}

TEST(AttributeEntries, OfOneComponentAreAllForwarded)
{
    CheckedParagraph world;
    check(world, {{"Q", {"ZMOM", "SFLOW"}},
                  {"P", {"ZMOM", "SFLOW", "CPSFLOW", "CVSFLOW"}},
                  {"Q", {"SFLOW", "ZMOM", "DPN"}}});
    EXPECT_EQ(world.forwarded(), "Q:ZMOM,SFLOW P:ZMOM,SFLOW,CPSFLOW,CVSFLOW Q:SFLOW,ZMOM,DPN");
    EXPECT_EQ(world.integers(ST_TABLES[1], 3, 1), (Ints{4})) << "the current paragraph is current again";

    const BlockId copy = world.block(word::attribute_sentence);
    check(world, {{"W", {"DPN"}}});
    EXPECT_NE(world.block(word::attribute_sentence), copy)
        << "the block names the copy of the latest sentence";
}
