// Tables of a component list and the set-ups for special cases.
#include "support/routine_calls.h"

using namespace support;

namespace {

using Ids = std::vector<std::string>;

constexpr Int nc = 7, kept = -5;

// Components 1 UNNAMED, 2 A, 3 W, 4 B, 5 P, 6 O, 7 U: segments apart, an oligomer U without a make-up.
World stream()
{
    auto world = World{}.segments({{"A", 100}}).conventional("W", 18).segments({{"B", 50}});
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
    const Int n = std::ssize(list);
    Values w1(nc), w2(nc);
    Tables a, b, c;
    {
        const AskedOnce once;
        call(POLY_GETPOL1, n, x, list, a.dpn, a.mwn, a.xt, a.mrf, w1, w2, nc, world.molecular_weights(),
             a.flags, a.mole, a.mass, a.nseg, a.iseg);
    }
    call(POLY_GETPOL2, n, list, b.dpn, b.mwn, b.mrf, w1, w2, nc, b.flags, b.mole, b.mass, b.nseg, b.iseg);
    b.xt = a.xt;
    EXPECT_EQ(a, b);
    const AskedOnce once;
    call(POLY_GETPOL3, n, list, nc, w1, c.nseg, c.iseg, c.flags, a.counts);
    EXPECT_EQ(std::tie(c.flags, c.iseg, c.nseg), std::tie(a.flags, a.iseg, a.nseg));
    return a;
}

TEST(Tables, HoldAveragesFractionsAndCounts)
{
    const Ints segments{2, 4, 0, 0, 0, 0, 0};
    const auto t = tables(stream(), {"P", "W", "O", "U"}, {0.25, 0.5, 0.25, 0});
    EXPECT_EQ(t.dpn, (Values{4, 1, 5, 1, 0, 0, 0}));
    EXPECT_EQ(t.mrf, (Values{87.5, 18, 70, 30, 0, 0, 0}));
    EXPECT_EQ(t.mwn, (Values{350, 18, 350, 30, 0, 0, 0}));
    EXPECT_EQ(t.xt, (Values{0.5 / 1.125, 0.5 / 1.125, 0.125 / 1.125, 0, 0, 0, 0}));
    EXPECT_EQ(std::pair(t.flags, t.iseg), std::pair(Ints{0, 0, 0, 0, 1, 1, 1}, segments));
    EXPECT_EQ(t.mole, square({{{5, 1}, 0.75}, {{5, 2}, 0.25}, {{6, 1}, 0.4}, {{6, 2}, 0.6}}));
    EXPECT_EQ(t.mass, square({{{5, 1}, 6 / 7.0}, {{5, 2}, 1 / 7.0}, {{6, 1}, 4 / 7.0}, {{6, 2}, 3 / 7.0}}));
    EXPECT_EQ(t.counts, square({{{5, 2}, 3}, {{5, 4}, 1}, {{3, 1}, 1}, {{6, 2}, 2}, {{6, 4}, 3}}));

    const auto empty = tables(stream(), {}, {});
    EXPECT_EQ(std::tuple(empty.xt, empty.counts, empty.iseg),
              std::tuple(Values(nc, 0.0), square({}), segments));

    auto no_block = stream().parameter("W", Parameter::dpn, 0.5).without_polymer_block(-3);
    const auto none = tables(no_block, {"P", "W"}, {0.5, 0.5});
    EXPECT_EQ(std::tuple(none.nseg, none.mwn, none.iseg),
              std::tuple(0, Values{700, 9, 0, 0, 0, 0, 0}, Ints(nc, 0)));
    EXPECT_EQ(std::pair(none.mole, none.counts), std::pair(square({}), square({{{3, 1}, 0.5}})));
}

TEST(SetUps, ScaleOnePolymerToItsWeight)
{
    const auto world = stream(), no_block = stream().without_polymer_block();
    const Values mw = world.molecular_weights(), weightless(nc, 0.0), zero = square({});
    const Values alone = square({{{5, 2}, 60}, {{5, 4}, 20}});
    const Values among = square({{{3, 1}, 1}, {{6, 1}, 1}, {{5, 2}, 60}, {{5, 4}, 20}});
    const struct {
        const char* name;
        World run;
        Int polymer;
        const Values& mw;
        Ints list, flags;  // flags of the listed components; others are kept
        Values scm;
        Ints segments;
        Values numbers;
        Int nseg;
    } cases[] = {
        {"listed", world, 5, mw, {3, 5, 6}, {0, 1, 0}, among, {2, 4}, {3, 1}, 2},
        {"listed first", world, 5, mw, {5}, {1}, alone, {2, 4}, {3, 1}, 2},
        {"not listed", world, 5, mw, {3}, {0}, square({{{3, 1}, 1}}), {2, 4}, {3, 1}, 2},
        {"weightless", world, 5, weightless, {5}, {1}, zero, {2, 4}, {3, 1}, 2},
        {"no segments", world, 7, mw, {7}, {1}, zero, {0, 0}, {kept, kept}, 0},
        {"no polymer block", no_block, 5, mw, {5}, {1}, zero, {kept, kept}, {kept, kept}, 0},
    };
    for (auto c : cases) {
        SCOPED_TRACE(c.name);
        c.run.host();
        Values scm(nc * nc, kept), numbers(2, kept);
        Ints flags(nc, kept), iseg(2, kept), expected_flags = flags;
        for (std::size_t i = 0; i < c.list.size(); ++i) expected_flags[c.list[i] - 1] = c.flags[i];
        Int nseg = kept;
        call(POLY_GETPMIX, c.polymer, 7000.0, std::ssize(c.list), c.list, nc, c.mw, flags, scm, nseg, iseg,
             numbers);
        EXPECT_EQ(std::tie(flags, iseg, scm, numbers, nseg),
                  std::tie(expected_flags, c.segments, c.scm, c.numbers, c.nseg));
    }
}

TEST(SetUps, GiveTrueFractionsWithOnePolymerByWeight)
{
    const std::pair<Values, Values> cases[] = {
        {{0.25, 0.5, 0, 0.25}, {0.125 / 0.75, 0.5 / 0.75, 0, 0.125 / 0.75}},
        {{0.5, 0, 0.75, 0}, {0.25, 0, 0.75, 0}},  // a weightless entry keeps its fraction
        {{0, 0, 0, 0}, {0, 0, 0, 0}},
    };
    for (const auto& [x, expected] : cases) {
        Values xt(4, kept), mwn{-1, 10, 0, -1};
        call(POLY_GETPMIX1, 2, 200.0, 4, Ints{2, 1, 3, 2}, x, xt, mwn, nullptr, Values{10, 100, 7});
        EXPECT_EQ(xt, expected);
        EXPECT_EQ(mwn, (Values{200, 10, 0, 200}));
    }
}

TEST(SetUps, BreakOnlyOligomersIntoSegments)
{
    const Values a = square({{{5, 2}, 60}, {{6, 2}, -3}, {{6, 4}, 0.25}, {{7, 2}, 9}, {{6, 1}, 8}});
    const Values a_of_o = square({{{6, 2}, 2}});
    const auto run = stream();
    const struct {
        World world;
        Ids listed;
        Values a, b;
        Ints flags, segments;
        Int nseg;
    } cases[] = {
        {run, {"P", "O", "U"}, a, square({{{5, 1}, 1}, {{6, 4}, 0.25}}), {0, 0, 0, 0, 0, 1, 1}, {2, 4}, 2},
        {run, {"O"}, a_of_o, a_of_o, {0, 0, 0, 0, 0, 1, 0}, {2, 4}, 2},
        {run, {"P", "W"}, a, square({{{5, 1}, 1}, {{3, 1}, 1}}), Ints(nc, 0), {kept, kept}, 2},
        {stream().without_polymer_block(), {"P", "O"}, a, square({}), Ints(nc, 0), {kept, kept}, 0},
    };
    for (auto c : cases) {
        c.world.host();
        Int nseg = kept;
        Ints iseg(2, kept), flags(nc, kept);
        Values b(nc * nc, kept);
        call(POLY_GETOLI, std::ssize(c.listed), c.world.indices(c.listed), nc, c.a, nseg, iseg, b, flags);
        EXPECT_EQ(std::tie(b, flags, iseg, nseg), std::tie(c.b, c.flags, c.segments, c.nseg));
    }
}

}  // namespace
