// Degree of polymerization, mean segment weight, molecular weights and polydispersity of single components.

#include "support/routine_calls.h"

using namespace support;

namespace {

// Segments A (100 g/mol) and B (50 g/mol), and one polymer P of 1000 g/mol with the parameters DPN 7, PDI 3.
World copolymer(const Attributes& attributes)
{
    auto world = World{}.segments({{"A", 100}, {"B", 50}}).polymer("P", attributes, 1000);
    return world.parameter("P", Parameter::dpn, 7).parameter("P", Parameter::pdi, 3);
}

// DPN, MRF, MWN, MRT, PDI and MWW by component; each routine asks the host once for a fact.
using Averages = std::vector<Values>;
Averages averages(World world, const std::vector<std::string>& ids)
{
    world.host();
    Averages all(ids.size());
    for (auto* routine : {POLY_GETDPN, POLY_GETMRF, POLY_GETMWN, POLY_GETMRT, POLY_GETPDI, POLY_GETMWW}) {
        const AskedOnce once;
        const Values found = world.ask(routine, ids);
        for (std::size_t i = 0; i < ids.size(); ++i) all[i].push_back(found[i]);
    }
    return all;
}

struct Question {
    const char* name;
    World world;
    double expected;
    const char* id = "P";
};
void expect_answers(auto* routine, const std::vector<Question>& questions)
{
    for (auto q : questions) EXPECT_EQ(q.world.ask(routine, q.id), q.expected) << q.name;
}

TEST(DegreeOfPolymerization, OfPolymersPrefersAttributeThenMomentsThenOne)
{
    const Attribute z{"ZMOM", 2}, f{"FMOM", 100};
    const double above_one = std::nextafter(1.0, 2.0), below_missing = std::nextafter(missing, 0.0);
    auto ends = World{}.segments({{"E", 15, SegmentType::end}, "R", {"F", 29, SegmentType::end}});
    auto more_ends = World{}.segments({"R"}).end_segments({"R", "R", "R"});
    expect_answers(
        POLY_GETDPN,
        {{"own attribute just above 1 wins over moments", copolymer({{"DPN", above_one}, z, f}), above_one},
         {"exactly 1 is not usable: parameter, not moments", copolymer({{"DPN", 1.0}, z, f}), 7},
         {"just below missing is usable", copolymer({{"DPN", below_missing}}), below_missing},
         {"missing is not usable: parameter", copolymer({{"DPN", missing}, z, f}), 7},
         {"zeroth moment at the zero bound", copolymer({{"ZMOM", zero_bound}, f}), 1},
         {"never below one", copolymer({{"ZMOM", 100}, {"FMOM", 50}}), 1},
         {"neither zeroth moment nor end segments", copolymer({f, {"SFLOW", {1, 1}}}), 1},
         {"half the flows of the entries 1 and 2, as many as end segments, whatever their places",
          ends.polymer("P", {{"SFLOW", {3, 1, 96}}}), 50},
         {"more end segments than segments", more_ends.polymer("P", {{"SFLOW", 10}}), 2},
         {"the polymer count of the run decides, not the polymer list",
          copolymer({{"DPN", 9}}).parameter("P", Parameter::dpn, 0.5).polymer_count(0), 0.5}});
}

TEST(DegreeOfPolymerization, OfOligomersCountsTheMakeUpOfThoseLeftAtOne)
{
    const auto oligomer = [](double parameter) {
        auto world = World{}.segments({"A", "B"}).oligomer("O", {{"A", 2}, {"B", 3}});
        return world.parameter("O", Parameter::dpn, parameter);
    };
    auto part = World{}.segments({{"A", 100}}).oligomer("O", {{"A", 0.25}}).conventional("W");
    part.parameter("W", Parameter::dpn, 0.5);
    auto unlisted = copolymer({}).component("O", ComponentClass::oligomer, 77);
    unlisted.parameter("O", Parameter::dpn, 1 + 1e-11);
    expect_answers(POLY_GETDPN, {{"within the tolerance", oligomer(1 + 0.9e-10), 5, "O"},
                                 {"outside of it", oligomer(1 + 2e-10), 1 + 2e-10, "O"},
                                 {"below one", oligomer(0.5), 1, "O"},
                                 {"part of a segment", part, 1, "O"},
                                 {"others in a run with chains", part, 1, "W"},
                                 {"not listed", unlisted, 1 + 1e-11, "O"}});
    expect_answers(POLY_GETMRF, {{"part of a segment", part, 100, "O"}});
    expect_answers(POLY_GETMWN, {{"not listed", unlisted, 77 * (1 + 1e-11), "O"}});
}

TEST(MeanSegmentWeight, PrefersAttributeThenFractionsThenFlowsThenPlainMean)
{
    const auto hidden = copolymer({{"SFRAC", {1, 0}}, {"SFLOW", {3, 1}}}).hidden_attribute("P", "SFRAC", -1);
    auto unlisted = World{}.segments({"A"}).component("P", ComponentClass::polymer, 1000);
    auto oligomers = World{}.segments({{"A", 100}}).oligomer("O", {{"A", 1}}, 9).oligomer("Z", {{"A", 0}}, 9);
    oligomers.class_of("O", ComponentClass::conventional).class_of("Z", ComponentClass::polymer);
    oligomers.oligomer("M", {{"A", 1}}).class_of("M", ComponentClass::polymer);
    oligomers.attributes("M", {{"MWSEG", 60}});
    expect_answers(
        POLY_GETMRF,
        {{"attribute just above 1", copolymer({{"MWSEG", 1.25}, {"SFRAC", {1, 0}}}), 1.25},
         {"attribute of 1 is not usable", copolymer({{"MWSEG", 1.0}, {"SFRAC", {0.2, 0.6}}}), 62.5},
         {"missing attribute", copolymer({{"MWSEG", missing}, {"SFRAC", {0.2, 0.6}}}), 62.5},
         {"fractions before flows", copolymer({{"SFRAC", {0, 3}}, {"SFLOW", {3, 0}}}), 50},
         {"a missing element counts as an equal share", copolymer({{"SFRAC", {missing, 1.5}}}), 62.5},
         {"total at the zero bound", copolymer({{"SFRAC", {zero_bound, 0}}}), 75},
         {"total above it", copolymer({{"SFRAC", {std::nextafter(zero_bound, 1.0), 0}}}), 100},
         {"only an offset of exactly 0 turns to the flows", hidden, 75},
         {"one segment", World{}.segments({{"A", 100}}).polymer("P", {}, 1000), 100},
         {"no segments", World{}.polymer("P", {}, 1000), 1000},
         {"no polymer block", copolymer({{"MWSEG", 60}}).without_polymer_block(), 1000},
         {"no chains listed", unlisted.attributes("P", {{"MWSEG", 60}}), 1000},
         // The make-up of whatever the oligomer list names.
         {"conventional", oligomers, 100, "O"},
         {"polymer", oligomers, 0, "Z"},
         {"polymer with an attribute", oligomers, 60, "M"}});
}

TEST(ChainAverages, OfAListWithAllKindsOfComponents)
{
    // The first moment of P is not the sum of its segment flows, which alone gives MRT and PDI.
    auto world = copolymer({{"ZMOM", 2}, {"FMOM", 10}, {"SMOM", 50}, {"SFLOW", {6, 2}}}).pdi_mode(99);
    world.polymer("Q", {{"ZMOM", 1}, {"SFLOW", {3, 0}}}).oligomer("O", {{"A", 2}, {"B", 3}}, 9);
    world.conventional("W", 18).parameter("W", Parameter::pdi, 1.5).parameter("W", Parameter::dpn, 0.5);
    EXPECT_EQ(averages(world, {"W", "P", "O", "Q"}), (Averages{{1, 18, 18, 18, 1.5, 27},
                                                               {5, 87.5, 437.5, 350, 1.5625, 683.59375},
                                                               {5, 70, 350, 9, 1, 350},
                                                               {3, 100, 300, 300, 1, 300}}));
}

TEST(ChainAverages, FromFlowsNeedZerothMomentAndMassWithinTheirBounds)
{
    const Attribute s{"SMOM", 50}, flows{"SFLOW", {6, 2}};
    for (const Attributes& unusable :
         {Attributes{s, flows}, {{"ZMOM", missing}, s, flows}, {{"ZMOM", zero_bound}, s, flows}}) {
        expect_answers(POLY_GETMRT, {{"unusable", copolymer(unusable), 1000}});
        expect_answers(POLY_GETPDI, {{"unusable", copolymer(unusable), 3}});
    }
    expect_answers(POLY_GETMRT, {{"without second moment", copolymer({{"ZMOM", 2}, flows}), 350}});

    // The mass has to be above the zero bound for MRT; for PDI both flows and mass may be the bound itself.
    // Streams of the embedded host refuse a NaN, so the molecular weight carries it.
    const struct {
        double weight, flow, mrt, pdi;
    } cases[] = {{1, zero_bound, 9, 4},
                 {0.5, zero_bound, 9, 3},
                 {100, zero_bound / 2, 12.5, 3},
                 {std::nan(""), 3, 9, 3}};
    for (const auto& c : cases) {
        auto world = World{}.segments({{"A", c.weight}});
        world.polymer("P", {{"ZMOM", 4 * zero_bound}, {"SMOM", zero_bound}, {"SFLOW", c.flow}}, 9);
        EXPECT_EQ(world.parameter("P", Parameter::pdi, 3).ask(POLY_GETPDI, "P"), c.pdi);
        EXPECT_EQ(world.ask(POLY_GETMRT, "P"), c.mrt);
    }
}

TEST(ChainAverages, ReturnParametersWithoutPolymerData)
{
    const Attributes moments{{"ZMOM", 2}, {"SMOM", 50}, {"SFLOW", {6, 2}}};
    for (const minihost::BlockId id : {0, -1}) {
        auto world = copolymer(moments).without_polymer_block(id).parameter("P", Parameter::dpn, 0.5);
        EXPECT_EQ(averages(world, {"P"}), (Averages{{0.5, 1000, 1000, 1000, 3, 3000}}));
    }
    auto unlisted = World{}.segments({"A", "B"}).component("P", ComponentClass::polymer, 1000);
    unlisted.attributes("P", moments).parameter("P", Parameter::pdi, 3);
    expect_answers(POLY_GETMRT, {{"not listed", unlisted, 1000}});
    expect_answers(POLY_GETPDI, {{"not listed", unlisted, 3}});
    auto bare = World{}.conventional("W", 18).without(Parameter::dpn).without(Parameter::pdi);
    EXPECT_EQ(averages(bare, {"W"}), (Averages{{1, 18, 18, 18, 1, 18}}));
    EXPECT_EQ(bare.without(Parameter::molecular_weight).ask(POLY_GETMWN, "W"), 0);
}

TEST(ChainAverages, LocateNoListThatNoEntryNeeds)
{
    auto world = copolymer({{"ZMOM", 2}, {"SMOM", 50}, {"SFLOW", {6, 2}}}).pdi_mode(100);
    world.conventional("V").conventional("W");
    EXPECT_EQ(world.ask(POLY_GETPDI, "P"), 3);
    const auto questions = [&](auto* routine, const std::vector<std::string>& ids) {
        const minihost::ServiceLog log;
        world.ask(routine, ids);
        return log.count();
    };
    EXPECT_EQ(questions(POLY_GETMWW, {"V", "W"}), 4) << "two for the class of each";
    EXPECT_EQ(questions(POLY_GETMWN, {"V", "W"}), 5) << "and one for the polymer data";
    EXPECT_EQ(questions(POLY_GETPDI, {"P", "P"}), 1);
}

TEST(ChainAverages, FromRowsOfASegmentCountMatrixAskNothing)
{
    // Three components; 2 and 3 are segments. Row 1 is a chain, row 2 counts itself in column 1.
    const Values scm{99, 1.5, 7, /**/ 60, 8, 9, /**/ 20, 8, 9}, weights{5, 100, 50};
    const Ints segments{2, 3}, flags{1, 2, 0}, list{2, 1, 3};
    const minihost::ServiceLog log;
    for (const auto routine : {POLY_GETDPN1, POLY_GETDPN2}) {
        GuardedReals dpn(3);
        call(routine, 3, 2, segments, scm, 3, list, dpn, flags);
        EXPECT_EQ(dpn.values(), (Values{1.5, 80, 7}));
        call(routine, 3, 0, segments, scm, 3, list, dpn, flags);
        EXPECT_EQ(dpn.values(), (Values{1.5, 0, 7}));
        EXPECT_TRUE(dpn.fence_holds());
    }
    GuardedReals mwn(3);
    call(POLY_GETMWN1, 3, weights, 2, segments, scm, 3, list, mwn, flags);
    EXPECT_EQ(mwn.values(), (Values{100, 7000, 50}));
    EXPECT_TRUE(mwn.fence_holds());
    EXPECT_EQ(log.count(), 0);
}

}  // namespace
