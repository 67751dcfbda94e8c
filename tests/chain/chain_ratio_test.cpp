#include <gtest/gtest.h>
#include <polyprops/host.h>
#include <polyprops/polyprops.h>

#include "support/arguments.h"
#include "support/world.h"

namespace {

using namespace support;

TEST(ChainRatio, DividesEachFractionByItsChainLength)
{
    const auto polymer = [](const Attributes& attributes) {
        return World{}
            .segments({{"A", 10, SegmentType::end}, "B"})
            .polymer("C", attributes, 2)
            .conventional("W", 0);
    };
    const auto oligomer = [](double parameter, const std::map<std::string, double>& counts) {
        return World{}.segments({"A", "B"}).oligomer("C", counts).parameter("C", Parameter::dpn, parameter);
    };
    const Attributes hundred{{"ZMOM", 1}, {"SFLOW", {60, 40}}, {"FMOM", 7}, {"DPN", 9}};
    struct Case {
        const char* name;
        World world;
        Values x;
        double expected;
    };
    Case cases[] = {
        {"segment flows over chains alone", polymer(hundred), {1}, 100},
        {"with a component of one segment", polymer(hundred), {1, 0.09}, 10},
        {"no mass", polymer(hundred), {0, 0.25}, 1},
        {"no chains in total", polymer({{"ZMOM", 1}, {"SFLOW", {4, 0}}}), {1, -0.25}, 1},
        {"empty list", polymer(hundred), {}, 1},
        {"no lower limit of one", polymer({{"ZMOM", 8}, {"SFLOW", {2, 0}}}), {1}, 0.25},
        {"chains from the end segments", polymer({{"SFLOW", {4, 16}}}), {1}, 10},
        {"chains at the zero bound", polymer({{"ZMOM", zero_bound}, {"SFLOW", {60, 40}}}), {1}, 1},
        {"segments at the zero bound", polymer({{"ZMOM", 8}, {"SFLOW", {zero_bound, 0}}}), {1}, 1},
        {"make-up for a parameter of 1", oligomer(1 + 1e-11, {{"A", 2}, {"B", 3}}), {1}, 5},
        {"parameter before make-up", oligomer(4, {{"A", 2}, {"B", 3}}), {1}, 4},
        {"parameter without a make-up",
         World{}
             .segments({"A"})
             .polymer("P")
             .component("C", ComponentClass::oligomer)
             .parameter("C", Parameter::dpn, 1 + 1e-11),
         {1},
         1 + 1e-11},
        {"a length of 0 counts as 1", oligomer(1, {}), {1}, 1},
        {"neither polymers nor oligomers", polymer(hundred).polymer_count(0), {1}, 1},
        {"no polymer block", polymer(hundred).without_polymer_block(), {1}, 1},
    };
    for (auto& c : cases) {
        c.world.host();
        double ratio = -1;
        call(POLY_GETRAT, 1, std::ssize(c.x), Ints{4, 5}, c.x, ratio);
        EXPECT_DOUBLE_EQ(ratio, c.expected) << c.name;
        c.world = World{};
    }
}

TEST(ComponentLookup, FlagsAtTheComponentIndexAndGivesParametersByPosition)
{
    auto world =
        World{}.segments({"A"}).polymer("P").oligomer("O", {}).conventional("W").without_polymer_block();
    world.parameter("O", Parameter::cry, 0.75).host();
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
