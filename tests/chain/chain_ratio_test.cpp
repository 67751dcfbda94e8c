#include "support/routine_calls.h"

namespace {

using namespace support;

// A polymer C, the fourth component, and W, the fifth.
World polymer(const Attributes& attributes)
{
    auto world = World{}.segments({{"A", 10, SegmentType::end}, "B"});
    return world.polymer("C", attributes, 2).conventional("W", 0);
}

// C as an oligomer.
World oligomer(double parameter, const std::map<std::string, double>& counts)
{
    return World{}.segments({"A", "B"}).oligomer("C", counts).parameter("C", Parameter::dpn, parameter);
}

TEST(ChainRatio, DividesEachFractionByItsChainLength)
{
    const Attribute flows{"SFLOW", {60, 40}};
    const auto hundred = polymer({{"ZMOM", 1}, flows, {"FMOM", 7}, {"DPN", 9}});
    auto without_make_up = World{}.segments({"A"}).polymer("P").component("C", ComponentClass::oligomer);
    without_make_up.parameter("C", Parameter::dpn, 1 + 1e-11);
    const struct {
        const char* name;
        World world;
        Values x;
        double expected;
    } cases[] = {
        {"segment flows over chains alone, and one segment", hundred, {1, 0.09}, 10},
        {"no mass", hundred, {0, 0.25}, 1},
        {"no chains in total", polymer({{"ZMOM", 1}, {"SFLOW", {4, 0}}}), {1, -0.25}, 1},
        {"empty list", hundred, {}, 1},
        {"no lower limit of one", polymer({{"ZMOM", 8}, {"SFLOW", {2, 0}}}), {1}, 0.25},
        {"chains from the end segments", polymer({{"SFLOW", {4, 16}}}), {1}, 10},
        {"chains at the zero bound", polymer({{"ZMOM", zero_bound}, flows}), {1}, 1},
        {"segments at the zero bound", polymer({{"ZMOM", 8}, {"SFLOW", {zero_bound, 0}}}), {1}, 1},
        {"make-up for a parameter of 1", oligomer(1 + 1e-11, {{"A", 2}, {"B", 3}}), {1}, 5},
        {"parameter before make-up", oligomer(4, {{"A", 2}, {"B", 3}}), {1}, 4},
        {"parameter without a make-up", without_make_up, {1}, 1 + 1e-11},
        {"a length of 0 counts as 1", oligomer(1, {}), {1}, 1},
        {"neither polymers nor oligomers", polymer({{"ZMOM", 1}, flows}).polymer_count(0), {1}, 1},
        {"no polymer block", polymer({{"ZMOM", 1}, flows}).without_polymer_block(), {1}, 1},
    };
    for (auto c : cases) {
        c.world.host();
        double ratio = -1;
        call(POLY_GETRAT, 1, std::ssize(c.x), Ints{4, 5}, c.x, ratio);
        EXPECT_DOUBLE_EQ(ratio, c.expected) << c.name;
    }
}

TEST(ComponentLookup, FlagsAtTheComponentIndexAndGivesParametersByPosition)
{
    auto world = World{}.segments({"A"}).polymer("P").oligomer("O", {}).conventional("W");
    world.without_polymer_block().parameter("O", Parameter::cry, 0.75).host();
    GuardedInts flags(5);
    call(POLY_GETISP, 3, Ints{4, 5, 3}, nullptr, flags);
    EXPECT_EQ(flags.values(), (Ints{GuardedInts::sentinel, GuardedInts::sentinel, 1, 1, 0}));
    GuardedReals cry(1);
    call(POLY_GETCRY, nullptr, 1, Ints{4}, cry);
    EXPECT_EQ(cry(1), 0.75);
    ST_POFF1[601 - 1] = 0;
    call(POLY_GETCRY, nullptr, 1, Ints{4}, cry);
    EXPECT_EQ(cry(1), 0.0) << "the parameter vector does not exist";
}

}  // namespace
