#include "support/routine_calls.h"

namespace {

using namespace support;

// Z, F, S and W of a stream.
std::vector<GuardedReals> moments(World& world, const char* stream, Int entries)
{
    const auto& view = world.view(stream);
    std::vector<GuardedReals> out(4, GuardedReals(static_cast<std::size_t>(entries)));
    call(POLY_GETMOMENTS, view.values, std::ssize(view.types), view.first_flow, view.types,
         world.molecular_weights(), entries, out[0], out[1], out[2], out[3]);
    return out;
}

// PMASS, PMRS, PMWN, PMWW, PDPN, PDPW and PPDI of one entry.
Values results(World& world, const char* earlier, const char* later, Int entries, Int entry)
{
    const auto& view = world.view(later);
    std::vector<GuardedReals> o(7, GuardedReals(static_cast<std::size_t>(entries)));
    call(POLY_POLYRESULTS, world.view(earlier).values, view.values, std::ssize(view.types), view.first_flow,
         view.types, world.molecular_weights(), entries, o[0], o[1], o[2], o[3], o[4], o[5], o[6]);
    Values values;
    for (const auto& out : o) values.push_back(out(entry));
    return values;
}

const Values nothing(7, 0.0);

TEST(PolymerResults, AverageWhatTheSecondStreamHoldsBeyondTheFirst)
{
    constexpr double tiny = zero_bound;
    const Attribute chains{"ZMOM", 1}, few_segments{"SFLOW", {tiny / 2, 0}};
    const Attributes whole{chains, {"SMOM", 400}, {"SFLOW", {4, 6}}};
    struct Case {
        const char* name;
        double earlier, later;  // flow of the polymer
        Attributes attributes;
        Values expected;
    };
    const Case cases[] = {
        {"all new", 0, 10, whole, {1000, 100, 1000, 4000, 10, 40, 4}},
        {"nothing new", 10, 10, whole, nothing},
        {"mass at the zero bound", 0, tiny / 128, whole, {tiny, tiny / 10, tiny, tiny * 4, 10, 40, 4}},
        {"mass below the zero bound", 0, tiny / 256, whole, nothing},
        {"chains at it", 0, 10, {{"ZMOM", tiny}, {"SFLOW", {4, 6}}}, {1000, 100, 0, 0, 0, 0, 0}},
        {"segments below it", 0, 10, {chains, few_segments}, {1000, 2000 / tiny, 1000, 0, tiny / 2, 0, 0}},
        {"no segments", 0, 10, {chains, {"SMOM", 400}}, {1000, 0, 1000, 0, 0, 0, 0}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        auto world = World{}.segments({"A", "B"}).polymer("P", {}, c.later < 1 ? 128 : 100);
        world.stream("1", {{.flows = {{"P", c.earlier}}, .attributes = {{"P", whole}}}});
        world.stream("2", {{.flows = {{"P", c.later}}, .attributes = {{"P", c.attributes}}}});
        const Values found = results(world, "1", "2", 1, 1);
        for (std::size_t k = 0; k < found.size(); ++k) EXPECT_DOUBLE_EQ(found[k], c.expected[k]) << k;
        EXPECT_EQ(moments(world, "2", 1)[3](1) - moments(world, "1", 1)[3](1), found[0]);
    }
}

TEST(PolymerResults, AreZeroWithoutPolymersWhereMomentsStayUntouched)
{
    auto world = World{}.segments({"A"}).oligomer("O", {{"A", 2}}).stream("1", {{.flows = {{"O", 3}}}});
    for (const Int block : {world.host().polymer_block(), Int{0}, Int{-1}}) {
        world.host().set_polymer_block(block);
        EXPECT_EQ(results(world, "1", "1", 1, 1), nothing);
        for (const auto& m : moments(world, "1", 1)) EXPECT_TRUE(m.untouched());
    }
}

TEST(Moments, OfSitesAddUpAndEachAttributeIsAskedForOnce)
{
    const Attributes p{
        {"SZMOM", {1, 2}}, {"SSMOM", {10, 40}}, {"SSFLOW", {1, 2, 3, 4}}, {"ZMOM", 4}, {"SFLOW", {7, 1}}};
    const Attributes q{{"SZMOM", {4, 8}}, {"SSMOM", {20, 80}}, {"SSFLOW", {5, 6, 7, 8}}};
    auto world = World{}.segments({{"A", 10}, {"B", 1}}).sites(2).polymer("P", {}, 100);
    world.polymer("Q", {}, 1000).stream("EMPTY", {{}, {}, {}});
    world.stream("FULL", {{.flows = {{"P", 2}, {"Q", 3}}, .attributes = {{"P", p}, {"Q", q}}},
                          {.type = 3, .flows = {{"P", 9}}, .attributes = {{"P", q}}},
                          {.flows = {{"P", 1}, {"Q", 0}}, .attributes = {{"P", p}, {"Q", q}}}});
    const auto m = moments(world, "FULL", 3);
    EXPECT_EQ(m[0].values(), (Values{6, 12, 18}));
    EXPECT_EQ(m[1].values(), (Values{17, 29, 46}));
    EXPECT_EQ(m[2].values(), (Values{40, 160, 200}));
    EXPECT_EQ(m[3].values(), (Values{80, 146, 3300})) << "the total is the polymers' own mass";
    const minihost::ServiceLog log;
    EXPECT_EQ(results(world, "EMPTY", "FULL", 3, 2)[2], 146.0 / 12);
    EXPECT_EQ(log.count("CC_FIND_ATTR"), 6);
    EXPECT_TRUE(log.repeated("CC_FIND_ATTR").empty() && log.repeated("ST_FIND_I").empty());

    // One entry is of whole polymers.
    EXPECT_EQ(moments(world, "FULL", 1)[1](1), 16);
    EXPECT_EQ(results(world, "EMPTY", "FULL", 1, 1)[4], 2);
}

TEST(Moments, KnowNoLimitOfSitesOrPolymers)
{
    auto world = World{}.segments({"A"}).sites(13);
    Part part;
    for (int k = 1; k <= 70; ++k) {
        const std::string id = "P" + std::to_string(k);
        world.polymer(id);
        part.flows[id] = 1;
        part.attributes[id] = {{"SSFLOW", {1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, static_cast<double>(k)}}};
    }
    const auto m = moments(world.stream("S", {part}), "S", 14);
    EXPECT_EQ(m[1](13), 70 * 71 / 2);
    EXPECT_EQ(m[1](14), 70 + 70 * 71 / 2);
    EXPECT_EQ(m[0](14), 0) << "an attribute that is not carried counts as 0";
}

}  // namespace
