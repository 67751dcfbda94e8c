#include "support/routine_calls.h"

namespace {

using namespace support;

// Segments 2, 3 and 4, and the component 5 that is asked for.
const World three_segments = World{}.segments({"A", "B", "C"});
World polymer(const Attributes& attributes)
{
    return World{three_segments}.polymer("P", attributes);
}
World oligomer(const std::map<std::string, double>& counts)
{
    return World{three_segments}.oligomer("O", counts);
}

struct Case {
    const char* name;
    World world;
    Values expected;
};

// What POLY_GETSEG finds: its count, then the segments, then their counts.
Values make_up(World& world)
{
    world.host();
    Int count = -1;
    GuardedInts segments(4);
    GuardedReals counts(4);
    call(POLY_GETSEG, 1, 5, count, segments, counts);
    EXPECT_TRUE(segments.fence_holds() && counts.untouched(count + 1));
    Values all{static_cast<double>(count)};
    for (Int k = 1; k <= count; ++k) all.push_back(static_cast<double>(segments(k)));
    for (Int k = 1; k <= count; ++k) all.push_back(counts(k));
    return all;
}

TEST(SegmentsOfAComponent, AreThoseWithAPositiveAmount)
{
    Case cases[] = {
        {"no chains", polymer({{"ZMOM", 0}, {"SFLOW", {-1, 10, 4}}}), {2, 3, 4, 1, 1}},
        {"few chains", polymer({{"ZMOM", 1e-20}, {"SFLOW", {1e-20, 2e-20, 0}}}), {2, 2, 3, 1, 2}},
        {"missing flow", polymer({{"ZMOM", 1}, {"SFLOW", {0, missing, 0}}}), {1, 3, missing}},
        {"part of a segment", oligomer({{"B", 0.25}}), {1, 3, 0.25}},
        {"conventional", polymer({}).class_of("P", ComponentClass::conventional), {0}},
        {"no polymer is listed", World{three_segments}.component("P", ComponentClass::polymer), {-1}},
    };
    for (auto& c : cases) EXPECT_EQ(make_up(c.world), c.expected) << c.name;
}

// What POLY_GETPSEG makes of a list.
struct ListMakeUp {
    Int n, nout = -1;
    std::size_t room;
    GuardedReals dpn, fseg = GuardedReals(room * room);
    GuardedInts kseg = GuardedInts(room * room), out = GuardedInts(room), positions = GuardedInts(room);

    ListMakeUp(World& world, const Ints& ids, double factor = 1)
        : n(world.component_count()), room(static_cast<std::size_t>(n)), dpn(ids.size())
    {
        world.host();
        const Values factors(room, factor);
        call(POLY_GETPSEG, std::ssize(ids), ids, n, factors, dpn, kseg, fseg, nout, out, positions);
        EXPECT_TRUE(kseg.fence_holds() && fseg.fence_holds() && out.fence_holds() && positions.fence_holds());
    }
    // Amounts of the segments 2, 3 and 4.
    Values amounts(Int row) const { return {fseg(n + row), fseg(2 * n + row), fseg(3 * n + row)}; }
};

TEST(ListMakeUp, ListsSegmentsInTheOrderOfFirstAppearance)
{
    auto world = polymer({{"DPN", 10}, {"SFRAC", {0.25, 0, 0.75}}, {"SFLOW", {0, 5, 0}}}).conventional("W");
    world.polymer("Q", {{"DPN", 20}, {"SFLOW", {0, 3, 1}}}).polymer("UNLISTED").oligomer("O", {{"B", 4}});
    const ListMakeUp m(world, {5, 6, 7, 9}, 2);
    EXPECT_EQ(m.dpn.values(), (Values{10, 1, 20, 4}));
    EXPECT_EQ(m.nout, 4);
    EXPECT_EQ(m.out.values(), (Ints{2, 4, 6, 3, 0, 0, 0, 0, 0}));
    EXPECT_EQ(m.positions.values(), (Ints{0, 1, 4, 2, 0, 3, 0, 0, 0}));
    EXPECT_EQ(m.amounts(5), (Values{5, 0, 15}));
    EXPECT_EQ(m.amounts(7), (Values{0, 30, 10}));
    EXPECT_EQ(m.amounts(9), (Values{0, 8, 0}));
    EXPECT_EQ((Ints{m.kseg(5), m.kseg(9 + 5), m.kseg(18 + 5), m.kseg(6), m.kseg(8)}), (Ints{2, 2, 4, 0, -1}));
}

TEST(ListMakeUp, TakesUsableAmountsElseTheFirstSegment)
{
    auto no_block = polymer({{"SFLOW", {0, 1, 0}}});
    Case cases[] = {
        {"fractions before flows", polymer({{"SFRAC", {1, 3, 0}}, {"SFLOW", {1, 1, 1}}}), {0.25, 0.75, 0}},
        {"no flows for fractions of 0", polymer({{"SFRAC", {0, 0, 0}}, {"SFLOW", {0, 3, 0}}}), {1, 0, 0}},
        {"missing and negative flows", polymer({{"SFLOW", {missing, 3, -1}}}), {0, 1, 0}},
        {"flows below the zero bound", polymer({{"SFLOW", {1e-20, 1e-20, 0}}}), {0.5, 0.5, 0}},
        {"offset below 0", polymer({{"SFLOW", {0, 1, 0}}}).hidden_attribute("P", "SFRAC"), {1, 0, 0}},
        {"no polymer block", no_block.parameter("P", Parameter::dpn, 7).without_polymer_block(), {1, 0, 0}},
    };
    for (auto& c : cases) EXPECT_EQ(ListMakeUp(c.world, {5}).amounts(5), c.expected) << c.name;
}

// Without a usable amount the first segment of the host stands in: component 1, the last one, or none.
TEST(ListMakeUp, FindsTheFirstSegmentAndMarksUnlistedChainsAtEitherEnd)
{
    auto first = World{}.class_of("UNNAMED", ComponentClass::segment).polymer("P").polymer("Q");
    auto last = World{}.class_of("UNNAMED", ComponentClass::polymer).polymer("P").segments({"A"});
    auto none = World{}.polymer("P");
    const struct {
        World& world;
        Ints ids, kseg, out;
    } cases[] = {{first, {2}, {0, 1, -1, 0, 1, 0, 0, 0, 0}, {1, 0, 0}},
                 {last, {2, 2}, {-1, 1, 0, 0, 3, 0, 0, 0, 0}, {3, 0, 0}},
                 {none, {2}, {0, 0, 0, 0}, {2, 0}}};
    for (const auto& [world, ids, kseg, out] : cases) {
        const ListMakeUp m(world, ids);
        EXPECT_EQ(std::tuple(m.nout, m.kseg.values(), m.out.values()), std::tuple(1, kseg, out));
    }
}

TEST(ListMakeUp, OfRepeatedEntriesScalesTwiceAsksOnceAndStaysWithinTheComponents)
{
    auto world = polymer({{"DPN", 10}, {"SFLOW", {1, 0, 0}}}).conventional("W").oligomer("O", {{"A", 2}});
    world.host();
    const AskedOnce once;
    const ListMakeUp m(world, {6, 2, 5, 7, 5, 6, 6, 6, 6, 6, 6});
    EXPECT_EQ(m.amounts(5), (Values{100, 0, 0}));
    EXPECT_EQ(m.out.values(), (Ints{6, 2, 6, 6, 6, 6, 6})) << "seven components: no eighth entry";
    EXPECT_EQ(m.positions.values(), (Ints{0, 2, 0, 0, 0, 7, 0})) << "the later position";
}

TEST(OligomerInTwoColumns, BringsBothToItsMakeUpAndTheLastToTheList)
{
    auto world = oligomer({});
    const PolymerLists lists{.segments = {{2}, {3}, {4}},
                             .oligomers = {{5, {{2, 1}, {3, 1}}}, {5, {{3, 3}, {4, 1}}}}};
    world.host().set_polymer_block(lay_polymer_block(world.host().store(), lists));
    EXPECT_EQ(make_up(world), (Values{4, 2, 3, 3, 4, 1, 1, 3, 1}));
    const ListMakeUp m(world, {5});
    EXPECT_EQ(m.amounts(5), (Values{0.5, 1.5, 0.5})) << "amounts of the earlier column stay";
    EXPECT_EQ(m.out.values(), (Ints{3, 4, 0, 0, 0}));
}

TEST(RowFractions, StandAtTheComponentIndexAndKeepAVanishingSum)
{
    CountMatrix counts(4);
    counts.at(3, 1) = 99;
    const auto fractions = [&](double a, double b) {
        counts.at(3, 4) = a;
        counts.at(3, 2) = b;
        GuardedReals mole(4), mass(4);
        call(POLY_GETMFS, 4, 3, 2, Ints{4, 2}, counts, mole);
        call(POLY_GETWFS, 4, 3, Values{0, 3, 0, 1}, 2, Ints{4, 2}, counts, mass);
        return std::pair{mole.values(), mass.values()};
    };
    EXPECT_EQ(fractions(6, 2), (std::pair{Values{0, 0.25, 0, 0.75}, Values{0, 0.5, 0, 0.5}}));
    EXPECT_EQ(fractions(1e-20, 0), (std::pair{Values{0, 0, 0, 1}, Values{0, 0, 0, 1}}));
    EXPECT_EQ(fractions(-2, 2), (std::pair{Values{0, 2, 0, -2}, Values{0, 1.5, 0, -0.5}}));
}

// Of fractions (f, 1 - f) the means are 8f + 16(1 - f) and (8f + 48(1 - f)) / (f + 3(1 - f)).
TEST(SegmentMeans, FallBackFromFlowsToFractionsToEqualSharesToTheOwnProperty)
{
    const World two = World{}.segments({"A", "B"});
    const auto of = [&](const Attributes& attributes) { return World{two}.polymer("P", attributes); };
    auto listed_only = World{two}.oligomer("O", {{"A", 3}}).class_of("O", ComponentClass::conventional);
    Case cases[] = {
        {"flows", of({{"SFLOW", {3, 1}}, {"SFRAC", {0, 1}}}), {10, 12}},
        {"flows at the zero bound", of({{"SFLOW", {zero_bound, 0}}, {"SFRAC", {3, 1}}}), {12, 12}},
        {"fractions at the zero bound", of({{"SFLOW", {0, 0}}, {"SFRAC", {zero_bound, 0}}}), {12, 14}},
        {"fractions that sum to missing", of({{"SFLOW", {0, 0}}, {"SFRAC", {missing, 0}}}), {12, 14}},
        {"nothing carried", of({}), {12, 14}},
        // The missing flow is 0 in the total 1.5 but 1/2 in the mean: (1.5 · 8 + 0.5 · 16) / 1.5.
        {"one flow not given", of({{"SFLOW", {1.5, missing}}}), {20 / 1.5, 12}},
        {"one segment alone", World{}.segments({"A"}).conventional("3").polymer("P"), {8, 8}},
        {"oligomer", World{two}.oligomer("O", {{"A", 3}, {"B", 1}}), {10, 12}},
        {"listed only", listed_only, {8, 5}},
        {"oligomer that is not listed", World{two}.component("O", ComponentClass::oligomer), {5, 5}},
        {"no polymer block", of({{"SFLOW", {3, 1}}}).without_polymer_block(), {5, 5}},
        {"no segments", World{}.conventional("2").conventional("3").polymer("P"), {5, 5}},
    };
    const Values properties{-1, 8, 16, 5}, weights{-1, 1, 3, -1};
    for (auto& c : cases) {
        c.world.host();
        GuardedReals q(1);
        call(POLY_QSGTOQ, 1, 4, properties, q);
        EXPECT_DOUBLE_EQ(q(1), c.expected[0]) << c.name;
        call(POLY_QSTOQA, weights, 1, 4, properties, q);
        EXPECT_DOUBLE_EQ(q(1), c.expected[1]) << c.name;
    }
}

}  // namespace
