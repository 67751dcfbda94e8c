#include <gtest/gtest.h>
#include <polyprops/polyprops.h>

#include <algorithm>
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
    };
    for (const auto& c : cases)
        EXPECT_EQ(grid(c.n, c.longest_chain), c.expected) << "longest " << c.longest_chain;
    for (const double unusable : {0.0, -10.0, infinity, std::nan("")})
        EXPECT_EQ(grid(3, unusable), (Reals{1, 2, 3})) << "longest " << unusable;
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
        std::ptrdiff_t weights, composite, table;  // cleared words of each
    } cases[] = {{2, 3, 4, 2, 6}, {2, 0, 1, 2, 0}, {0, 3, 4, 0, 0}, {-1, 3, 4, 0, 0}, {0, 0, 1, 0, 0}};
    const double longest_chain = 100;
    for (const auto& c : cases) {
        GuardedReals x(2), weights(4), composite(2), table(6);
        POLY_CSDINI(&c.n, &c.m, x, &longest_chain, weights, composite, table);
        const auto cleared = [](const Reals& words) { return std::count(words.begin(), words.end(), 0.0); };
        SCOPED_TRACE(testing::Message() << "n " << c.n << ", m " << c.m);
        EXPECT_EQ(cleared(weights.values()), c.weights);
        EXPECT_EQ(cleared(composite.values()), c.composite);
        EXPECT_EQ(cleared(table.values()), c.table);
        EXPECT_TRUE(x.untouched() == (c.n < 1) && weights.fence_holds() && table.fence_holds());
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
        Reals expected;  // untouched without one
    } cases[] = {
        {"weighted mean", 2, 1, 3, {2.5, 40}},
        {"the zero bound itself mixes nothing", 2, 0.125, 0.125, {}},
        {"just above it does", 2, 0.25 * (1 + DBL_EPSILON), 0, {1, 10}},
        {"negative total", 2, -3, 1, {}},
        {"no points", 0, 1, 3, {}},
    };
    const TrapFloatingPoint trap;
    const Reals y1{1, 10}, y2{3, 50};
    for (const auto& c : cases) {
        GuardedReals y(2);
        double w = -1;
        POLY_CSDADD(&c.n, y1.data(), &c.w1, y2.data(), &c.w2, y, &w);
        EXPECT_EQ(w, c.w1 + c.w2) << c.name;
        EXPECT_TRUE(c.expected.empty() ? y.untouched() : y.values() == c.expected && y.fence_holds())
            << c.name;
    }
    Reals y = y1;
    double weight = 1;
    const double three = 3;
    const Int n = 2;
    POLY_CSDADD(&n, y2.data(), &three, y.data(), &weight, y.data(), &weight);
    EXPECT_EQ(y, (Reals{2.5, 40})) << "results may overwrite what they are made from";
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
};

TEST(InstantaneousDistribution, FirstIncrementIsShareOfEachSiteAndItsRepetitionChangesNothing)
{
    auto world = World{};
    world.host();
    const TrapFloatingPoint trap;
    Running running;
    running.beta = {0, 1.5};
    running.add({3, 1});
    // s = 0.25 and 2; the second site couples chains: 0.5·x·1.5·2 + 0.5 is 3.5 and 6.5.
    const Reals expected{std::exp(-0.5) * 2 * 0.25 * 0.25 * 3 / 4, std::exp(-1.0) * 4 * 0.25 * 0.25 * 3 / 4,
                         std::exp(-4.0) * 2 * 2 * 3.5 / 4, std::exp(-8.0) * 4 * 2 * 6.5 / 4};
    EXPECT_EQ(running.columns, expected);
    EXPECT_EQ(running.composite, (Reals{expected[0] + expected[2], expected[1] + expected[3]}));
    EXPECT_EQ(running.weights, (Reals{3, 1, 4}));

    const Running once = running;
    for (const Int odd : {-1, 1, 3}) {
        Running gpc;
        gpc.beta = running.beta;
        gpc.add({3, 1}, odd);
        for (std::size_t e = 0; e < 4; ++e) EXPECT_DOUBLE_EQ(gpc.columns[e], once.columns[e] * once.x[e % 2]);
    }
    running.add({3, 1}, 2);
    EXPECT_EQ(running.weights, (Reals{6, 2, 8}));
    for (std::size_t e = 0; e < 4; ++e) EXPECT_NEAR(running.columns[e], once.columns[e], 1e-16);
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

TEST(InstantaneousDistribution, SiteTypesAndTotalsAtTheirBounds)
{
    auto world = World{}.bounds(1e35, 0.5);
    world.host();
    const struct {
        const char* name;
        double total_before;
        Reals amounts;
        bool first_column, second_column;  // they change
        Reals weights;
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
    const TrapFloatingPoint trap;
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
    EXPECT_EQ(no_points.weights, (Reals{2, 1, 3}));
    EXPECT_EQ(no_points.composite, (Reals{-7, -7}));
}

TEST(InstantaneousDistribution, WeightFractionsSumToOneAndCountChains)
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
    double mass = 0, chains = 0;
    for (std::size_t k = 0; k < running.x.size(); ++k) {
        mass += running.composite[k];
        chains += running.composite[k] / running.x[k];
    }
    const double q = std::exp(-s);
    EXPECT_NEAR(mass, s * s * q / ((1 - q) * (1 - q)), 1e-12);
    EXPECT_NEAR(mass / chains, 1 / (1 - q), 1e-9);
}

}  // namespace
