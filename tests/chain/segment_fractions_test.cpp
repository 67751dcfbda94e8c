#include <gtest/gtest.h>

#include <cmath>

#include "polyprops/polyprops.h"
#include "support/guarded.h"
#include "support/world.h"

using namespace support;

namespace {

using Fractions = std::vector<double>;
using Routine = void(const Int*, const Int*, double*);

World copolymer(const Attributes& attributes)
{
    return World{}.segments({{"A", 100}, {"B", 50}}).polymer("P", attributes).conventional("W");
}

GuardedReals ask(World& world, Routine* routine, const char* id)
{
    world.host();
    const Int selector = 1;
    const Int component = world.index(id);
    GuardedReals out(2);
    routine(&selector, &component, out);
    EXPECT_TRUE(out.fence_holds());
    return out;
}

TEST(SegmentFractions, OfAPolymer)
{
    const double above_bound = std::nextafter(zero_bound, 1.0);
    const struct {
        const char* name;
        Attributes attributes;
        Fractions mole;
        Fractions mass;
    } cases[] = {
        {"fractions give moles, flows give mass",
         {{"SFRAC", {0.2, 0.3}}, {"SFLOW", {1, 3}}},
         {0.4, 0.6},
         {0.4, 0.6}},
        {"flows without fractions", {{"SFLOW", {1, 3}}}, {0.25, 0.75}, {0.4, 0.6}},
        {"a missing element counts 0", {{"SFLOW", {missing, 3}}}, {0, 1}, {0, 1}},
        {"nothing flows", {{"SFLOW", {0, 0}}}, {0.5, 0.5}, {0.5, 0.5}},
        {"at the zero bound in moles, above in mass", {{"SFLOW", {zero_bound, 0}}}, {0.5, 0.5}, {1, 0}},
        {"above the zero bound", {{"SFLOW", {above_bound, 0}}}, {1, 0}, {1, 0}},
        {"nothing carried", {}, {0.5, 0.5}, {0.5, 0.5}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        auto world = copolymer(c.attributes);
        EXPECT_EQ(ask(world, POLY_GETSMF, "P").values(), c.mole);
        EXPECT_EQ(ask(world, POLY_GETSWF, "P").values(), c.mass);
    }
    auto negative_offset =
        copolymer({{"SFRAC", {1, 3}}, {"SFLOW", {1, 3}}}).hidden_attribute("P", "SFRAC", -1);
    EXPECT_EQ(ask(negative_offset, POLY_GETSMF, "P").values(), (Fractions{0.5, 0.5}));
}

TEST(SegmentFractions, OfAnOligomerKnownByItsPlaceInTheList)
{
    auto world =
        World{}.segments({{"A", 100}, {"B", 50}}).oligomer("O", {{"A", 1}, {"B", 3}}).oligomer("Z", {});
    world.class_of("O", ComponentClass::conventional).component("U", ComponentClass::oligomer);
    EXPECT_EQ(ask(world, POLY_GETSMF, "O").values(), (Fractions{0.25, 0.75}));
    EXPECT_EQ(ask(world, POLY_GETSWF, "O").values(), (Fractions{0.4, 0.6}));
    EXPECT_EQ(ask(world, POLY_GETSMF, "Z").values(), (Fractions{0.5, 0.5}));
    EXPECT_TRUE(ask(world, POLY_GETSMF, "U").untouched());
}

TEST(SegmentFractions, LeaveTheOutputUntouchedWhereThereIsNothingToSay)
{
    auto conventional = copolymer({{"SFLOW", {1, 3}}});
    auto no_block = copolymer({{"SFLOW", {1, 3}}}).without_polymer_block();
    auto no_lists = World{}.segments({"A", "B"}).component("P", ComponentClass::polymer);
    auto no_segments = World{}.polymer("P");
    for (const auto routine : {POLY_GETSMF, POLY_GETSWF}) {
        EXPECT_TRUE(ask(conventional, routine, "W").untouched());
        EXPECT_TRUE(ask(no_segments, routine, "P").untouched());
        EXPECT_TRUE(ask(no_block, routine, "P").untouched());
        EXPECT_TRUE(ask(no_lists, routine, "P").untouched());
    }
}

TEST(SegmentFractions, OfAListFillColumns)
{
    auto world = copolymer({{"SFLOW", {1, 3}}}).oligomer("O", {{"A", 1}});
    world.host();
    const Int selector = 1;
    const Int ld = 3;
    const Int n = 3;
    const auto list = world.indices({"O", "W", "P"});
    GuardedReals out(9);
    POLY_SWFVEC(&selector, &n, &ld, list.data(), out);
    constexpr double kept = GuardedReals::sentinel;
    EXPECT_EQ(out.values(), (Fractions{1, 0, kept, kept, kept, kept, 0.4, 0.6, kept}));

    const Int none = 0;
    GuardedReals untouched(3);
    POLY_SWFVEC(&selector, &none, &ld, list.data(), untouched);
    EXPECT_TRUE(untouched.untouched());
}

TEST(SegmentFractions, OfARowOfASegmentCountMatrix)
{
    constexpr Int ld = 2;
    const double nan = std::nan("");
    const double weights[] = {100, 50};
    const Int segments[] = {2, 1};
    const struct {
        const char* name;
        double scm[4];
        Fractions mole;
        Fractions mass;
    } cases[] = {
        {"row 2, in the order of the segment list", {9, 3, 9, 2}, {0.4, 0.6}, {0.25, 0.75}},
        {"vanishing row", {9, 0, 9, 0}, {0.5, 0.5}, {0.5, 0.5}},
        {"moles at the zero bound", {9, zero_bound, 9, 0}, {0.5, 0.5}, {0, 1}},
        {"not a number", {9, nan, 9, 1}, {0.5, 0.5}, {0.5, 0.5}},
    };
    World world;
    world.host();  // sets the bounds of the run
    const Int row = 2;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const Int nseg = 2;
        GuardedReals mole(2), mass(2);
        POLY_GETSMF1(&row, &ld, c.scm, &nseg, segments, mole);
        POLY_GETSWF1(&row, &ld, weights, c.scm, &nseg, segments, mass);
        EXPECT_EQ(mole.values(), c.mole);
        EXPECT_EQ(mass.values(), c.mass);
    }
    const Int none = 0;
    GuardedReals untouched(2);
    POLY_GETSMF1(&row, &ld, cases[0].scm, &none, segments, untouched);
    POLY_GETSWF1(&row, &ld, weights, cases[0].scm, &none, segments, untouched);
    EXPECT_TRUE(untouched.untouched());
}

}  // namespace
