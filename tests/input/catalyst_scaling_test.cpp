#include "input/checked_paragraph.h"

using namespace support;
using namespace minihost;

namespace {

constexpr double bound = 1e35;

// K carries CPSFLOW with two site types, P a single ZMOM and two SZMOM; W carries nothing.
struct ScalingWorld : CheckedParagraph {
    ScalingWorld()
    {
        check({PolymerSentence{{"P"}}, SegmentSentence{{{"A", 2}}}, SiteSentence{2},
               AttributeSentence{{{"P", {"ZMOM", "SFLOW", "SZMOM"}}, {"K", {"CVSFLOW", "CPSFLOW"}}}}});
        host.lay_attribute_blocks();
    }
    Int scale(const std::vector<ScalingEntry>& entries, Int op = 2)
    {
        return scale(lay_scaling_sentence(host.store(), host.components(), entries), op);
    }
    Int scale(BlockId sentence, Int op = 2)
    {
        Int status = 77;
        POLY_CATSCALESEM(&op, &sentence, &status, nullptr, &sentence);
        host.store().verify();
        return status;
    }
    Values column(const char* id, const char* attribute, Int column)
    {
        return host.attribute_blocks().values(host.components().index(id), attribute, column);
    }
};

}  // namespace

TEST(CatalystScaling, WritesTheSecondValueIntoColumnOneAndTheFirstIntoColumnThree)
{
    const double below = std::nextafter(bound, 0);
    const struct {
        const char* name;
        double first, second;
        Values columns;
    } cases[] = {
        {"both", 3, 5, {5, 0, 3}},
        {"only the first", 3, bound, {0, 0, 3}},
        {"only the second", bound, 5, {5, 0, 0}},
        {"neither", bound, 2 * bound, {0, 0, 0}},
        {"just below", below, below, {below, 0, below}},
        {"not a number", not_a_number, not_a_number, {0, 0, 0}},
    };
    for (const auto& [name, first, second, columns] : cases) {
        SCOPED_TRACE(name);
        ScalingWorld world;
        const std::vector<ScalingEntry> entries{
            {"K", "CPSFLOW", first, second}, {"P", "ZMOM", first, second}, {"P", "SZMOM", first, second}};
        EXPECT_EQ(world.scale(entries), -1);
        EXPECT_TRUE(world.host.messages().printed().empty());
        for (Int column = 1; column <= 3; ++column) {
            const double expected = columns[static_cast<std::size_t>(column - 1)];
            EXPECT_EQ(world.column("K", "CPSFLOW", column), Values(2, expected));
            EXPECT_EQ(world.column("P", "ZMOM", column), Values(1, expected));
            EXPECT_EQ(world.column("P", "SZMOM", column), Values(2, expected));
            EXPECT_EQ(world.column("K", "CVSFLOW", column), Values(2, 0.0));
        }
    }
}

TEST(CatalystScaling, ReportsAnAttributeThatIsNotUsedAndAppliesTheRest)
{
    ScalingWorld world;
    auto& log = world.host.messages();
    const std::vector<ScalingEntry> entries{
        {"K", "DPN", 1, 1}, {"W", "CPSFLOW", 1, 1}, {"K", "CPSFLOW", 1, 2}, {"K", "CPSFLOW", 6, 7}};
    EXPECT_EQ(world.scale(entries, 5), 77) << "not its own operation";
    EXPECT_TRUE(log.printed().empty());
    EXPECT_EQ(world.column("K", "CPSFLOW", 1), (Values{0, 0}));

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
    EXPECT_EQ(world.column("K", "CPSFLOW", 1), (Values{7, 7})) << "the later entry holds";

    for (const Int answer : {0, 2}) {
        log.clear();
        log.answer(1, answer);
        EXPECT_EQ(world.scale(entries), 1);
        EXPECT_TRUE(log.printed().empty());
        EXPECT_EQ(log.prints_of_suppressed(), 0);
    }
}

TEST(CatalystScaling, TakesNothingFromBlocksThatDescribeNothing)
{
    ScalingWorld world;
    auto& store = world.host.store();
    const Int k = world.host.components().index("K");
    const BlockId directory = ST_PROPTAB[7 - 1], block = store.integer(directory, k + 1);
    EXPECT_EQ(world.scale(std::vector<ScalingEntry>{}), -1) << "a sentence without entries";

    // The words before the first description are counts, and no name.
    const auto data_of = [&](BlockId sentence) { return store.integer(sentence, 4); };
    const BlockId counts = lay_scaling_sentence(store, world.host.components(), {{"K", "", 1, 1}});
    const BlockId names = store.integer(data_of(counts), 12);
    for (const Int word : {1, 2}) store.set_integer(names, word, store.integer(block, word));
    EXPECT_EQ(world.scale(counts), 1);

    const std::vector<ScalingEntry> entry{{"K", "CVSFLOW", 3, 5}};
    for (const BlockId none : {0, -1}) {
        store.set_integer(directory, k + 1, none);
        EXPECT_EQ(world.scale(entry), 1) << "no attribute block";
    }
    // Any other id is one.
    store.resize_integers(1, store.integer_length(block));
    for (Int word = 1; word <= store.integer_length(block); ++word)
        store.set_integer(1, word, store.integer(block, word));
    store.set_integer(directory, k + 1, 1);
    EXPECT_EQ(world.scale(entry), -1);
    EXPECT_EQ(world.column("K", "CVSFLOW", 1), (Values{5, 5}));

    store.set_integer(1, 4 + 3, 0);
    EXPECT_EQ(world.scale({{"K", "CVSFLOW", 7, 7}}), -1) << "an attribute without elements";
    EXPECT_EQ(world.column("K", "CVSFLOW", 1), (Values{5, 5}));
}
