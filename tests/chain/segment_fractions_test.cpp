#include "support/routine_calls.h"

using namespace support;

namespace {

constexpr double kept = GuardedReals::sentinel;

World copolymer(const Attributes& attributes)
{
    return World{}.segments({{"A", 100}, {"B", 50}}).polymer("P", attributes).conventional("W");
}

using Fractions = std::pair<Values, Values>;  // by mole and by mass
const Fractions untouched{{kept, kept}, {kept, kept}};

Fractions fractions(World world, const char* id)
{
    world.host();
    const auto ask = [&](auto* routine) {
        const AskedOnce once;
        GuardedReals out(2);
        call(routine, 1, world.index(id), out);
        EXPECT_TRUE(out.fence_holds());
        return out.values();
    };
    return {ask(POLY_GETSMF), ask(POLY_GETSWF)};
}

TEST(SegmentFractions, OfAPolymer)
{
    const Attribute flows{"SFLOW", {1, 3}};
    const struct {
        const char* name;
        World world;
        Fractions expected;
    } cases[] = {
        {"fractions give moles, flows mass",
         copolymer({{"SFRAC", {0.2, 0.3}}, flows}),
         {{0.4, 0.6}, {0.4, 0.6}}},
        {"flows without fractions", copolymer({flows}), {{0.25, 0.75}, {0.4, 0.6}}},
        {"a missing element counts 0", copolymer({{"SFLOW", {missing, 3}}}), {{0, 1}, {0, 1}}},
        {"bound in moles, above it in mass", copolymer({{"SFLOW", {zero_bound, 0}}}), {{0.5, 0.5}, {1, 0}}},
        {"nothing carried", copolymer({}), {{0.5, 0.5}, {0.5, 0.5}}},
        {"no polymer block", copolymer({flows}).without_polymer_block(), untouched},
        {"not listed", World{}.segments({"A"}).component("P", ComponentClass::polymer), untouched},
        {"no segments", World{}.polymer("P"), untouched},
    };
    for (const auto& c : cases) EXPECT_EQ(fractions(c.world, "P"), c.expected) << c.name;
    auto negative_offset = copolymer({{"SFRAC", {1, 3}}, flows}).hidden_attribute("P", "SFRAC");
    EXPECT_EQ(fractions(negative_offset, "P").first, (Values{0.5, 0.5}));
    EXPECT_EQ(fractions(copolymer({flows}), "W"), untouched);
}

TEST(SegmentFractions, OfAnOligomerKnownByItsPlaceInTheList)
{
    auto world = copolymer({}).oligomer("O", {{"A", 1}, {"B", 3}}).oligomer("Z", {});
    world.class_of("O", ComponentClass::conventional).component("U", ComponentClass::oligomer);
    EXPECT_EQ(fractions(world, "O"), (Fractions{{0.25, 0.75}, {0.4, 0.6}}));
    EXPECT_EQ(fractions(world, "Z"), (Fractions{{0.5, 0.5}, {0.5, 0.5}}));
    EXPECT_EQ(fractions(world, "U"), untouched);
}

TEST(SegmentFractions, OfAListFillColumns)
{
    auto world = copolymer({{"SFLOW", {1, 3}}}).oligomer("O", {{"A", 1}});
    world.host();
    const AskedOnce once;
    GuardedReals out(9);
    call(POLY_SWFVEC, 1, 3, 3, world.indices({"O", "W", "P"}), out);
    EXPECT_EQ(out.values(), (Values{1, 0, kept, kept, kept, kept, 0.4, 0.6, kept}));
}

TEST(SegmentFractions, OfARowOfASegmentCountMatrixAskNothing)
{
    const Int ld = 2, row = 2, segments[] = {2, 1};
    const double weights[] = {100, 50};
    const struct {
        const char* name;
        double scm[4];
        Int nseg;
        Fractions expected;
    } cases[] = {
        {"row 2, in the order of the segment list", {9, 3, 9, 2}, 2, {{0.4, 0.6}, {0.25, 0.75}}},
        {"moles at the zero bound", {9, zero_bound, 9, 0}, 2, {{0.5, 0.5}, {0, 1}}},
        {"not a number", {9, std::nan(""), 9, 1}, 2, {{0.5, 0.5}, {0.5, 0.5}}},
        {"no segments", {9, 3, 9, 2}, 0, untouched},
    };
    World world;
    world.host();  // sets the bounds of the run
    const minihost::ServiceLog log;
    for (const auto& c : cases) {
        GuardedReals mole(2), mass(2);
        POLY_GETSMF1(&row, &ld, c.scm, &c.nseg, segments, mole);
        POLY_GETSWF1(&row, &ld, weights, c.scm, &c.nseg, segments, mass);
        EXPECT_EQ(std::pair(mole.values(), mass.values()), c.expected) << c.name;
        EXPECT_TRUE(mole.fence_holds() && mass.fence_holds()) << c.name;
    }
    EXPECT_EQ(log.count(), 0);
}

}  // namespace
