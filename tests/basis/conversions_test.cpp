#include "support/routine_calls.h"

namespace {

using namespace support;

// Component 3 has chains of 100 segments of 2 g/mol, its apparent weight is 4; component 4 is a solvent.
World solution(double segment_weight = 2)
{
    const Attributes chains{{"ZMOM", 1}, {"SFLOW", 100}};
    return World{}.segments({{"A", segment_weight}}).polymer("P", chains, 4).conventional("S", 8);
}
const Ints pair{3, 4};

TEST(TrueBasis, FromAttributesAndFromCountsCountChains)
{
    struct {
        const char* name;
        World world;
        Int flag;
        Values apparent, from_attributes, from_counts;
    } cases[] = {
        {"chains", solution(), 1, {0.5, 0.5}, {0.01 / 0.51, 0.5 / 0.51}, {0.01 / 0.51, 0.5 / 0.51}},
        {"sum below the zero bound", solution(), 1, {0, 1e-18}, {0, 1}, {0, 1}},
        {"sum of exactly 0", solution(), 1, {50, -1}, {1, -1}, {1, -1}},
        {"no block, flag 2", solution().without_polymer_block(-3), 2, {1, 3}, {1, 3}, {0.25, 0.75}},
        {"weightless chains", solution(0), 0, {1, 3}, {0.25, 0.75}, {0.25, 0.75}},
    };
    CountMatrix counts(4);
    counts.at(3, 2) = 100;
    for (auto& c : cases) {
        SCOPED_TRACE(c.name);
        c.world.host();
        const auto weights = c.world.molecular_weights();
        Values x = c.apparent;
        call(POLY_XATOXT, 2, pair, weights, x, x);
        EXPECT_EQ(x, c.from_attributes);
        x = c.apparent;
        call(POLY_GETXTRUE, 2, pair, x, 4, weights, 1, Ints{2}, Ints{0, 0, c.flag, 0}, counts, x);
        EXPECT_EQ(x, c.from_counts);
    }
}

TEST(TrueBasis, TurnsQuantitiesPerMoleAndFractionsByMode)
{
    auto world = solution();
    world.host();
    const Values weights{0, 0, 4, 8}, chain_weights{200, 0};
    const std::tuple<Int, Values, Values> cases[] = {{0, {3, 5}, {150, 5}},
                                                     {1, {0.5, 0.5}, {0.01 / 0.51, 0.5 / 0.51}},
                                                     {1, {0, zero_bound}, {0, zero_bound}},
                                                     {2, {3, 5}, Values(2, GuardedReals::sentinel)}};
    for (const auto& [mode, v, expected] : cases) {
        GuardedReals by_class(2), by_flag(2);
        call(POLY_VATOVT, 2, pair, weights, chain_weights, v, by_class, mode);
        call(POLY_VATOVX, 2, pair, weights, chain_weights, v, by_flag, mode, nullptr, Ints{1, 1, 1, 2});
        EXPECT_EQ(std::pair(by_class.values(), by_flag.values()), std::pair(expected, expected));
    }
}

TEST(MassFractions, DifferInWhatAVanishingSumLeaves)
{
    auto world = solution();
    world.host();
    const auto convert = [](Values x) {
        Values w(2);
        call(POLY_XATOWT, x, 2, pair, w);
        call(POLY_XTTOWT, 2, x, Values{4, 8}, x);
        return std::pair{w, x};
    };
    EXPECT_EQ(convert({0.5, 0.25}), (std::pair{Values{0.5, 0.5}, Values{0.5, 0.5}}));
    EXPECT_EQ(convert({zero_bound / 4, 0}), (std::pair{Values{zero_bound, 0}, Values{0, 0}}));
    EXPECT_EQ(convert({NAN, 1}).second, (Values{0, 0})) << "a sum that is no number";
}

TEST(Lists, SplitAndMergeRebuildTheList)
{
    auto world =
        World{}.conventional("A").polymer("P").conventional("B").oligomer("O", {}).without_polymer_block();
    world.host();
    Ints chains{2, 3, 4, 5};
    Int chain_count = -1, other_count = -1;
    GuardedInts chain_places(2), others(2), other_places(2), merged(5);
    call(POLY_IDXSPLIT, 4, chains, chain_count, chains, chain_places, other_count, others, other_places);
    EXPECT_EQ((Ints{chains[0], chains[1], others(1), others(2)}), (Ints{3, 5, 2, 4}));
    call(POLY_PROPMRG, nullptr, chain_count, other_count, chain_places, other_places, chains, others, merged);
    EXPECT_EQ(merged.values(), (Ints{2, 3, 4, 5, GuardedInts::sentinel}));
    call(POLY_PROPMRG, nullptr, 1, 1, 2, 2, 7, 8, merged);
    EXPECT_EQ(merged(2), 8) << "the second part wins";
    call(POLY_IDXSPLIT, 0, nullptr, chain_count, nullptr, nullptr, other_count, nullptr, nullptr);
    EXPECT_EQ((Ints{chain_count, other_count}), (Ints{0, 0}));
}

TEST(Lists, PickSubCompositionsLayOutAreasAndFindWater)
{
    const Values full{0.25, 0.5, 0.75, 0, -1};
    GuardedReals sub(3);
    call(POLY_GETXSUB, nullptr, full, 2, Ints{3, 1}, sub);
    EXPECT_EQ(sub.values(), (Values{0.75, 0.25, GuardedReals::sentinel}));
    call(POLY_GETXSUB, nullptr, full, 3, Ints{3, 1, 5}, sub);
    EXPECT_EQ(sub.values(), (Values{0.75, 0.25, -1})) << "a sum of exactly 0";

    Int last = 100;
    Ints areas{10, 0, 5};
    call(POLY_WRKPOINT, last, 3, areas, areas);
    call(POLY_WRKPOINT, last, 0, areas, areas);
    EXPECT_EQ(std::pair(areas, last), std::pair(Ints{101, 111, 111}, Int{115}));
    call(POLY_WRKPOINT, last, 1, 7, areas);
    EXPECT_EQ(std::pair(areas[0], last), std::pair(Int{116}, Int{122}));

    auto world = World{}.conventional("2", 18, "h2o").conventional("3", 20, "H2O2");
    world.conventional("4", 18, "H2O").conventional("5", 18, "H2O     OTHER").host();
    const std::pair<Ints, Int> waters[] = {{{2, 3, 4, 5}, 4}, {{5, 4}, 5}, {{3, 4}, 4}, {{3, 2}, 0}, {{}, 0}};
    for (const auto& [list, water] : waters) {
        Int found = -1;
        call(POLY_SETH2O, std::ssize(list), list, found);
        EXPECT_EQ(found, water);
    }
}

}  // namespace
