#include <algorithm>
#include <cfloat>

#include "support/routine_calls.h"

namespace {

using namespace support;

Values grid(Int n, double longest_chain)
{
    GuardedReals x(static_cast<std::size_t>(n)), weights(1), composite(static_cast<std::size_t>(n)), table(1);
    call(POLY_CSDINI, n, 0, x, longest_chain, weights, composite, table);
    EXPECT_TRUE(x.fence_holds());
    return x.values();
}

TEST(ChainLengthGrid, IsLogarithmicWholeAndIncreasing)
{
    EXPECT_EQ(grid(5, 1e5), (Values{10, 100, 1000, 10000, 100000}));
    EXPECT_EQ(grid(10, 10), (Values{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    EXPECT_EQ(grid(4, 50.5), (Values{2, 7, 18, 50}));
    for (const double short_or_unusable : {0.5, 0.0, -10.0, infinity, not_a_number})
        EXPECT_EQ(grid(4, short_or_unusable), (Values{1, 2, 3, 4})) << "longest " << short_or_unusable;
    for (const double longest_chain : {DBL_MIN, 1e-3, 1.0, 7.5, 1e6, DBL_MAX}) {
        const Values x = grid(200, longest_chain);
        for (std::size_t k = 0; k < x.size(); ++k) {
            EXPECT_EQ(x[k], std::trunc(x[k]));
            EXPECT_GT(x[k], k == 0 ? 0 : x[k - 1]);
        }
    }
}

TEST(ChainLengthGrid, ClearsWhatDistributionsAccumulateIn)
{
    const struct {
        Int n, m;
        Ints cleared;  // words of the weights, the composite and the columns
    } cases[] = {{2, 3, {4, 2, 6}}, {2, 0, {1, 2, 0}}, {0, 3, {4, 0, 0}}, {-1, 3, {4, 0, 0}}};
    for (const auto& c : cases) {
        GuardedReals x(2), weights(4), composite(2), table(6);
        call(POLY_CSDINI, c.n, c.m, x, 100.0, weights, composite, table);
        Ints cleared;
        for (const Values& words : {weights.values(), composite.values(), table.values()})
            cleared.push_back(std::count(words.begin(), words.end(), 0.0));
        EXPECT_EQ(cleared, c.cleared) << "n " << c.n << ", m " << c.m;
        EXPECT_TRUE(x.untouched() == (c.n < 1) && weights.fence_holds() && table.fence_holds()) << c.n;
    }
}

TEST(DistributionMixing, WeighsByAmountAboveTheZeroBound)
{
    auto world = World{}.bounds(missing, 0.25);
    world.host();
    const Values first{1, 10}, second{3, 50}, untouched(2, GuardedReals::sentinel);
    const auto mixed = [&](Int n, double w1, double w2) {
        GuardedReals y(2);
        double w = -1;
        call(POLY_CSDADD, n, first, w1, second, w2, y, w);
        EXPECT_EQ(w, w1 + w2);
        EXPECT_TRUE(y.fence_holds());
        return y.values();
    };
    EXPECT_EQ(mixed(2, 0.125, 0.125), untouched) << "the zero bound itself mixes nothing";
    EXPECT_EQ(mixed(2, 0.25 * (1 + DBL_EPSILON), 0), first) << "just above it does";
    EXPECT_EQ(mixed(2, -3, 1), untouched) << "negative total";
    EXPECT_EQ(mixed(0, 1, 3), untouched) << "no points";
    std::pair in_place{second, 3.0};
    auto& [y, w] = in_place;
    call(POLY_CSDADD, 2, first, 1.0, y, w, y, w);
    EXPECT_EQ(in_place, std::pair(Values{2.5, 40}, 4.0)) << "results overwrite what they are made of";
}

// Running distributions of up to two site types on two grid points.
struct Running {
    Values tau{0.25, 0.5}, beta{0, 0}, x{2, 4}, weights{0, 0, 0}, composite{-7, -7}, columns{0, 0, 0, 0};

    void add(const Values& amounts, Int mode = 0)
    {
        call(POLY_CSDCAL, std::ssize(x), std::ssize(amounts), mode, tau, beta, amounts, x, weights, composite,
             columns);
    }
};

TEST(InstantaneousDistribution, FirstIncrementIsShareOfEachSiteAndItsRepetitionChangesNothing)
{
    World world;
    world.host();
    Running running;
    running.beta = {0, 1.5};
    Running gpc = running;
    running.add({3, 1});
    // s = 0.25 and 2; the second site couples chains: 0.5·x·1.5·2 + 0.5 is 3.5 and 6.5.
    const Values expected{std::exp(-0.5) * 2 * 0.25 * 0.25 * 3 / 4, std::exp(-1.0) * 4 * 0.25 * 0.25 * 3 / 4,
                          std::exp(-4.0) * 2 * 2 * 3.5 / 4, std::exp(-8.0) * 4 * 2 * 6.5 / 4};
    EXPECT_EQ(running.columns, expected);
    EXPECT_EQ(running.composite, (Values{expected[0] + expected[2], expected[1] + expected[3]}));
    EXPECT_EQ(running.weights, (Values{3, 1, 4}));
    running.add({3, 1}, 2);
    EXPECT_EQ(running.weights, (Values{6, 2, 8}));
    for (const Int odd : {-1, 1, 3}) gpc.add({3, 1}, odd);
    for (std::size_t e = 0; e < 4; ++e) {
        EXPECT_NEAR(running.columns[e], expected[e], 1e-16);
        EXPECT_DOUBLE_EQ(gpc.columns[e], expected[e] * gpc.x[e % 2]);
    }
}

TEST(InstantaneousDistribution, ExponentIsLimitedOnBothSides)
{
    World world;
    world.host();
    const Values tau{249.5, 250, std::nextafter(250, 251), -80.5, -80.59, -81};
    Running running{tau, Values(6), {1}, Values(7), {-7}, Values(6)};
    running.add({1, 1, 1, 1, 1, 1});
    const Values exponents{-249.5, -250, -250, 80.5, 80.59, 80.59};
    for (std::size_t j = 0; j < exponents.size(); ++j)
        EXPECT_EQ(running.columns[j], std::exp(exponents[j]) * running.tau[j] * running.tau[j] / 6) << j;
}

TEST(InstantaneousDistribution, SiteTypesAndTotalsAtTheirBounds)
{
    auto world = World{}.bounds(missing, 0.5);
    world.host();
    const struct {
        const char* name;
        double total_before;
        Values amounts;
        bool first_column, second_column;  // they change
        Values weights;
        bool composite;  // it changes
    } cases[] = {
        {"no sites", 3, {}, false, false, {1, 2, 3}, false},
        {"sum below the bound", 3, {0.2, 0.2}, false, false, {1, 2, 3}, false},
        {"sum at the bound, each below it", 3, {0.25, 0.25}, false, false, {1, 2, 3.5}, true},
        {"one site at the bound", 3, {0.5, 0.25}, true, false, {1.5, 2, 3.75}, true},
        {"one site above the bound", 3, {0.25, 2}, false, true, {1, 4, 5.25}, true},
        {"new total of exactly 0", -2, {2, 0}, false, false, {3, 2, 0}, false},
        {"negative new total", -4, {2, 0}, true, false, {3, 2, -2}, false},
        {"new total at the bound", -1, {1.5, 0}, true, false, {2.5, 2, 0.5}, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Running running;
        running.weights = {1, 2, c.total_before};
        running.columns = {1, 2, 3, 4};
        running.add(c.amounts);
        EXPECT_EQ(running.columns[0] != 1 && running.columns[1] != 2, c.first_column);
        EXPECT_EQ(running.columns[2] != 3 && running.columns[3] != 4, c.second_column);
        EXPECT_EQ(running.weights, c.weights);
        EXPECT_EQ(running.composite[1], c.composite ? running.columns[1] + running.columns[3] : -7);
    }
    Running no_points;
    no_points.x = {};
    no_points.add({2, 1});
    EXPECT_EQ(no_points.weights, (Values{2, 1, 3}));
    EXPECT_EQ(no_points.composite, (Values{-7, -7}));
}

}  // namespace
