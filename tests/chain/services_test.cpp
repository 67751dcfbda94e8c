// How often the host is asked: on a list of all kinds of components each block is located once and each
// attribute of a component asked for at most once.
#include <gtest/gtest.h>

#include "polyprops/polyprops.h"
#include "support/asked_once.h"
#include "support/world.h"

using namespace support;

namespace {

// Polymers with moments but neither "DPN" nor "MWSEG", so that averages share attributes.
World of_all_kinds()
{
    const Attributes moments{{"ZMOM", 1}, {"FMOM", 9}, {"SMOM", 99}, {"SFLOW", {6, 3}}};
    auto world = World{}.segments({{"A", 100}, {"B", 50}}).polymer("P0", moments).polymer("P1", moments);
    return world.oligomer("O0", {{"A", 2}}).oligomer("O1", {{"A", 2}}).conventional("C0").conventional("C1");
}

TEST(Services, AreAskedOncePerBlockAndAttribute)
{
    auto world = of_all_kinds();
    world.host();
    const auto list = world.indices({"P0", "P1", "O0", "O1", "C0", "C1"});
    const Int n = std::ssize(list), selector = 1, two = 2;
    std::vector<double> out(12);
    for (const auto routine :
         {POLY_GETDPN, POLY_GETMRF, POLY_GETMWN, POLY_GETMRT, POLY_GETMWW, POLY_GETPDI}) {
        const AskedOnce once;
        routine(&selector, &n, list.data(), out.data());
    }
    for (const auto routine : {POLY_GETSMF, POLY_GETSWF}) {
        const AskedOnce once;
        routine(&selector, list.data(), out.data());
    }
    const AskedOnce once;
    POLY_SWFVEC(&selector, &n, &two, list.data(), out.data());
}

TEST(Services, LocateNoListThatNoEntryNeeds)
{
    auto world = of_all_kinds().pdi_mode(100);
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
    auto world = of_all_kinds();
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
