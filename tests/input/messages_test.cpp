#include "input/checked_paragraph.h"

using namespace support;
using namespace minihost;

namespace {

using Texts = std::vector<std::string>;

const PolymerSentence polymer{{"P"}};
const SegmentSentence segments{{{"A", 2}}};

// P to I have attribute entries, although none is accepted; W, the first component, is polymer and catalyst
// without any.
const std::vector<Sentence> everything_wrong{
    PolymerSentence{{"P", "NYLON", "P", "Q", "W"}},
    SegmentSentence{{{"LONGNAME", 1}, {"A", 2}, {"A", 1}}},
    OligomerSentence{{{"OLIGO", "A", 1}, {"O", "X", 1}, {"O", "C", 1}}},
    CatalystSentence{{{"TICL4", 1}, {"K", 1}, {"I", 1}, {"W", 1}}},
    InitiatorSentence{{"AIBN"}},
    AttributeSentence{{{"X", {"DPN"}},
                       {"P", {"SFLOW"}},
                       {"Q", {"ZMOM"}},
                       {"K", {"CVSFLOW"}},
                       {"I", {"CPSFLOW"}},
                       {"R", {"EFRAC"}}}},
    DistributionSentence{{{"X", 7, {}, 0}}},
};
const Texts all_messages{
    R"(4 / SPECIFIED POLYMER ID "NYLON   " IS NOT A VALID / COMPONENT ID.  SENTENCE WILL BE IGNORED.)",
    R"(5 / SPECIFIED POLYMER ID "P       " HAS BEEN USED / PREVIOUSLY.  SENTENCE WILL BE IGNORED.)",
    R"(6 / SPECIFIED SEGMENT ID "LONGNAME" IS NOT A VALID / COMPONENT ID.  SENTENCE WILL BE IGNORED.)",
    R"(11 / SPECIFIED SEGMENT ID "A       " HAS BEEN USED / PREVIOUSLY.  SENTENCE WILL BE IGNORED.)",
    R"(7 / SPECIFIED OLIGOMER ID "OLIGO   " IS NOT A VALID / COMPONENT ID.  SENTENCE WILL BE IGNORED.)",
    R"(8 / SPECIFIED SEGMENT ID "X       " FOR OLIGOMER "O       " / )"
    "IS NOT A VALID COMPONENT ID.  SENTENCE WILL BE IGNORED.",
    R"(9 / SPECIFIED SEGMENT ID "C       " FOR OLIGOMER "O       " / )"
    "IS NOT A VALID SEGMENT ID.  SENTENCE WILL BE IGNORED.",
    R"(10 / SPECIFIED CATALYST ID "TICL4   " IS NOT A VALID / COMPONENT ID.  SENTENCE WILL BE IGNORED.)",
    R"(10 / SPECIFIED INITIATOR ID "AIBN    " IS NOT A VALID / COMPONENT ID.  SENTENCE WILL BE IGNORED.)",
    R"(22 / SPECIFIED COMPONENT ID "X       " IS NOT VALID. / SENTENCE WILL BE IGNORED.)",
    R"(24 / THE ZEROTH MOMENT ATTRIBUTE (ZMOM) MUST BE SPECIFIED / FOR POLYMER COMPONENT "P       ".)",
    R"(25 / THE SEGMENT FLOW ATTRIBUTE (SFLOW) MUST BE SPECIFIED / FOR POLYMER COMPONENT "Q       ".)",
    R"(26 / THE POTENTIAL SITE ATTRIBUTE (CPSFLOW) MUST BE SPECIFIED / FOR CATALYST COMPONENT "K       ".)",
    R"(27 / THE VACANT SITE ATTRIBUTE (CVSFLOW) MUST BE SPECIFIED / FOR CATALYST COMPONENT "I       ".)",
    "28 / The EFRAC attribute can only be used if one or more segments are / "
    "declared as end segments. Uncheck EFRAC in the attribute list on / "
    "the polymer characterization form or declare some segments as ends / "
    "in the segment characterization form.",
    R"(30 / A COMP-ATTR SENTENCE MUST BE ENTERED FOR POLYMER "W       ".)",
    R"(31 / A COMP-ATTR SENTENCE MUST BE ENTERED FOR CATALYST "W       ".)",
    R"(10 / SPECIFIED POLYMER ID FOR DISTRIBUTION "X       " IS NOT / )"
    "A VALID COMPONENT ID.  SENTENCE WILL BE IGNORED.",
};

// "7 / first line / second line" for each message.
Texts printed(const MessageLog& log)
{
    Texts texts;
    for (const Message& message : log.printed()) {
        EXPECT_EQ(message.routine, "POLSEM");
        EXPECT_EQ(message.severity, message.number == 28 ? 1 : 2);
        texts.push_back(std::to_string(message.number));
        for (const std::string& line : message.lines) {
            EXPECT_EQ(line.substr(0, 6), "      ");
            texts.back() += " / " + line.substr(6);
        }
    }
    return texts;
}

}  // namespace

TEST(InputMessages, AreComposedAsTheHostAllows)
{
    const Texts no_segment{"3 / NO SEGMENT WAS SPECIFIED IN THIS PARAGRAPH / PARAGRAPH WILL BE IGNORED."};
    const struct {
        std::vector<Sentence> sentences;
        Texts messages;
        Ints composed_on_two;           // the others are composed on the answer 1 alone
        Int printed_though_suppressed;  // the others are printed only when composed
    } cases[] = {
        {{}, {"1 / THIS POLYMERS PARAGRAPH HAS NO SENTENCES."}, {1}, 1},
        {{segments}, {"2 / NO POLYMER WAS SPECIFIED IN THIS PARAGRAPH / PARAGRAPH WILL BE IGNORED."}, {2}, 1},
        {{polymer}, no_segment, {3}, 1},
        {{OligomerSentence{{{"O", "A", 1}}}}, no_segment, {3}, 1},
        {everything_wrong, all_messages, {4, 5, 6, 11, 7, 8, 9, 10, 10, 10}, 8},  // all of these but 8 and 9
    };
    for (const auto& c : cases) {
        CheckedParagraph world;
        MessageLog& log = world.host.messages();
        EXPECT_EQ(world.check(c.sentences), 0);
        EXPECT_EQ(printed(log), c.messages);
        EXPECT_EQ(world.host.polymer_block() > 0, c.messages == all_messages) << "given up at once";
        for (const auto& [answer, numbers] : {std::pair{2, c.composed_on_two}, {0, {}}}) {
            for (Int number = 1; number <= 31; ++number) log.answer(number, answer);
            world.check(c.sentences);
            EXPECT_EQ(world.message_numbers(), numbers);
        }
        EXPECT_EQ(log.prints_of_suppressed(), c.printed_though_suppressed);
    }
}
