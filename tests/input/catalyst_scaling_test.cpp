#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "input/checked_paragraph.h"

using namespace support;
using namespace minihost;

namespace {

using Reals = std::vector<double>;

constexpr double bound = 1e35;
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

// K carries CPSFLOW with two site types, P a single ZMOM and two SZMOM; W carries nothing.
class ScalingWorld {
public:
    ScalingWorld()
    {
        world.check({PolymerSentence{{"P"}}, SegmentSentence{{{"A", 2}}}, SiteSentence{2},
                     AttributeSentence{{{"P", {"ZMOM", "SFLOW", "SZMOM"}}, {"K", {"CVSFLOW", "CPSFLOW"}}}}});
        world.host.messages().clear();
        world.host.lay_attribute_blocks();
    }
    Int scale(const std::vector<ScalingEntry>& entries, Int op = 2)
    {
        const BlockId id = lay_scaling_sentence(world.host.store(), world.host.components(), entries);
        Int status = 77;
        POLY_CATSCALESEM(&op, &id, &status, nullptr, &id);
        world.host.store().verify();
        return status;
    }
    Reals column(const char* id, const char* attribute, Int column)
    {
        return world.host.attribute_blocks().values(world.host.components().index(id), attribute, column);
    }

    CheckedParagraph world;
};

}  // namespace

TEST(CatalystScaling, WritesTheSecondValueIntoColumnOneAndTheFirstIntoColumnThree)
{
    struct Case {
        const char* name;
        double first;
        double second;
        double column_1;
        double column_3;
    };
    const double below = std::nextafter(bound, 0);
    const Case cases[] = {
        {"both", 3, 5, 5, 3},
        {"first alone", 3, bound, 0, 3},
        {"second alone", bound, 5, 5, 0},
        {"neither", bound, 2 * bound, 0, 0},
        {"just below", below, below, below, below},
        {"not a number", not_a_number, not_a_number, 0, 0},
    };
    constexpr std::pair<const char*, const char*> scaled[] = {
        {"K", "CPSFLOW"}, {"P", "ZMOM"}, {"P", "SZMOM"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ScalingWorld world;
        std::vector<ScalingEntry> entries;
        for (const auto& [id, attribute] : scaled) entries.push_back({id, attribute, c.first, c.second});
        EXPECT_EQ(world.scale(entries), -1);
        for (const auto& [id, attribute] : scaled) {
            const std::size_t elements = std::string_view{attribute} == "ZMOM" ? 1 : 2;
            EXPECT_EQ(world.column(id, attribute, 1), Reals(elements, c.column_1));
            EXPECT_EQ(world.column(id, attribute, 2), Reals(elements, 0));
            EXPECT_EQ(world.column(id, attribute, 3), Reals(elements, c.column_3));
        }
        EXPECT_TRUE(world.world.host.messages().printed().empty());
        for (const Int column : {1, 2, 3}) EXPECT_EQ(world.column("K", "CVSFLOW", column), (Reals{0, 0}));
    }
}

TEST(CatalystScaling, ReportsAnAttributeThatIsNotUsedAndAppliesTheRest)
{
    ScalingWorld world;
    auto& log = world.world.host.messages();
    const std::vector<ScalingEntry> entries{
        {"K", "DPN", 1, 1}, {"W", "CPSFLOW", 1, 1}, {"K", "CPSFLOW", 1, 2}, {"K", "CPSFLOW", 6, 7}};
    EXPECT_EQ(world.scale(entries), 1);
    ASSERT_EQ(log.printed().size(), 2u);
    EXPECT_EQ(log.printed()[0].routine, "CATSCALE");
    EXPECT_EQ(log.printed()[0].severity, 1);
    EXPECT_EQ(log.printed()[0].number, 1);
    using Lines = std::vector<std::string>;
    EXPECT_EQ(log.printed()[0].lines,
              Lines{"      Component \"K       \" does not use attribute \"DPN     \".  Sentence ignored."});
    EXPECT_EQ(log.printed()[1].lines,
              Lines{"      Component \"W       \" does not use attribute \"CPSFLOW \".  Sentence ignored."});
    EXPECT_EQ(world.column("K", "CPSFLOW", 1), (Reals{7, 7})) << "the later entry stands";

    for (const Int answer : {0, 2}) {
        log.clear();
        log.answer(1, answer);
        EXPECT_EQ(world.scale(entries), 1);
        EXPECT_TRUE(log.printed().empty());
        EXPECT_EQ(log.prints_of_suppressed(), 0);
    }
}

TEST(CatalystScaling, AnswersOnlyToItsOwnOperation)
{
    ScalingWorld world;
    EXPECT_EQ(world.scale({{"K", "DPN", 1, 1}, {"K", "CPSFLOW", 1, 2}}, 5), 77);
    EXPECT_EQ(world.column("K", "CPSFLOW", 1), (Reals{0, 0}));
    EXPECT_TRUE(world.world.host.messages().printed().empty());
    EXPECT_EQ(world.scale({}), -1);
}
