#include <gtest/gtest.h>

#include "input/checked_paragraph.h"

using namespace support;
using namespace minihost;

namespace {

using Lines = std::vector<std::string>;

enum class Habit {
    prints_always,    // composed on any answer but 0, printed whatever the answer
    prints_composed,  // composed on any answer but 0, printed only then
    composes_on_one,  // composed on the answer 1 alone, printed only then
};

struct Case {
    Int number;
    Int severity;
    Habit habit;
    std::vector<Sentence> sentences;
    Lines lines;
};

const PolymerSentence polymer{{"P"}};
const SegmentSentence segments{{{"A", 2}, {"B", 2}}};
const AttributeSentence attributes{{{"P", {"ZMOM", "SFLOW"}}}};
const CatalystSentence catalyst{{{"K", 1}}};
const char* const ignored = "COMPONENT ID.  SENTENCE WILL BE IGNORED.";

// clang-format off
const std::vector<Case> cases{
    {1, 2, Habit::prints_always, {}, {"THIS POLYMERS PARAGRAPH HAS NO SENTENCES."}},
    {2, 2, Habit::prints_always, {segments},
     {"NO POLYMER WAS SPECIFIED IN THIS PARAGRAPH", "PARAGRAPH WILL BE IGNORED."}},
    {3, 2, Habit::prints_always, {polymer},
     {"NO SEGMENT WAS SPECIFIED IN THIS PARAGRAPH", "PARAGRAPH WILL BE IGNORED."}},
    {4, 2, Habit::prints_always, {PolymerSentence{{"P", "NYLON"}}, segments, attributes},
     {"SPECIFIED POLYMER ID \"NYLON   \" IS NOT A VALID", ignored}},
    {5, 2, Habit::prints_always, {PolymerSentence{{"P", "P"}}, segments, attributes},
     {"SPECIFIED POLYMER ID \"P       \" HAS BEEN USED", "PREVIOUSLY.  SENTENCE WILL BE IGNORED."}},
    {6, 2, Habit::prints_always, {polymer, SegmentSentence{{{"LONGNAME", 1}, {"A", 1}}}, attributes},
     {"SPECIFIED SEGMENT ID \"LONGNAME\" IS NOT A VALID", ignored}},
    {7, 2, Habit::prints_always, {segments, OligomerSentence{{{"OLIGO", "A", 1}}}},
     {"SPECIFIED OLIGOMER ID \"OLIGO   \" IS NOT A VALID", ignored}},
    {8, 2, Habit::prints_composed, {segments, OligomerSentence{{{"O", "X", 1}}}},
     {"SPECIFIED SEGMENT ID \"X       \" FOR OLIGOMER \"O       \"",
      "IS NOT A VALID COMPONENT ID.  SENTENCE WILL BE IGNORED."}},
    {9, 2, Habit::prints_composed, {segments, OligomerSentence{{{"O", "C", 1}}}},
     {"SPECIFIED SEGMENT ID \"C       \" FOR OLIGOMER \"O       \"",
      "IS NOT A VALID SEGMENT ID.  SENTENCE WILL BE IGNORED."}},
    {10, 2, Habit::prints_always, {CatalystSentence{{{"TICL4", 1}}}},
     {"SPECIFIED CATALYST ID \"TICL4   \" IS NOT A VALID", ignored}},
    {10, 2, Habit::prints_always, {InitiatorSentence{{"AIBN"}}},
     {"SPECIFIED INITIATOR ID \"AIBN    \" IS NOT A VALID", ignored}},
    {10, 2, Habit::prints_always, {DistributionSentence{{{"X", 7, {}, 0}}}},
     {"SPECIFIED POLYMER ID FOR DISTRIBUTION \"X       \" IS NOT", "A VALID COMPONENT ID.  SENTENCE WILL BE IGNORED."}},
    {11, 2, Habit::prints_always, {polymer, SegmentSentence{{{"A", 1}, {"A", 2}}}, attributes},
     {"SPECIFIED SEGMENT ID \"A       \" HAS BEEN USED", "PREVIOUSLY.  SENTENCE WILL BE IGNORED."}},
    {22, 2, Habit::composes_on_one, {AttributeSentence{{{"X", {"DPN"}}}}},
     {"SPECIFIED COMPONENT ID \"X       \" IS NOT VALID.", "SENTENCE WILL BE IGNORED."}},
    {24, 2, Habit::composes_on_one, {polymer, segments, AttributeSentence{{{"P", {"SFLOW"}}}}},
     {"THE ZEROTH MOMENT ATTRIBUTE (ZMOM) MUST BE SPECIFIED", "FOR POLYMER COMPONENT \"P       \"."}},
    {25, 2, Habit::composes_on_one, {polymer, segments, AttributeSentence{{{"P", {"ZMOM"}}}}},
     {"THE SEGMENT FLOW ATTRIBUTE (SFLOW) MUST BE SPECIFIED", "FOR POLYMER COMPONENT \"P       \"."}},
    {26, 2, Habit::composes_on_one, {catalyst, AttributeSentence{{{"K", {"CVSFLOW"}}}}},
     {"THE POTENTIAL SITE ATTRIBUTE (CPSFLOW) MUST BE SPECIFIED", "FOR CATALYST COMPONENT \"K       \"."}},
    {27, 2, Habit::composes_on_one, {catalyst, AttributeSentence{{{"K", {"CPSFLOW"}}}}},
     {"THE VACANT SITE ATTRIBUTE (CVSFLOW) MUST BE SPECIFIED", "FOR CATALYST COMPONENT \"K       \"."}},
    {28, 1, Habit::composes_on_one, {AttributeSentence{{{"W", {"EFRAC"}}}}},
     {"The EFRAC attribute can only be used if one or more segments are",
      "declared as end segments. Uncheck EFRAC in the attribute list on",
      "the polymer characterization form or declare some segments as ends",
      "in the segment characterization form."}},
    {30, 2, Habit::composes_on_one, {polymer, segments},
     {"A COMP-ATTR SENTENCE MUST BE ENTERED FOR POLYMER \"P       \"."}},
    {31, 2, Habit::composes_on_one, {catalyst},
     {"A COMP-ATTR SENTENCE MUST BE ENTERED FOR CATALYST \"K       \"."}},
};
// clang-format on

Lines with_margin(Lines lines)
{
    for (auto& line : lines) line.insert(0, "      ");
    return lines;
}

}  // namespace

TEST(InputMessages, AreComposedAsTheHostAllows)
{
    for (const Case& c : cases) {
        SCOPED_TRACE(c.lines.front());
        CheckedParagraph world;
        MessageLog& log = world.host.messages();
        world.check(c.sentences);
        ASSERT_EQ(log.printed().size(), 1u);
        const Message& message = log.printed().front();
        EXPECT_EQ(message.routine, "POLSEM");
        EXPECT_EQ(message.number, c.number);
        EXPECT_EQ(message.severity, c.severity);
        EXPECT_EQ(message.lines, with_margin(c.lines));

        log.answer(c.number, 2);
        world.check(c.sentences);
        EXPECT_EQ(log.printed().size(), c.habit == Habit::composes_on_one ? 0u : 1u);

        log.suppress(c.number);
        world.check(c.sentences);
        EXPECT_TRUE(log.printed().empty());
        EXPECT_EQ(log.prints_of_suppressed(), c.habit == Habit::prints_always ? 1 : 0);
    }
}
