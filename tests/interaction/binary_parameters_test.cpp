#include "support/routine_calls.h"

namespace {

using namespace support;

// Value and derivative of one pair.
Values single_pair(double t, Values p, double tr, Int mode)
{
    Values r{-1, -1};
    call(POLY_TBPARA, t, p[0], p[1], p[2], p[3], p[4], tr, mode, r[0], r[1]);
    return r;
}

// The parameter array of m components with block(i, j) for each ordered pair, and the matrices made of it.
struct Pairs {
    double t;
    Int n, k, m;
    Values p = {};

    template <typename Block>
    Pairs(double temperature, Int position, Int components, Block block)
        : t(temperature), k(position), m(components)
    {
        for (Int j = 1; j <= m; ++j)
            for (Int i = 1; i <= m; ++i) {
                const Values values = block(i, j);
                n = std::ssize(values);
                p.insert(p.end(), values.begin(), values.end());
            }
    }
    template <typename Routine, typename... Rest>
    Values ask(Routine* routine, const Rest&... rest) const
    {
        GuardedReals values(static_cast<std::size_t>(m * m));
        routine(&t, &n, &k, &m, p.data(), rest.data()..., values);
        EXPECT_TRUE(values.fence_holds());
        return values.values();
    }
    // Parameters and derivatives.
    std::pair<Values, Values> kij4(const Values& rows, Int mode = 2) const
    {
        GuardedReals values(static_cast<std::size_t>(m * m)), derivatives = values;
        POLY_TBKIJ4(&t, &n, &k, &m, p.data(), values, derivatives, &mode, rows.data());
        EXPECT_TRUE(values.fence_holds() && derivatives.fence_holds());
        return {values.values(), derivatives.values()};
    }
};

// What a routine gives of the one pair whose row is selected.
template <typename Routine>
double one_pair(Routine* routine, double t, Int k, const Values& block)
{
    return Pairs(t, k, 2, [&](Int, Int) { return block; }).ask(routine, Values{1, 0}, Ints{0, 0})[2];
}

TEST(BinaryParameter, ModeSaysWhichResultsAreFormed)
{
    const Values p{1, 2, 6, 4, 8};
    const double value = 42 + std::log(2.0) * 6;
    const double slope = 38.5 / 300;  // 4 − 2/4 + 6/2 + 2·8·2 over the reference temperature
    for (const Int mode : {-1, 0, 1, 2, 3, 4})
        EXPECT_EQ(single_pair(600, p, 300, mode),
                  (Values{mode == 1 || mode == 3 ? value : 0, mode > 1 ? slope : 0}))
            << mode;
    EXPECT_EQ(single_pair(300, p, 0, 0), (Values{0, 0})) << "nothing asked, nothing divided";
    EXPECT_EQ(single_pair(300, p, -300, 2)[1], (4 - 2 - 6 - 16) / -300.0) << "no logarithm in a derivative";
}

// Terms so large that the smaller ones survive only in the right order of summation.
TEST(BinaryParameter, EveryRoutineKeepsItsOrderOfSummation)
{
    const double ln2 = std::log(2.0);
    const struct {
        Values block;
        double single, logarithm_first, logarithm_last;
    } cases[] = {{{1e17, -2e17, 1, 0, 0, 300}, ln2, 0, ln2},
                 {{1, -2e17, 0, 5e16, 0, 300}, 0, 0, 1},
                 {{0, -2e17, 1, 0, 2.5e16, 300}, 0, 0, ln2}};
    for (const auto& c : cases) {
        const Pairs pairs(600, 6, 2, [&](Int, Int) { return c.block; });
        EXPECT_EQ(single_pair(600, c.block, 300, 1)[0], c.single);
        EXPECT_EQ(pairs.ask(POLY_TBKIJ3)[2], c.logarithm_first);
        EXPECT_EQ(pairs.kij4({1, 1}).first[2], c.logarithm_first);
        EXPECT_EQ(one_pair(POLY_KIJ5, 600, 6, c.block), c.logarithm_last);
    }
}

TEST(BinaryParameterMatrix, FillsThePairsItsRoutineSelects)
{
    // At x = 1 the parameter of pair (i, j) is ij and T dK/dT is 300 ij; matrices stand column by column.
    const Pairs pairs(300, 6, 3, [](Int i, Int j) {
        const auto name = static_cast<double>(10 * i + j);
        return Values{-299 * name, 0, 0, 300 * name, 0, 300};
    });
    const Values rows1and3{0, 0, 31, 12, 0, 32, 13, 0, 0}, none(9);
    EXPECT_EQ(pairs.ask(POLY_TBKIJ3), (Values{11, 21, 31, 12, 22, 32, 13, 23, 33}));
    EXPECT_EQ(pairs.kij4({1, 0.5, 1}), std::pair(rows1and3, rows1and3));
    for (const Int mode : {0, 1, 3}) EXPECT_EQ(pairs.kij4({1, 0.5, 1}, mode), std::pair(rows1and3, none));
    const std::tuple<Values, Ints, Values> cases[] = {
        {{1, 1, 1}, {0, 0, 0}, {0, 21, 31, 12, 0, 32, 13, 23, 0}},
        {{1, std::nextafter(1, 2), 1}, {0, 0, 0}, rows1and3},
        {{1, 1, 1}, {0, -1, 0}, {0, 0, 31, 0, 0, 0, 13, 0, 0}},
        {{0, 1, 1}, {0, 0, 1}, {0, 21, 0, 0, 0, 0, 0, 0, 0}}};
    for (const auto& [rows, mask, expected] : cases) {
        EXPECT_EQ(pairs.ask(POLY_KIJ5, rows, mask), expected);
        Values slopes = pairs.ask(POLY_DKIJ5, rows, mask);
        for (double& slope : slopes) slope /= 300;
        EXPECT_EQ(slopes, expected);
    }
}

TEST(BinaryParameterMatrix, NumberOfPositionsNamesTheForm)
{
    const struct {
        const char* name;
        Int k;
        Values block;
        double value, slope;  // at twice the reference temperature
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
    EXPECT_TRUE(std::isnan(one_pair(POLY_KIJ5, 300, 0, {not_a_number, 1})));
    // The reference temperature serves as P4 too; there is no P5.
    const Pairs four(600, 4, 2, [](Int, Int) { return Values{1, 2, 0, 300}; });
    EXPECT_EQ(four.ask(POLY_TBKIJ3)[2], 602);
    EXPECT_EQ(four.kij4({1, 0}), std::pair(Values{0, 0, 602, 0}, Values{0, 0, 299.5 / 300, 0}));
    const TrapFloatingPoint trap;
    for (const auto& c : cases) {
        EXPECT_EQ(one_pair(POLY_KIJ5, 596.3, c.k, c.block), c.value) << c.name;
        EXPECT_EQ(one_pair(POLY_DKIJ5, 596.3, c.k, c.block), c.slope) << c.name;
    }
}

TEST(BinaryParameterMatrix, PairsWithoutUsableReferenceGetZero)
{
    const TrapFloatingPoint trap;
    const Values references{0.0, -0.0, infinity, -300, not_a_number, 300, 300, -infinity, 150}, none(9);
    Pairs pairs(300, 6, 3, [&](Int i, Int j) { return Values{1, 2, 3, 4, 5, references[3 * j + i - 4]}; });
    EXPECT_EQ(pairs.ask(POLY_TBKIJ3), (Values{0, 0, 0, 0, 0, 12, 12, 0, 30 + 3 * std::log(2.0)}));
    for (const Int k : {-1, 0, 7}) {
        pairs.k = k;
        EXPECT_EQ(std::pair(pairs.ask(POLY_TBKIJ3), pairs.kij4({1, 1, 1})),
                  std::pair(none, std::pair(none, none)));
    }
}

TEST(ParameterCompletion, FillsTheOrderThatIsZero)
{
    // Forward and backward entry of a pair: given, completed by symmetry, by antisymmetry.
    const Values cases[][3] = {{{0.3, 0}, {0.3, 0.3}, {0.3, -0.3}},
                               {{-0.0, 0.3}, {0.3, 0.3}, {-0.3, 0.3}},
                               {{0.3, 0.4}, {0.3, 0.4}, {0.3, 0.4}}};
    for (const auto& [given, symmetric, antisymmetric] : cases)
        for (const Int mode : {1, 2})
            for (const Int k : {-3, 1, 9}) {
                // Two positions of components (1, 1), (2, 1), (1, 2), (2, 2); the diagonal holds 0 and 7.
                GuardedReals p{0, 7, given[1], given[1], given[0], given[0], 7, 0};
                call(POLY_TBPARI, 2, 2, p, k, mode);
                const Values& first = mode == 1 || k < 1 ? symmetric : antisymmetric;
                const Values& second = mode == 1 || k < 2 ? symmetric : antisymmetric;
                EXPECT_EQ(p.values(), (Values{0, 7, first[1], second[1], first[0], second[0], 7, 0}))
                    << given[0] << ", " << given[1] << ", mode " << mode << ", k " << k;
            }
    for (const auto& p : {Values{7, 0, not_a_number, 7}, {7, not_a_number, 0, 7}}) {
        Values completed = p;
        call(POLY_TBPARI, 1, 2, completed, 1, 1);
        EXPECT_TRUE(std::isnan(completed[1]) && std::isnan(completed[2])) << "not a number counts as given";
    }
}

}  // namespace
