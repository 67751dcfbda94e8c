// Segment counts straight from attributes: POLY_GETPOL and POLY_GETPALL side by side.

#include "polyprops/polymer_block.h"
#include "support/routine_calls.h"

using namespace support;

namespace {

constexpr Int kept = -5;

// Outputs of both routines, kept where untouched.
struct Counts {
    Counts(World world, const std::vector<std::string>& ids) : nc(world.component_count())
    {
        world.host();
        const auto list = world.indices(ids);
        const Int n = std::ssize(list);
        {
            const AskedOnce once;
            call(POLY_GETPOL, 1, nc, world.molecular_weights(), nseg, iseg, n, list, pol);
        }
        const AskedOnce once;
        call(POLY_GETPALL, 1, n, list, nc, nseg_all, iseg_all, npol, flags, all, dpn);
    }
    // Elements of row j for the segments, components 2 and 3, by both routines.
    std::pair<Values, Values> rows(Int j) const
    {
        const auto k = nc + j - 1, l = 2 * nc + j - 1;
        return {{pol.at(k), pol.at(l)}, {all.at(k), all.at(l)}};
    }

    Int nc, nseg = kept, nseg_all = kept, npol = kept;
    Values pol = Values(nc * nc, kept), all = pol, dpn = Values(nc, kept);
    Ints iseg = Ints(nc, kept), iseg_all = iseg, flags = iseg;
};

// Components: 2 and 3 are the segments, 4 is the polymer.
World copolymer(const Attributes& attributes)
{
    return World{}.segments({{"A", 100}, {"B", 50}}).polymer("P", attributes);
}

TEST(SegmentCounts, OfAPolymerFollowTheOrderOfPreference)
{
    const Attribute z{"ZMOM", 0.5}, flow{"SFLOW", {3, 1}}, five{"DPN", 4};
    const double above = std::nextafter(zero_bound, 1.0), below = std::nextafter(missing, 0.0);
    const struct {
        const char* name;
        Attributes attributes;
        Values pol, all;
    } cases[] = {
        {"fractions given, length from flows", {z, flow, {"SFRAC", {1, 3}}}, {2, 6}, {2, 6}},
        {"length below 1", {{"DPN", 0.5}, z, flow}, {6, 2}, {6, 2}},
        {"length just above 1", {{"DPN", 1.25}, z, flow}, {0.9375, 0.3125}, {0.9375, 0.3125}},
        {"length of exactly 1", {{"DPN", 1.0}, z, flow}, {0.75, 0.25}, {6, 2}},
        {"length missing", {{"DPN", missing}, z, flow}, {0.75 * missing, 0.25 * missing}, {6, 2}},
        {"own weight", {{"MWN", 875}, z, flow}, {7.5, 2.5}, {6, 2}},
        {"weight of one segment", {{"MWN", 87.5}, z, flow}, {0.75, 0.25}, {6, 2}},
        {"weight below it", {{"MWN", std::nextafter(87.5, 0)}, z, flow}, {6, 2}, {6, 2}},
        {"first moment equal to chains", {{"FMOM", 0.5}, z, flow}, {0.75, 0.25}, {0.75, 0.25}},
        {"first moment below chains", {{"FMOM", 0.25}, z, flow}, {6, 2}, {0.75, 0.25}},
        {"chains above the zero bound", {{"ZMOM", above}, {"SFLOW", {4 * above, 0}}}, {4, 0}, {4, 0}},
        {"flows at it", {{"ZMOM", 2 * above}, {"SFLOW", {zero_bound, 0}}}, {0.5, 0.5}, {0.5, 0.5}},
        {"fraction missing", {five, {"SFRAC", {missing, 2}}}, {4, 8 / missing}, {0, 4}},
        {"fraction below missing", {five, {"SFRAC", {below, 2}}}, {4, 8 / below}, {4, 8 / below}},
        {"all fractions 0", {five, flow, {"SFRAC", {0, 0}}}, {2, 2}, {2, 2}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const Counts counts(copolymer(c.attributes), {"P"});
        EXPECT_EQ(counts.rows(4), std::pair(c.pol, c.all));
        EXPECT_DOUBLE_EQ(counts.dpn[0], c.all[0] + c.all[1]);
    }
}

TEST(SegmentCounts, OfAPolymerWithHiddenFractionsOrAWeightlessSegment)
{
    const Attribute flow{"SFLOW", {3, 1}};
    const auto hidden = copolymer({{"DPN", 4}, flow, {"SFRAC", {1, 3}}}).hidden_attribute("P", "SFRAC", -1);
    EXPECT_EQ(Counts(hidden, {"P"}).rows(4), std::pair(Values{3, 1}, Values{3, 1}));
    auto weightless = World{}.segments({{"A", 0}, "B"});
    weightless.polymer("P", {{"MWN", 9}, {"ZMOM", 0.5}, {"SFLOW", {1, 0}}});
    EXPECT_EQ(Counts(weightless, {"P"}).rows(4), std::pair(Values{2, 0}, Values{2, 0}));
}

TEST(SegmentCounts, OfAnOligomer)
{
    const struct {
        const char* name;
        double a, b, parameter;
        Values pol, all;
        double length;
    } cases[] = {
        {"one kind, real parameter", 3, 0, 5, {5, 0}, {5, 0}, 5},
        {"part of a segment, parameter just above 1", 0.25, 0, 1.25, {1.25, 0}, {1.25, 0}, 1.25},
        {"part of a segment", 0.25, 0, 1, {0.25, 0}, {1, 0}, 1},
        {"two kinds, real parameter", 2, 1, 6, {2, 1}, {4, 2}, 6},
        {"within the tolerance", 2, 2, 1 + 0.9e-10, {2, 2}, {2, 2}, 4},
        {"parameter below 1", 3, 0, 0.5, {3, 0}, {0.5, 0}, 0.5},
        {"negative count", -1, 3, 1, {0, 3}, {-1, 3}, 2},
        {"counts sum to 0", 1, -1, 1, {1, 0}, {1, -1}, 1},
        {"parameter not a number", 2, 0, std::nan(""), {2, 0}, {2, 0}, 2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        auto world = copolymer({}).oligomer("O", {{"A", c.a}, {"B", c.b}});
        const Counts counts(world.parameter("O", Parameter::dpn, c.parameter), {"O"});
        EXPECT_EQ(counts.rows(5), std::pair(c.pol, c.all));
        EXPECT_EQ(counts.dpn[0], c.length);
    }
    // O in both columns of the table, Q in none.
    auto world = World{}.segments({"A", "B"}).oligomer("O", {{"A", 3}}).oligomer("Q", {{"B", 1}});
    auto& store = world.parameter("O", Parameter::dpn, 5).host().store();
    store.set_integer(store.integer(world.host().polymer_block(), POLYPROPS_OLIGOMER_LIST), 3,
                      world.index("O"));
    const Counts counts(world, {"O", "Q"});
    EXPECT_EQ(counts.rows(4), std::pair(Values{5, 5}, Values{0, 1.25}));
    EXPECT_EQ(counts.rows(5).first, (Values{0, 0}));
}

TEST(SegmentCounts, OfOtherComponentsStandInColumnOne)
{
    auto world = copolymer({{"DPN", 4}}).conventional("W").conventional("V").conventional("N");
    world.parameter("W", Parameter::dpn, 0.5).parameter("V", Parameter::dpn, 7);
    world.parameter("N", Parameter::dpn, std::nan(""));
    const Counts counts(world, {"W", "V", "P", "N"});
    EXPECT_EQ(Values(counts.pol.begin(), counts.pol.begin() + 7), (Values{0, 0, 0, 0, 1, 7, 1}));
    EXPECT_EQ(Values(counts.all.begin(), counts.all.begin() + 7), (Values{0, 0, 0, 0, 1, 1, 1}));
    EXPECT_EQ(counts.dpn, (Values{1, 7, 4, 1, 0, 0, 0}));
    EXPECT_EQ(counts.flags, (Ints{0, 0, 0, 1, 0, 0, 0}));
    EXPECT_EQ(counts.iseg_all, (Ints{2, 3, 0, 0, 0, 0, 0}));
    EXPECT_EQ(counts.iseg, (Ints{2, 3, kept, kept, kept, kept, kept}));
    EXPECT_EQ(counts.npol, 1);
}

TEST(SegmentCounts, LeaveUntouchedWhatTheListDoesNotReach)
{
    const Counts counts(copolymer({}).conventional("W").without(Parameter::dpn), {"W"});
    EXPECT_EQ(std::tuple(counts.nseg, counts.nseg_all, counts.npol), std::tuple(2, kept, 0));
    EXPECT_EQ(counts.pol[4], 1);
    for (const auto& untouched : {counts.iseg, counts.iseg_all, counts.flags})
        EXPECT_EQ(untouched, Ints(5, kept));
    EXPECT_EQ(counts.all, Values(25, kept));
    EXPECT_EQ(counts.dpn, Values(5, kept));

    const Counts none(copolymer({{"ZMOM", 2}, {"FMOM", 8}}).without_polymer_block(), {"UNNAMED", "P"});
    EXPECT_EQ(std::tuple(none.nseg, none.nseg_all, none.npol), std::tuple(kept, 0, 1));
    EXPECT_EQ(none.iseg, Ints(4, kept));
    EXPECT_EQ(none.pol, Values(16, 0));
    EXPECT_EQ(none.dpn, (Values{1, 4, 0, 0}));
    EXPECT_EQ(none.rows(4).second, (Values{0, 0}));
}

}  // namespace
