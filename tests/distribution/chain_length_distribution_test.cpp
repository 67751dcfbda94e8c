#include <gtest/gtest.h>
#include <polyprops/polyprops.h>

#include <cfloat>
#include <cmath>
#include <limits>

#include "support/guarded.h"
#include "support/trap_floating_point.h"
#include "support/world.h"

namespace {

using support::GuardedReals;
using support::TrapFloatingPoint;
using support::World;
using Int = std::int64_t;
using Reals = std::vector<double>;

constexpr double infinity = std::numeric_limits<double>::infinity();

Reals grid(Int n, double longest_chain)
{
    const Int m = 0;
    GuardedReals x(static_cast<std::size_t>(n)), weights(1), composite(static_cast<std::size_t>(n)), table(1);
    POLY_CSDINI(&n, &m, x, &longest_chain, weights, composite, table);
    EXPECT_TRUE(x.fence_holds() && table.untouched());
    return x.values();
}

TEST(ChainLengthGrid, IsLogarithmicWholeAndIncreasing)
{
    const struct {
        Int n;
        double longest_chain;
        Reals expected;
    } cases[] = {
        {5, 1e5, {10, 100, 1000, 10000, 100000}},
        {10, 10, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
        {4, 50.5, {2, 7, 18, 50}},
        {4, 0.5, {1, 2, 3, 4}},
        {3, 0, {1, 2, 3}},
        {3, -10, {1, 2, 3}},
        {3, infinity, {1, 2, 3}},
        {3, std::nan(""), {1, 2, 3}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(grid(c.n, c.longest_chain), c.expected) << "longest " << c.longest_chain;
    const TrapFloatingPoint trap;
    for (const double longest_chain : {DBL_MIN, 1e-3, 1.0, 7.5, 1e6, DBL_MAX}) {
        const Reals x = grid(200, longest_chain);
        for (std::size_t k = 0; k < x.size(); ++k) {
            EXPECT_EQ(x[k], std::trunc(x[k]));
            EXPECT_GT(x[k], k == 0 ? 0 : x[k - 1]);
        }
        EXPECT_TRUE(std::isfinite(x.back()));
    }
}

TEST(ChainLengthGrid, ClearsWhatDistributionsAccumulateIn)
{
    const struct {
        Int n, m;
        std::size_t weights, composite, table;  // cleared words of each
    } cases[] = {{2, 3, 4, 2, 6}, {2, 0, 1, 2, 0}, {0, 3, 4, 0, 0}, {-1, 3, 4, 0, 0}, {0, 0, 1, 0, 0}};
    const double longest_chain = 100;
    for (const auto& c : cases) {
        GuardedReals x(2), weights(4), composite(2), table(6);
        POLY_CSDINI(&c.n, &c.m, x, &longest_chain, weights, composite, table);
        const auto cleared = [](const GuardedReals& words, std::size_t count) {
            Reals expected(words.values().size(), GuardedReals::sentinel);
            std::fill_n(expected.begin(), count, 0.0);
            return words.values() == expected && words.fence_holds();
        };
        SCOPED_TRACE(testing::Message() << "n " << c.n << ", m " << c.m);
        EXPECT_TRUE(cleared(weights, c.weights));
        EXPECT_TRUE(cleared(composite, c.composite));
        EXPECT_TRUE(cleared(table, c.table));
        EXPECT_EQ(x.untouched(), c.n < 1);
    }
}

TEST(DistributionMixing, WeighsByAmountAboveTheZeroBound)
{
    auto world = World{}.bounds(1e35, 0.25);
    world.host();
    const struct {
        const char* name;
        Int n;
        double w1, w2;
        Reals expected;
    } cases[] = {
        {"weighted mean", 2, 1, 3, {2.5, 40}},
        {"one weight of 0 keeps the other", 2, 0, 3, {3, 50}},
        {"the zero bound itself mixes nothing", 2, 0.125, 0.125, {}},
        {"just above it does", 2, 0.125, 0.125 * (1 + 2 * DBL_EPSILON), {2, 30}},
        {"negative total", 2, -3, 1, {}},
        {"no points", 0, 1, 3, {}},
    };
    const TrapFloatingPoint trap;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const Reals y1{1, 10}, y2{3, 50};
        GuardedReals y(2);
        double w = -1;
        POLY_CSDADD(&c.n, y1.data(), &c.w1, y2.data(), &c.w2, y, &w);
        EXPECT_EQ(w, c.w1 + c.w2);
        EXPECT_TRUE(y.fence_holds());
        EXPECT_EQ(y.untouched(), c.expected.empty());
        for (std::size_t k = 0; k < c.expected.size(); ++k)
            EXPECT_NEAR(y(static_cast<Int>(k) + 1), c.expected[k], 1e-13 * c.expected[k]);
    }
    // Results may overwrite what they are made from.
    Reals y{1, 10};
    const Reals other{3, 50};
    double weight = 1;
    const double three = 3;
    const Int n = 2;
    POLY_CSDADD(&n, other.data(), &three, y.data(), &weight, y.data(), &weight);
    EXPECT_EQ(y, (Reals{2.5, 40}));
    EXPECT_EQ(weight, 4);
}

// Running distributions of up to two site types on two grid points.
struct Running {
    Reals tau{0.25, 0.5}, beta{0, 0}, x{2, 4}, weights{0, 0, 0}, composite{-7, -7}, columns{0, 0, 0, 0};

    void add(const Reals& amounts, Int mode = 0)
    {
        const auto sites = static_cast<Int>(amounts.size());
        const auto n = static_cast<Int>(x.size());
        POLY_CSDCAL(&n, &sites, &mode, tau.data(), beta.data(), amounts.data(), x.data(), weights.data(),
                    composite.data(), columns.data());
    }
    bool operator==(const Running&) const = default;
};

TEST(InstantaneousDistribution, FirstIncrementIsShareOfEachSite)
{
    auto world = World{};
    world.host();
    const TrapFloatingPoint trap;
    Running running;
    running.beta = {0, 0.5};
    running.add({3, 1});
    // s = 0.25 and 1; the second site couples chains: 0.5·x·0.5·1 + 0.5 is 1 and 1.5.
    const Reals expected{std::exp(-0.5) * 2 * 0.25 * 0.25 * 3 / 4, std::exp(-1.0) * 4 * 0.25 * 0.25 * 3 / 4,
                         std::exp(-2.0) * 2 / 4, std::exp(-4.0) * 4 * 1.5 / 4};
    EXPECT_EQ(running.columns, expected);
    EXPECT_EQ(running.composite, (Reals{expected[0] + expected[2], expected[1] + expected[3]}));
    EXPECT_EQ(running.weights, (Reals{3, 1, 4}));

    const Running once = running;
    running.add({3, 1});
    EXPECT_EQ(running.weights, (Reals{6, 2, 8}));
    for (std::size_t e = 0; e < 4; ++e) EXPECT_NEAR(running.columns[e], once.columns[e], 1e-16);
}

TEST(InstantaneousDistribution, LowestBitOfTheModeMultipliesByLength)
{
    auto world = World{};
    world.host();
    Running even, odd;
    even.add({1, 1}, 2);
    odd.add({1, 1}, -1);
    for (std::size_t e = 0; e < 4; ++e) EXPECT_DOUBLE_EQ(odd.columns[e], even.columns[e] * odd.x[e % 2]);
    Running three = Running{}, zero = Running{};
    three.add({1, 1}, 3);
    zero.add({1, 1}, 0);
    EXPECT_EQ(three, odd);
    EXPECT_EQ(zero, even);
}

TEST(InstantaneousDistribution, ExponentIsLimitedOnBothSides)
{
    auto world = World{};
    world.host();
    const struct {
        double tau, exponent;
    } cases[] = {{249.5, -249.5}, {250, -250},   {std::nextafter(250, 251), -250},
                 {1e6, -250},     {-80.5, 80.5}, {-80.59, 80.59},
                 {-81, 80.59},    {-1e6, 80.59}};
    const TrapFloatingPoint trap;
    for (const auto& c : cases) {
        Running running;
        running.tau = {c.tau, 1};
        running.x = {1, 2};
        running.add({1});
        EXPECT_EQ(running.columns[0], std::exp(c.exponent) * c.tau * c.tau) << "tau " << c.tau;
    }
}

TEST(InstantaneousDistribution, IncrementsBelowTheZeroBoundChangeNothing)
{
    auto world = World{}.bounds(1e35, 0.5);
    world.host();
    const struct {
        const char* name;
        Reals amounts;
        bool first_changes, second_changes;
    } cases[] = {
        {"no sites", {}, false, false},
        {"sum below the bound", {0.2, 0.2}, false, false},
        {"sum at the bound, each below it", {0.25, 0.25}, false, false},
        {"one site at the bound", {0.5, 0.25}, true, false},
        {"one site above the bound", {0.25, 2}, false, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Running running;
        running.weights = {1, 2, 3};
        running.columns = {1, 2, 3, 4};
        const Running before = running;
        running.add(c.amounts);
        EXPECT_EQ(running.columns[0] != 1 && running.columns[1] != 2, c.first_changes);
        EXPECT_EQ(running.columns[2] != 3 && running.columns[3] != 4, c.second_changes);
        EXPECT_EQ(running.weights[0], 1 + (c.first_changes ? c.amounts[0] : 0));
        EXPECT_EQ(running.weights[1], 2 + (c.second_changes ? c.amounts[1] : 0));
        double added = 0;
        for (const double amount : c.amounts) added += amount;
        if (added < 0.5) {
            EXPECT_EQ(running, before);
            continue;
        }
        EXPECT_EQ(running.weights[2], 3 + added);
        EXPECT_EQ(running.composite[1], running.columns[1] + running.columns[3]);
    }
}

TEST(InstantaneousDistribution, TotalsThatVanishLeaveTheComposite)
{
    auto world = World{};
    world.host();
    const TrapFloatingPoint trap;
    Running exactly_zero;
    exactly_zero.weights = {0, 0, -2};
    exactly_zero.columns = {1, 2, 3, 4};
    exactly_zero.add({2, 0});
    EXPECT_EQ(exactly_zero.columns, (Reals{1, 2, 3, 4}));
    EXPECT_EQ(exactly_zero.weights, (Reals{2, 0, 0}));
    EXPECT_EQ(exactly_zero.composite, (Reals{-7, -7}));

    Running negative;
    negative.weights = {0, 0, -4};
    negative.columns = {1, 2, 3, 4};
    negative.add({2, 0});
    EXPECT_EQ(negative.columns[0], (std::exp(-0.5) * 2 * 0.25 * 0.25 * 2 - 4) / -2);
    EXPECT_EQ(negative.weights, (Reals{2, 0, -2}));
    EXPECT_EQ(negative.composite, (Reals{-7, -7}));

    Running no_points;
    no_points.x = {};
    no_points.add({2, 1});
    EXPECT_EQ(no_points.weights, (Reals{2, 1, 3}));
    EXPECT_EQ(no_points.columns, (Reals{0, 0, 0, 0}));
    EXPECT_EQ(no_points.composite, (Reals{-7, -7}));
}

TEST(InstantaneousDistribution, WeightFractionsSumToOneAndAverageTwiceTheMeanLength)
{
    auto world = World{};
    world.host();
    const double s = 0.01;
    Running running;
    running.x = grid(10000, -1);
    running.tau = {s};
    running.composite = Reals(10000);
    running.columns = Reals(10000);
    running.add({5});
    double mass = 0, chains = 0, weighted = 0;
    for (std::size_t k = 0; k < running.x.size(); ++k) {
        mass += running.composite[k];
        chains += running.composite[k] / running.x[k];
        weighted += running.composite[k] * running.x[k];
    }
    const double q = std::exp(-s);
    EXPECT_NEAR(mass, s * s * q / ((1 - q) * (1 - q)), 1e-12);
    EXPECT_NEAR(chains, s * s * q / (1 - q), 1e-14);
    EXPECT_NEAR(weighted / mass / (mass / chains), 1 + q, 1e-9);
}

}  // namespace
