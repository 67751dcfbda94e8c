// Degree of polymerization, mean segment weight, molecular weights and polydispersity of single components.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "polyprops/polyprops.h"
#include "support/guarded.h"
#include "support/world.h"

using namespace support;

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
const double above_zero_bound = std::nextafter(zero_bound, 1.0);
const double below_missing = std::nextafter(missing, 0.0);

// Segments A (100 g/mol) and B (50 g/mol), and one polymer P of 1000 g/mol.
World copolymer(const Attributes& attributes)
{
    return World{}.segments({{"A", 100}, {"B", 50}}).polymer("P", attributes, 1000);
}

struct Case {
    const char* name;
    Attributes attributes;
    double expected;
};

TEST(DegreeOfPolymerization, PrefersAttributeThenMomentsThenOne)
{
    const Case cases[] = {
        {"own attribute wins over moments", {{"DPN", 120}, {"ZMOM", 2}, {"FMOM", 100}}, 120},
        {"just above 1 is usable", {{"DPN", std::nextafter(1.0, 2.0)}}, std::nextafter(1.0, 2.0)},
        {"exactly 1 is not usable: parameter, not moments", {{"DPN", 1.0}, {"ZMOM", 2}, {"FMOM", 100}}, 7},
        {"just below missing is usable", {{"DPN", below_missing}}, below_missing},
        {"missing is not usable: parameter", {{"DPN", missing}, {"ZMOM", 2}, {"FMOM", 100}}, 7},
        {"first moment over zeroth", {{"ZMOM", 2}, {"FMOM", 100}, {"SFLOW", {1, 1}}}, 50},
        {"no first moment: segment flows", {{"ZMOM", 2}, {"SFLOW", {30, 10}}}, 20},
        {"zeroth moment at the zero bound", {{"ZMOM", zero_bound}, {"FMOM", 100}}, 1},
        {"zeroth moment above the zero bound",
         {{"ZMOM", above_zero_bound}, {"FMOM", 4 * above_zero_bound}},
         4},
        {"never below one", {{"ZMOM", 100}, {"FMOM", 50}}, 1},
        {"neither zeroth moment nor end segments", {{"FMOM", 50}, {"SFLOW", {1, 1}}}, 1},
        {"nothing carried", {}, 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(copolymer(c.attributes).parameter("P", Parameter::dpn, 7).ask(POLY_GETDPN, "P"),
                  c.expected);
    }
}

TEST(DegreeOfPolymerization, TakesHalfTheFlowsOfLeadingEndSegmentsForMissingChains)
{
    auto world = World{}.segments({{"E", 15, SegmentType::end}, {"F", 29, SegmentType::end}, "R"});
    EXPECT_EQ(world.polymer("P", {{"SFLOW", {3, 1, 96}}}).ask(POLY_GETDPN, "P"), 50);

    // The flows are taken by the entry number of the end segment, here entry 1, whatever its place among the
    // segments.
    auto trailing = World{}.segments({"R", {"E", 15, SegmentType::end}}).polymer("P", {{"SFLOW", {96, 4}}});
    EXPECT_EQ(trailing.ask(POLY_GETDPN, "P"), 100.0 / 48);

    auto more_ends_than_segments = World{}.segments({"R"}).end_segments({"R", "R", "R"});
    EXPECT_EQ(more_ends_than_segments.polymer("P", {{"SFLOW", 10}}).ask(POLY_GETDPN, "P"), 2);
}

TEST(DegreeOfPolymerization, LimitsOthersToOneOnlyInARunWithChains)
{
    auto with_polymer = copolymer({{"DPN", 9}}).conventional("W").parameter("W", Parameter::dpn, 0.5);
    EXPECT_EQ(with_polymer.ask(POLY_GETDPN, {"W", "P"}), (std::vector<double>{1, 9}));

    auto none = World{}.segments({"A"}).conventional("W").parameter("W", Parameter::dpn, 0.5);
    EXPECT_EQ(none.ask(POLY_GETDPN, "W"), 0.5);

    // The polymer count of the run decides, not the polymer list.
    auto uncounted = copolymer({{"DPN", 9}}).parameter("P", Parameter::dpn, 0.5).polymer_count(0);
    EXPECT_EQ(uncounted.ask(POLY_GETDPN, "P"), 0.5);

    auto only_oligomers = World{}.segments({"A"}).oligomer("O", {{"A", 3}}).conventional("W");
    EXPECT_EQ(only_oligomers.parameter("W", Parameter::dpn, 0.5).ask(POLY_GETDPN, {"W", "O"}),
              (std::vector<double>{1, 3}));
}

TEST(DegreeOfPolymerization, CountsTheMakeUpOfOligomersLeftAtOne)
{
    struct {
        const char* name;
        double parameter;
        double expected;
    } cases[] = {
        {"left at one", 1, 5},
        {"within the tolerance", 1 + 0.9e-10, 5},
        {"beyond it", 1 + 2e-10, 1 + 2e-10},
        {"a real parameter", 4, 4},
        {"below one", 0.5, 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        auto world = World{}.segments({{"A", 100}, {"B", 50}}).oligomer("O", {{"A", 2}, {"B", 3}});
        EXPECT_EQ(world.parameter("O", Parameter::dpn, c.parameter).ask(POLY_GETDPN, "O"), c.expected);
        EXPECT_EQ(world.ask(POLY_GETMRF, "O"), (2 * 100 + 3 * 50) / 5.0);
    }
    auto unlisted = copolymer({}).component("O", ComponentClass::oligomer, 77);
    EXPECT_EQ(unlisted.parameter("O", Parameter::dpn, 1 + 1e-11).ask(POLY_GETDPN, "O"), 1 + 1e-11);
    EXPECT_EQ(unlisted.ask(POLY_GETMWN, "O"), 77 * (1 + 1e-11));
    auto part_of_a_segment = World{}.segments({{"A", 100}}).oligomer("O", {{"A", 0.25}});
    EXPECT_EQ(part_of_a_segment.ask(POLY_GETDPN, "O"), 1);
    EXPECT_EQ(part_of_a_segment.ask(POLY_GETMRF, "O"), 100);
}

TEST(MeanSegmentWeight, PrefersAttributeThenFractionsThenFlowsThenPlainMean)
{
    const Case cases[] = {
        {"attribute", {{"MWSEG", 60}, {"SFRAC", {1, 0}}}, 60},
        {"attribute just above 1", {{"MWSEG", 1.25}}, 1.25},
        {"attribute of 1 is not usable", {{"MWSEG", 1.0}, {"SFRAC", {0.2, 0.6}}}, 62.5},
        {"missing attribute", {{"MWSEG", missing}, {"SFRAC", {0.2, 0.6}}}, 62.5},
        {"fractions before flows", {{"SFRAC", {0, 3}}, {"SFLOW", {3, 0}}}, 50},
        {"flows", {{"SFLOW", {3, 1}}}, 87.5},
        {"a missing element counts as an equal share", {{"SFRAC", {missing, 1.5}}}, 62.5},
        {"all elements missing", {{"SFRAC", {missing, missing}}}, 75},
        {"total at the zero bound", {{"SFRAC", {zero_bound, 0}}}, 75},
        {"total above the zero bound", {{"SFRAC", {above_zero_bound, 0}}}, 100},
        {"nothing carried", {}, 75},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(copolymer(c.attributes).ask(POLY_GETMRF, "P"), c.expected);
    }
    // Only an offset of exactly 0 turns to the flows.
    EXPECT_EQ(copolymer({{"SFRAC", {1, 0}}, {"SFLOW", {3, 1}}})
                  .hidden_attribute("P", "SFRAC", -1)
                  .ask(POLY_GETMRF, "P"),
              75);
    EXPECT_EQ(copolymer({{"SFRAC", {1, 0}}, {"SFLOW", {3, 1}}})
                  .hidden_attribute("P", "SFRAC", 0)
                  .ask(POLY_GETMRF, "P"),
              87.5);
}

TEST(MeanSegmentWeight, TakesTheMakeUpOfWhateverStandsInTheOligomerList)
{
    auto world =
        World{}.segments({{"A", 100}, {"B", 50}}).oligomer("O", {{"A", 1}}, 9).oligomer("Z", {{"A", 0}}, 9);
    world.class_of("O", ComponentClass::conventional).class_of("Z", ComponentClass::polymer);
    EXPECT_EQ(world.ask(POLY_GETMRF, {"O", "Z"}), (std::vector<double>{100, 0}));

    auto polymer_too = World{}.segments({{"A", 100}, {"B", 50}}).oligomer("O", {{"A", 1}});
    polymer_too.class_of("O", ComponentClass::polymer).attributes("O", {{"MWSEG", 60}});
    EXPECT_EQ(polymer_too.ask(POLY_GETMRF, "O"), 60);

    auto one_segment = World{}.segments({{"A", 100}}).polymer("P", {}, 1000);
    EXPECT_EQ(one_segment.ask(POLY_GETMRF, "P"), 100);
    auto no_segments = World{}.polymer("P", {}, 1000);
    EXPECT_EQ(no_segments.ask(POLY_GETMRF, "P"), 1000);
}

TEST(Polydispersity, NeedsThreeMomentsWithinTheirBounds)
{
    const Attribute flows{"SFLOW", {6, 2}};
    const Case cases[] = {
        {"moments", {{"ZMOM", 2}, {"SMOM", 50}, flows}, 1.5625},
        {"the first moment is always the sum of flows",
         {{"ZMOM", 2}, {"FMOM", 99}, {"SMOM", 50}, flows},
         1.5625},
        {"no second moment", {{"ZMOM", 2}, flows}, 3},
        {"no zeroth moment", {{"SMOM", 50}, flows}, 3},
        {"zeroth moment at the zero bound", {{"ZMOM", zero_bound}, {"SMOM", 50}, flows}, 3},
        {"zeroth moment missing", {{"ZMOM", missing}, {"SMOM", 50}, flows}, 3},
        {"flows below the zero bound", {{"ZMOM", 2}, {"SMOM", 50}, {"SFLOW", {zero_bound / 2, 0}}}, 3},
        {"flows at the zero bound",
         {{"ZMOM", zero_bound * 4}, {"SMOM", zero_bound}, {"SFLOW", {zero_bound, 0}}},
         4},
        {"no flows", {{"ZMOM", 2}, {"SMOM", 50}}, 3},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(copolymer(c.attributes).parameter("P", Parameter::pdi, 3).ask(POLY_GETPDI, "P"),
                  c.expected);
        EXPECT_EQ(
            copolymer(c.attributes).parameter("P", Parameter::pdi, 3).pdi_mode(100).ask(POLY_GETPDI, "P"), 3);
    }
    EXPECT_EQ(copolymer({{"ZMOM", 2}, {"SMOM", 50}, flows}).pdi_mode(99).ask(POLY_GETPDI, "P"), 1.5625);
    EXPECT_EQ(copolymer({}).ask(POLY_GETPDI, "P"), 1);

    // The mass of the flows is held against the zero bound too, and may be it.
    for (const auto& [segment_weight, expected] : {std::pair{1.0, 4.0}, {0.5, 3.0}}) {
        auto light = World{}.segments({{"A", segment_weight}});
        light.polymer("P", {{"ZMOM", 4 * zero_bound}, {"SMOM", zero_bound}, {"SFLOW", zero_bound}});
        EXPECT_EQ(light.parameter("P", Parameter::pdi, 3).ask(POLY_GETPDI, "P"), expected);
    }
}

TEST(ChainAverages, OfAPolymerInARunThatListsNoneAreItsOwn)
{
    auto world = World{}.segments({{"A", 100}}).component("P", ComponentClass::polymer, 1000);
    world.attributes("P", {{"ZMOM", 2}, {"SMOM", 50}, {"SFLOW", 8}}).parameter("P", Parameter::pdi, 3);
    EXPECT_EQ(world.ask(POLY_GETMRT, "P"), 1000);
    EXPECT_EQ(world.ask(POLY_GETPDI, "P"), 3);
}

TEST(MolecularWeight, FromFlowsNeedsMassAboveTheZeroBound)
{
    const Case cases[] = {
        {"mass flow over chains", {{"ZMOM", 2}, {"SFLOW", {3, 4}}}, 250},
        {"no zeroth moment", {{"SFLOW", {3, 4}}}, 1000},
        {"zeroth moment missing", {{"ZMOM", missing}, {"SFLOW", {3, 4}}}, 1000},
        {"zeroth moment at the zero bound", {{"ZMOM", zero_bound}, {"SFLOW", {3, 4}}}, 1000},
        {"mass at the zero bound", {{"ZMOM", 2}, {"SFLOW", {zero_bound / 100, 0}}}, 1000},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(copolymer(c.attributes).ask(POLY_GETMRT, "P"), c.expected);
    }
}

TEST(MolecularWeight, IsLengthTimesSegmentWeightTimesPolydispersity)
{
    auto world = copolymer({{"ZMOM", 2}, {"FMOM", 8}, {"SMOM", 50}, {"SFLOW", {6, 2}}});
    world.oligomer("O", {{"A", 2}, {"B", 3}}, 9).conventional("W", 18).parameter("W", Parameter::pdi, 1.5);
    EXPECT_EQ(world.ask(POLY_GETMWN, {"W", "P", "O", "P"}), (std::vector<double>{18, 350, 350, 350}));
    EXPECT_EQ(world.ask(POLY_GETMWW, {"W", "P", "O"}), (std::vector<double>{27, 546.875, 350}));
    EXPECT_EQ(world.ask(POLY_GETMRT, {"W", "P", "O"}), (std::vector<double>{18, 350, 9}));
    EXPECT_EQ(world.ask(POLY_GETPDI, {"W", "P", "O"}), (std::vector<double>{1.5, 1.5625, 1}));
}

TEST(ChainAverages, ReturnParametersWithoutPolymerData)
{
    for (const minihost::BlockId id : {0, -1}) {
        auto world =
            copolymer({{"DPN", 9}, {"ZMOM", 2}, {"SMOM", 50}, {"SFLOW", {6, 2}}}).without_polymer_block(id);
        world.parameter("P", Parameter::dpn, 0.5).parameter("P", Parameter::pdi, 3);
        EXPECT_EQ(world.ask(POLY_GETDPN, "P"), 0.5);
        EXPECT_EQ(world.ask(POLY_GETMRF, "P"), 1000);
        EXPECT_EQ(world.ask(POLY_GETMWN, "P"), 1000);
        EXPECT_EQ(world.ask(POLY_GETMRT, "P"), 1000);
        EXPECT_EQ(world.ask(POLY_GETPDI, "P"), 3);
        EXPECT_EQ(world.ask(POLY_GETMWW, "P"), 3000);
    }
    auto bare = World{}.conventional("W", 18).without(Parameter::dpn).without(Parameter::pdi);
    EXPECT_EQ(bare.ask(POLY_GETDPN, "W"), 1);
    EXPECT_EQ(bare.ask(POLY_GETMWW, "W"), 18);
    auto weightless = World{}.conventional("W", 18).without(Parameter::molecular_weight);
    EXPECT_EQ(weightless.ask(POLY_GETMWN, "W"), 0);
}

TEST(ChainAverages, NotANumberTakesTheSafeBranch)
{
    // Streams of the embedded host refuse a NaN, so the molecular weight carries it here.
    auto world = World{}.segments({{"A", nan}}).polymer("P", {{"ZMOM", 2}, {"SMOM", 9}, {"SFLOW", 3}}, 1000);
    EXPECT_EQ(world.ask(POLY_GETMRT, "P"), 1000);
    EXPECT_EQ(world.ask(POLY_GETPDI, "P"), 1);
}

TEST(ChainAverages, FromRowsOfASegmentCountMatrix)
{
    // Three components; 2 and 3 are segments. Row 1 is a chain, row 2 counts itself in column 1.
    constexpr Int ld = 3;
    const Int nseg = 2;
    const Int none = 0;
    const Int segments[] = {2, 3};
    const double scm[] = {99, 1.5, 7, /**/ 60, 8, 9, /**/ 20, 8, 9};
    const double weights[] = {5, 100, 50};
    const Int flags[] = {1, 2, 0};
    const Int n = 3;
    const Int list[] = {2, 1, 3};
    for (const auto routine : {POLY_GETDPN1, POLY_GETDPN2}) {
        GuardedReals dpn(3);
        routine(&ld, &nseg, segments, scm, &n, list, dpn, flags);
        EXPECT_EQ(dpn.values(), (std::vector<double>{1.5, 80, 7}));
        routine(&ld, &none, segments, scm, &n, list, dpn, flags);
        EXPECT_EQ(dpn.values(), (std::vector<double>{1.5, 0, 7}));
        EXPECT_TRUE(dpn.fence_holds());
    }
    GuardedReals mwn(3);
    POLY_GETMWN1(&ld, weights, &nseg, segments, scm, &n, list, mwn, flags);
    EXPECT_EQ(mwn.values(), (std::vector<double>{100, 7000, 50}));
    EXPECT_TRUE(mwn.fence_holds());
}

}  // namespace
