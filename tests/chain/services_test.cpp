// How often the host is asked: on a list of 20 components each block is located once and each attribute of a
// component asked for at most once. The counts are held so that a change of them is seen.
#include <gtest/gtest.h>

#include <functional>

#include "minihost/service_log.h"
#include "polyprops/polyprops.h"
#include "support/world.h"

using namespace support;

namespace {

struct Asked {
    Int blocks;      // ST_FIND_I and ST_FIND_M
    Int classes;     // CC_IS_POLYMER and CC_IS_OLIGOMER
    Int attributes;  // CC_FIND_ATTR
    bool operator==(const Asked&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Asked& asked)
{
    return out << asked.blocks << " blocks, " << asked.classes << " classes, " << asked.attributes
               << " attributes";
}

// Ten polymers with moments but neither "DPN" nor "MWSEG", five oligomers, five conventional components.
World twenty_components()
{
    World world;
    world.segments({{"A", 100}, {"B", 50}});
    for (int i = 0; i < 10; ++i)
        world.polymer("P" + std::to_string(i), {{"ZMOM", 1}, {"FMOM", 9}, {"SMOM", 99}, {"SFLOW", {6, 3}}});
    for (int i = 0; i < 5; ++i) world.oligomer("O" + std::to_string(i), {{"A", 2}});
    for (int i = 0; i < 5; ++i) world.conventional("C" + std::to_string(i));
    return world;
}

std::vector<Int> listed(const World& world)
{
    std::vector<Int> list;
    for (const char kind : {'P', 'O', 'C'})
        for (int i = 0; i < (kind == 'P' ? 10 : 5); ++i)
            list.push_back(world.index(kind + std::to_string(i)));
    return list;
}

TEST(Services, AreAskedOncePerBlockAndAttribute)
{
    auto world = twenty_components();
    world.host();
    const auto list = listed(world);
    const auto n = static_cast<Int>(list.size());
    ASSERT_EQ(n, 20);
    const Int selector = 1;
    const Int two = 2;
    std::vector<double> out(40);
    const auto per_list = [&](auto* routine) {
        return [&, routine] { routine(&selector, &n, list.data(), out.data()); };
    };
    const auto of_first = [&](auto* routine) {
        return [&, routine] { routine(&selector, list.data(), out.data()); };
    };

    const struct {
        const char* name;
        std::function<void()> call;
        Asked asked;
    } cases[] = {
        {"POLY_GETDPN", per_list(POLY_GETDPN), {4, 30, 30}},
        {"POLY_GETMRF", per_list(POLY_GETMRF), {4, 20, 30}},
        {"POLY_GETMWN", per_list(POLY_GETMWN), {5, 30, 60}},
        {"POLY_GETMRT", per_list(POLY_GETMRT), {3, 20, 20}},
        {"POLY_GETMWW", per_list(POLY_GETMWW), {5, 30, 70}},
        {"POLY_GETPDI", per_list(POLY_GETPDI), {3, 20, 30}},
        {"POLY_GETSMF", of_first(POLY_GETSMF), {4, 1, 2}},
        {"POLY_GETSWF", of_first(POLY_GETSWF), {4, 1, 1}},
        {"POLY_SWFVEC", [&] { POLY_SWFVEC(&selector, &n, &two, list.data(), out.data()); }, {4, 20, 10}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        minihost::ServiceLog log;
        c.call();
        EXPECT_EQ(
            (Asked{log.count("ST_FIND_I") + log.count("ST_FIND_M"),
                   log.count("CC_IS_POLYMER") + log.count("CC_IS_OLIGOMER"), log.count("CC_FIND_ATTR")}),
            c.asked);
        EXPECT_EQ(log.count("CC_POLYMER_BLOCK"), 1);
        for (const char* service :
             {"ST_FIND_I", "ST_FIND_M", "CC_FIND_ATTR", "CC_IS_POLYMER", "CC_IS_OLIGOMER"})
            EXPECT_TRUE(log.repeated(service).empty()) << service;
        EXPECT_EQ(log.count("CC_INDEX"), 0);
    }
}

TEST(Services, LocateNoListThatNoEntryNeeds)
{
    auto world = twenty_components().pdi_mode(100);
    world.host();
    const Int selector = 1;
    const Int n = 2;
    const auto conventional = world.indices({"C0", "C1"});
    const auto polymers = world.indices({"P0", "P1"});
    double out[2];
    minihost::ServiceLog log;
    POLY_GETMWW(&selector, &n, conventional.data(), out);
    EXPECT_EQ(log.count(), 4);
    log.clear();
    POLY_GETMWN(&selector, &n, conventional.data(), out);
    EXPECT_EQ(log.count(), 5);
    EXPECT_EQ(log.count("CC_POLYMER_BLOCK"), 1);
    log.clear();
    POLY_GETPDI(&selector, &n, polymers.data(), out);
    EXPECT_EQ(log.count(), 1);
}

TEST(Services, AreNotAskedByMatrixRoutines)
{
    auto world = twenty_components();
    world.host();
    const Int one = 1;
    const double scm[] = {3};
    const double weights[] = {100};
    double out[1];
    minihost::ServiceLog log;
    POLY_GETDPN1(&one, &one, &one, scm, &one, &one, out, &one);
    POLY_GETDPN2(&one, &one, &one, scm, &one, &one, out, &one);
    POLY_GETMWN1(&one, weights, &one, &one, scm, &one, &one, out, &one);
    POLY_GETSMF1(&one, &one, scm, &one, &one, out);
    POLY_GETSWF1(&one, &one, weights, scm, &one, &one, out);
    EXPECT_EQ(log.count(), 0);
}

}  // namespace
