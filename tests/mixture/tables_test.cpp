// Tables of a component list and the set-ups for special cases.
#include "polyprops/polyprops.h"
#include "support/asked_once.h"
#include "support/world.h"

using namespace support;

namespace {

using Values = std::vector<double>;
using Ints = std::vector<Int>;
using Ids = std::vector<std::string>;

constexpr Int nc = 7, kept = -5;

// Components 1 UNNAMED, 2 A, 3 W, 4 B, 5 P, 6 O, 7 U: segments apart, an oligomer U without a make-up.
World stream(double solvent_weight = 18)
{
    auto world = World{}.segments({{"A", 100}}).conventional("W", solvent_weight).segments({{"B", 50}});
    return world.polymer("P", {{"ZMOM", 2}, {"FMOM", 8}, {"SFLOW", {6, 2}}}, 700)
        .oligomer("O", {{"A", 2}, {"B", 3}}, 175)
        .component("U", ComponentClass::oligomer, 30);
}

// A square matrix by components, zero but for {row, column} = value.
Values square(const std::map<std::pair<Int, Int>, double>& elements)
{
    Values matrix(nc * nc, 0.0);
    for (const auto& [at, value] : elements) matrix.at((at.second - 1) * nc + at.first - 1) = value;
    return matrix;
}

struct Tables {
    Values dpn = Values(nc, kept), mwn = dpn, xt = dpn, mrf = dpn;
    Values mole = Values(nc * nc, kept), mass = mole, counts = mole;
    Ints flags = Ints(nc, kept), iseg = flags;
    Int nseg = kept;
    bool operator==(const Tables&) const = default;
};

// Outputs of the three table routines; what two of them give must agree.
Tables tables(World world, const Ids& ids, const Values& x)
{
    world.host();
    const auto list = world.indices(ids);
    const auto weights = world.molecular_weights();
    const Int n = std::ssize(list);
    Values w1(nc), w2(nc);
    Tables a, b, c;
    {
        const AskedOnce once;
        POLY_GETPOL1(&n, x.data(), list.data(), a.dpn.data(), a.mwn.data(), a.xt.data(), a.mrf.data(),
                     w1.data(), w2.data(), &nc, weights.data(), a.flags.data(), a.mole.data(), a.mass.data(),
                     &a.nseg, a.iseg.data());
    }
    POLY_GETPOL2(&n, list.data(), b.dpn.data(), b.mwn.data(), b.mrf.data(), w1.data(), w2.data(), &nc,
                 b.flags.data(), b.mole.data(), b.mass.data(), &b.nseg, b.iseg.data());
    b.xt = a.xt;
    EXPECT_EQ(a, b);
    const AskedOnce once;
    POLY_GETPOL3(&n, list.data(), &nc, w1.data(), &c.nseg, c.iseg.data(), c.flags.data(), c.counts.data());
    EXPECT_EQ(std::tie(c.flags, c.iseg, c.nseg), std::tie(a.flags, a.iseg, a.nseg));
    a.counts = c.counts;
    return a;
}

TEST(Tables, HoldAveragesFractionsAndCounts)
{
    const auto t = tables(stream(), {"P", "W", "O", "U"}, {0.25, 0.5, 0.25, 0});
    EXPECT_EQ(t.dpn, (Values{4, 1, 5, 1, 0, 0, 0}));
    EXPECT_EQ(t.mrf, (Values{87.5, 18, 70, 30, 0, 0, 0}));
    EXPECT_EQ(t.mwn, (Values{350, 18, 350, 30, 0, 0, 0}));
    EXPECT_EQ(t.xt, (Values{0.5 / 1.125, 0.5 / 1.125, 0.125 / 1.125, 0, 0, 0, 0}));
    EXPECT_EQ(t.flags, (Ints{0, 0, 0, 0, 1, 1, 1}));
    EXPECT_EQ(t.iseg, (Ints{2, 4, 0, 0, 0, 0, 0}));
    EXPECT_EQ(t.mole, square({{{5, 1}, 0.75}, {{5, 2}, 0.25}, {{6, 1}, 0.4}, {{6, 2}, 0.6}}));
    EXPECT_EQ(t.mass, square({{{5, 1}, 6 / 7.0}, {{5, 2}, 1 / 7.0}, {{6, 1}, 4 / 7.0}, {{6, 2}, 3 / 7.0}}));
    EXPECT_EQ(t.counts, square({{{5, 2}, 3}, {{5, 4}, 1}, {{3, 1}, 1}, {{6, 2}, 2}, {{6, 4}, 3}}));
}

TEST(Tables, KeepFractionsThatNothingScales)
{
    const auto weightless = stream(0);
    EXPECT_EQ(tables(weightless, {"P", "W"}, {0.5, 0.25}).xt, (Values{0.8, 0.2, 0, 0, 0, 0, 0}));
    EXPECT_EQ(tables(weightless, {"P", "W"}, {0, 0}).xt, Values(nc, 0.0));
    const auto empty = tables(weightless, {}, {});
    EXPECT_EQ(empty.xt, Values(nc, 0.0));
    EXPECT_EQ(empty.counts, square({}));
    EXPECT_EQ(empty.iseg, (Ints{2, 4, 0, 0, 0, 0, 0}));
}

TEST(Tables, OfAHostWithoutPolymerData)
{
    const auto t = tables(stream().parameter("W", Parameter::dpn, 0.5).without_polymer_block(-3), {"P", "W"},
                          {0.5, 0.5});
    EXPECT_EQ(t.nseg, 0);
    EXPECT_EQ(t.mwn, (Values{700, 9, 0, 0, 0, 0, 0}));
    EXPECT_EQ(t.mole, square({}));
    EXPECT_EQ(t.counts, square({{{3, 1}, 0.5}}));
    EXPECT_EQ(t.iseg, Ints(nc, 0));
}

TEST(SetUps, ScaleOnePolymerToItsWeight)
{
    const auto world = stream(), no_block = stream().without_polymer_block();
    const double weight = 7000;
    const Values mw = world.molecular_weights(), weightless(nc, 0.0);
    const Values scaled = square({{{3, 1}, 1}, {{6, 1}, 1}, {{5, 2}, 60}, {{5, 4}, 20}});
    const struct {
        const char* name;
        World run;
        Int polymer;
        const Values& mw;
        Ints list;
        std::map<Int, Int> flags;  // by component; others are kept
        Values scm;
        Ints segments;
        Values numbers;
        Int nseg;
    } cases[] = {
        {"listed", world, 5, mw, {3, 5, 6}, {{3, 0}, {5, 1}, {6, 0}}, scaled, {2, 4}, {3, 1}, 2},
        {"listed first",
         world,
         5,
         mw,
         {5},
         {{5, 1}},
         square({{{5, 2}, 60}, {{5, 4}, 20}}),
         {2, 4},
         {3, 1},
         2},
        {"not listed", world, 5, mw, {3}, {{3, 0}}, square({{{3, 1}, 1}}), {2, 4}, {3, 1}, 2},
        {"weightless", world, 5, weightless, {5}, {{5, 1}}, square({}), {2, 4}, {3, 1}, 2},
        {"no segments", world, 7, mw, {7}, {{7, 1}}, square({}), {0, 0}, {kept, kept}, 0},
        {"no polymer block", no_block, 5, mw, {5}, {{5, 1}}, square({}), {kept, kept}, {kept, kept}, 0},
    };
    for (auto c : cases) {
        SCOPED_TRACE(c.name);
        c.run.host();
        Values scm(nc * nc, kept), numbers(2, kept);
        Ints flags(nc, kept), iseg(2, kept), expected_flags = flags;
        for (const auto& [component, flag] : c.flags) expected_flags[component - 1] = flag;
        Int nseg = kept;
        const Int n = std::ssize(c.list);
        POLY_GETPMIX(&c.polymer, &weight, &n, c.list.data(), &nc, c.mw.data(), flags.data(), scm.data(),
                     &nseg, iseg.data(), numbers.data());
        EXPECT_EQ(std::tie(flags, iseg, scm, numbers, nseg),
                  std::tie(expected_flags, c.segments, c.scm, c.numbers, c.nseg));
    }
}

TEST(SetUps, GiveTrueFractionsWithOnePolymerByWeight)
{
    const Int j = 2, n = 4;
    const double weight = 200, mw[] = {10, 100, 7};
    const Ints list{2, 1, 3, 2};
    const std::pair<Values, Values> cases[] = {
        {{0.25, 0.5, 0, 0.25}, {0.125 / 0.75, 0.5 / 0.75, 0, 0.125 / 0.75}},
        {{0.5, 0, 0.75, 0}, {0.25, 0, 0.75, 0}},  // a weightless entry keeps its fraction
        {{0, 0, 0, 0}, {0, 0, 0, 0}},
    };
    for (const auto& [x, expected] : cases) {
        Values xt(4, kept), mwn{-1, 10, 0, -1};
        POLY_GETPMIX1(&j, &weight, &n, list.data(), x.data(), xt.data(), mwn.data(), nullptr, mw);
        EXPECT_EQ(xt, expected);
        EXPECT_EQ(mwn, (Values{200, 10, 0, 200}));
    }
}

TEST(SetUps, BreakOnlyOligomersIntoSegments)
{
    const Values a = square({{{5, 2}, 60}, {{6, 2}, -3}, {{6, 4}, 0.25}, {{7, 2}, 9}, {{6, 1}, 8}});
    const struct {
        World world;
        Ids listed;
        Values b;
        Ints flags, segments;
        Int nseg;
    } cases[] = {
        {stream(), {"P", "O", "U"}, square({{{5, 1}, 1}, {{6, 4}, 0.25}}), {0, 0, 0, 0, 0, 1, 1}, {2, 4}, 2},
        {stream(), {"P", "W"}, square({{{5, 1}, 1}, {{3, 1}, 1}}), Ints(nc, 0), {kept, kept}, 2},
        {stream().without_polymer_block(), {"P", "O"}, square({}), Ints(nc, 0), {kept, kept}, 0},
    };
    for (auto c : cases) {
        c.world.host();
        const auto list = c.world.indices(c.listed);
        const Int n = std::ssize(list);
        Int nseg = kept;
        Ints iseg(2, kept), flags(nc, kept);
        Values b(nc * nc, kept);
        POLY_GETOLI(&n, list.data(), &nc, a.data(), &nseg, iseg.data(), b.data(), flags.data());
        EXPECT_EQ(std::tie(b, flags, iseg, nseg), std::tie(c.b, c.flags, c.segments, c.nseg));
    }
}

}  // namespace
