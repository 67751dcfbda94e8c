#include <gtest/gtest.h>
#include <polyprops/polyprops.h>

#include <cmath>
#include <limits>

#include "support/guarded.h"
#include "support/trap_floating_point.h"

namespace {

using support::GuardedReals;
using support::TrapFloatingPoint;
using Int = std::int64_t;
using Reals = std::vector<double>;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

struct Both {
    double value, derivative;
    bool operator==(const Both&) const = default;
};

Both single_pair(double t, const Reals& p, double tr, Int mode)
{
    Both result{-1, -1};
    POLY_TBPARA(&t, &p[0], &p[1], &p[2], &p[3], &p[4], &tr, &mode, &result.value, &result.derivative);
    return result;
}

// The parameter array of m components, every pair's block made by block(i, j).
template <typename Block>
Reals pairs(Int m, Block block)
{
    Reals p;
    for (Int j = 1; j <= m; ++j)
        for (Int i = 1; i <= m; ++i)
            for (const double value : block(i, j)) p.push_back(value);
    return p;
}

Reals tbkij3(double t, Int n, Int k, Int m, const Reals& p)
{
    GuardedReals values(static_cast<std::size_t>(m * m));
    POLY_TBKIJ3(&t, &n, &k, &m, p.data(), values);
    EXPECT_TRUE(values.fence_holds());
    return values.values();
}

std::pair<Reals, Reals> tbkij4(double t, Int n, Int k, Int m, const Reals& p, const Reals& selector,
                               Int mode = 2)
{
    GuardedReals values(static_cast<std::size_t>(m * m)), derivatives(static_cast<std::size_t>(m * m));
    POLY_TBKIJ4(&t, &n, &k, &m, p.data(), values, derivatives, &mode, selector.data());
    EXPECT_TRUE(values.fence_holds() && derivatives.fence_holds());
    return {values.values(), derivatives.values()};
}

template <typename Routine>
Reals selected(Routine* routine, double t, Int n, Int k, Int m, const Reals& p, const Reals& selector,
               const std::vector<Int>& mask)
{
    GuardedReals values(static_cast<std::size_t>(m * m));
    routine(&t, &n, &k, &m, p.data(), selector.data(), mask.data(), values);
    EXPECT_TRUE(values.fence_holds());
    return values.values();
}

// Element (1, 2) of two components of which only the first row is selected.
template <typename Routine>
double one_pair(Routine* routine, double t, Int k, const Reals& block)
{
    const auto n = static_cast<Int>(block.size());
    return selected(routine, t, n, k, 2, pairs(2, [&](Int, Int) { return block; }), {1, 0}, {0, 0})[2];
}

TEST(BinaryParameter, ModeSaysWhichResultsAreFormed)
{
    const Reals p{1, 2, 0, 4, 8};
    const double slope = 35.5 / 300;  // 4 − 2/4 + 2·8·2 over the reference temperature
    const struct {
        Int mode;
        Both expected;
    } cases[] = {{-1, {0, 0}}, {0, {0, 0}}, {1, {42, 0}}, {2, {0, slope}}, {3, {42, slope}}, {4, {0, slope}}};
    for (const auto& c : cases) EXPECT_EQ(single_pair(600, p, 300, c.mode), c.expected) << "mode " << c.mode;
    const TrapFloatingPoint trap;
    EXPECT_EQ(single_pair(300, p, 0, 0), (Both{0, 0})) << "nothing asked, nothing divided";
    EXPECT_EQ(single_pair(300, p, -300, 2).derivative, (4 - 2 - 16) / -300.0)
        << "no logarithm in a derivative";
}

// Terms so large that the smaller ones survive only in the right order of summation.
TEST(BinaryParameter, EveryRoutineKeepsItsOrderOfSummation)
{
    const double ln2 = std::log(2.0);
    const struct {
        Reals p;
        double single, logarithm_first, logarithm_last;
    } cases[] = {
        {{1e17, -2e17, 1, 0, 0}, ln2, 0, ln2},
        {{1, -2e17, 0, 5e16, 0}, 0, 0, 1},
        {{0, -2e17, 1, 0, 2.5e16}, 0, 0, ln2},
    };
    for (const auto& c : cases) {
        Reals block = c.p;
        block.push_back(300);
        const Reals p = pairs(2, [&](Int, Int) { return block; });
        EXPECT_EQ(single_pair(600, c.p, 300, 1).value, c.single);
        EXPECT_EQ(tbkij3(600, 6, 6, 2, p), Reals(4, c.logarithm_first));
        EXPECT_EQ(tbkij4(600, 6, 6, 2, p, {1, 1}).first, (Reals{0, c.logarithm_first, c.logarithm_first, 0}));
        EXPECT_EQ(one_pair(POLY_KIJ5, 600, 6, block), c.logarithm_last);
    }
}

TEST(BinaryParameterMatrix, FillsThePairsItsRoutineSelects)
{
    // At x = 1 the parameter of pair (i, j) is ij and T dK/dT is 100 ij; matrices stand column by column.
    const Reals p = pairs(3, [](Int i, Int j) {
        const double name = static_cast<double>(10 * i + j);
        return Reals{-99 * name, 0, 0, 100 * name, 0, 300};
    });
    EXPECT_EQ(tbkij3(300, 6, 6, 3, p), (Reals{11, 21, 31, 12, 22, 32, 13, 23, 33}));

    const auto [values, derivatives] = tbkij4(300, 6, 6, 3, p, {1, 0.5, 1});
    EXPECT_EQ(values, (Reals{0, 0, 31, 12, 0, 32, 13, 0, 0}));
    EXPECT_EQ(derivatives, (Reals{0, 0, 3100 / 300.0, 4, 0, 3200 / 300.0, 1300 / 300.0, 0, 0}));
    for (const Int mode : {0, 1, 3})
        EXPECT_EQ(tbkij4(300, 6, 6, 3, p, {1, 1, 1}, mode).second, Reals(9, 0.0));

    const struct {
        Reals selector;
        std::vector<Int> mask;
        Reals expected;
    } cases[] = {
        {{1, 1, 1}, {0, 0, 0}, {0, 21, 31, 12, 0, 32, 13, 23, 0}},
        {{1, std::nextafter(1, 2), 1}, {0, 0, 0}, {0, 0, 31, 12, 0, 32, 13, 0, 0}},
        {{1, 1, 1}, {0, -1, 0}, {0, 0, 31, 0, 0, 0, 13, 0, 0}},
        {{0, 1, 1}, {0, 0, 1}, {0, 21, 0, 0, 0, 0, 0, 0, 0}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(selected(POLY_KIJ5, 300, 6, 6, 3, p, c.selector, c.mask), c.expected);
        Reals slopes = selected(POLY_DKIJ5, 300, 6, 6, 3, p, c.selector, c.mask);
        for (double& slope : slopes) slope /= 100;
        EXPECT_EQ(slopes, c.expected);
    }
}

TEST(BinaryParameterMatrix, NumberOfPositionsNamesTheForm)
{
    const double twice = 596.3;  // of 298.15 K
    const struct {
        const char* name;
        Int k;
        Reals block;
        double value, slope;
    } cases[] = {
        {"linear", 0, {1, 3}, 7, 6},
        {"a linear coefficient above 1e30 was not given", 0, {1, 1e31}, 1, 0},
        {"nor was the constant", 0, {1e31, 3}, 6, 6},
        {"exactly 1e30 was given", 0, {1e30, 1e30}, 1e30 + 2e30, 2e30},
        {"reciprocal", 0, {1, 3, 8, 99}, 11, 2},
        {"general form, reference at its last position", 6, {1, 2, 0, 4, 8, 298.15}, 42, 71},
        {"one position: the constant", 0, {5}, 5, 0},
        {"three positions: no P4 and P5", 0, {5, 2, 0}, 6, -1},
        {"reference beyond the positions: no parameter", 7, {1, 2, 0, 4, 8, 298.15}, 0, 0},
        {"negative reference position: no parameter", -1, {1, 2, 0, 4, 8, 298.15}, 0, 0},
    };
    EXPECT_TRUE(std::isnan(one_pair(POLY_KIJ5, twice, 0, {not_a_number, 1})));
    const TrapFloatingPoint trap;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(one_pair(POLY_KIJ5, twice, c.k, c.block), c.value);
        EXPECT_EQ(one_pair(POLY_DKIJ5, twice, c.k, c.block), c.slope);
    }
    EXPECT_EQ(one_pair(POLY_DKIJ5, 600, 6, {0, 0, 7, 0, 0, 300}), 7) << "T dK/dT of a logarithm";
}

TEST(BinaryParameterMatrix, PairsWithoutUsableReferenceGetZero)
{
    const TrapFloatingPoint trap;
    const Reals references{0.0, -0.0, infinity, -300, not_a_number, 300, 300, -infinity, 150};
    const Reals p = pairs(3, [&](Int i, Int j) {
        return Reals{1, 2, 3, 4, 5, references[static_cast<std::size_t>(3 * (j - 1) + i - 1)]};
    });
    EXPECT_EQ(tbkij3(300, 6, 6, 3, p), (Reals{0, 0, 0, 0, 0, 12, 12, 0, 30 + 3 * std::log(2.0)}));
    for (const Int k : {-1, 0, 7}) {
        EXPECT_EQ(tbkij3(300, 6, k, 3, p), Reals(9, 0.0)) << "k = " << k;
        EXPECT_EQ(tbkij4(300, 6, k, 3, p, {1, 1, 1}), std::pair(Reals(9, 0.0), Reals(9, 0.0))) << "k = " << k;
    }
    EXPECT_EQ(tbkij3(-300, 6, 6, 3, p)[5], 0.0);
}

// What one pair after the other shares must not show: every pair alone gives the same bits.
TEST(BinaryParameterMatrix, NeighboursDoNotChangeBits)
{
    const Reals references{300, 300, 299, 300, 298.15, 298.15, 298.15, 300, 300};
    const auto block = [&](Int i, Int j) {
        const auto at = static_cast<double>(3 * (j - 1) + i);
        return Reals{0.1 * at,  -0.7 / at, 1.3,
                     0.01 * at, -0.003,    references[static_cast<std::size_t>(at) - 1]};
    };
    const Reals p = pairs(3, block);
    const Reals all3 = tbkij3(341.7, 6, 6, 3, p);
    const Reals all5 = selected(POLY_KIJ5, 341.7, 6, 6, 3, p, {1, 1, 1}, {0, 0, 0});
    const auto [all4, slopes4] = tbkij4(341.7, 6, 6, 3, p, {1, 1, 1});
    const Reals slopes5 = selected(POLY_DKIJ5, 341.7, 6, 6, 3, p, {1, 1, 1}, {0, 0, 0});
    for (Int i = 1; i <= 3; ++i)
        for (Int j = 1; j <= 3; ++j) {
            const auto at = static_cast<std::size_t>(3 * (j - 1) + i - 1);
            EXPECT_EQ(all3[at], tbkij3(341.7, 6, 6, 1, block(i, j))[0]);
            if (i == j) continue;
            EXPECT_EQ(all4[at], all3[at]);
            EXPECT_EQ(slopes4[at], single_pair(341.7, block(i, j), references[at], 2).derivative);
            EXPECT_EQ(all5[at], one_pair(POLY_KIJ5, 341.7, 6, block(i, j)));
            EXPECT_EQ(slopes5[at], one_pair(POLY_DKIJ5, 341.7, 6, block(i, j)));
            EXPECT_NEAR(slopes5[at], 341.7 * slopes4[at], 1e-15);
        }
}

TEST(BinaryParameterMatrix, NoComponentsWriteNothing)
{
    const double t = 300;
    const Int n = 6, mode = 2;
    for (const Int m : {0, -2}) {
        GuardedReals values(4), derivatives(4);
        POLY_TBKIJ3(&t, &n, &n, &m, nullptr, values);
        POLY_TBKIJ4(&t, &n, &n, &m, nullptr, values, derivatives, &mode, nullptr);
        POLY_KIJ5(&t, &n, &n, &m, nullptr, nullptr, nullptr, values);
        POLY_DKIJ5(&t, &n, &n, &m, nullptr, nullptr, nullptr, derivatives);
        EXPECT_TRUE(values.untouched() && derivatives.untouched());
    }
}

TEST(ParameterCompletion, FillsTheOrderThatIsZero)
{
    const struct {
        const char* name;
        double forward, backward, symmetric_forward, symmetric_backward, antisymmetric_forward,
            antisymmetric_backward;
    } cases[] = {
        {"backward missing", 0.3, 0, 0.3, 0.3, 0.3, -0.3},
        {"forward missing", 0, 0.3, 0.3, 0.3, -0.3, 0.3},
        {"negative zero is zero", -0.0, 0.3, 0.3, 0.3, -0.3, 0.3},
        {"both given", 0.3, 0.4, 0.3, 0.4, 0.3, 0.4},
        {"none given", 0, 0, 0, 0, 0, 0},
    };
    for (const auto& c : cases)
        for (const Int mode : {1, 2})
            for (const Int k : {-3, 0, 1, 2, 9}) {
                // Three components, two positions: pair (1, 3) is the case, every diagonal holds 7.
                const Int n = 2, m = 3;
                GuardedReals p(18);
                for (Int e = 1; e <= 18; ++e) p(e) = 0;
                for (const Int diagonal : {1, 2, 9, 10, 17, 18}) p(diagonal) = 7;
                for (Int l = 1; l <= 2; ++l) p(12 + l) = c.forward, p(4 + l) = c.backward;
                POLY_TBPARI(&n, &m, p, &k, &mode);
                for (Int l = 1; l <= 2; ++l) {
                    const bool symmetric = mode == 1 || l > k;
                    SCOPED_TRACE(testing::Message()
                                 << c.name << ", mode " << mode << ", k " << k << ", l " << l);
                    EXPECT_EQ(p(12 + l), symmetric ? c.symmetric_forward : c.antisymmetric_forward);
                    EXPECT_EQ(p(4 + l), symmetric ? c.symmetric_backward : c.antisymmetric_backward);
                    EXPECT_TRUE(p(l) == 7 && p(8 + l) == 7 && p(16 + l) == 7);
                }
                EXPECT_TRUE(p.fence_holds());
            }
    const Int n = 1, m = 2;
    GuardedReals p{7, 0, not_a_number, 7};
    POLY_TBPARI(&n, &m, p, &n, &n);
    EXPECT_TRUE(std::isnan(p(2)) && std::isnan(p(3))) << "not a number counts as given";
}

}  // namespace
