#include "support/every_routine.h"

#include <polyprops/polyprops.h>

#include <cmath>

namespace support {

World world_with(const std::string& attribute, double value)
{
    return world_with([&](Attribute& each) {
        if (attribute.empty() || each.name == attribute) each.values.assign(each.values.size(), value);
    });
}

World world_with(const std::function<void(Attribute&)>& change)
{
    const auto given = [&](Attributes attributes) {
        std::ranges::for_each(attributes, change);
        return attributes;
    };
    World world;
    world.segments({{"A", 100, SegmentType::end}, {"B", 50}}).sites(1);
    const Attribute weight{"MWN", 2000}, z{"ZMOM", 2}, f{"FMOM", 40}, s{"SMOM", 1600},
        flow{"SFLOW", {30, 10}};
    world.polymer("P", given({{"DPN", 20}, weight, {"MWSEG", 80}, z, f, s, flow, {"SFRAC", {0.5, 0.5}}}));
    world.polymer("Q", given({z, f, s, flow, {"SZMOM", 2}, {"SSFLOW", {30, 10}}, {"SSMOM", 1600}}));
    world.polymer("R", given({weight, flow}));
    return world.oligomer("O", {{"A", 2}, {"B", 1}}).oligomer("T", {{"A", 3}}).conventional("W", 18, "H2O");
}

Arguments::Arguments(World& world, double every_real)
    : n(world.component_count()),
      polymer(world.index("P")),
      segment_list(world.segment_list()),
      flags(static_cast<std::size_t>(n)),
      ones(static_cast<std::size_t>(n), 1),
      unmasked(static_cast<std::size_t>(n)),
      selected(static_cast<std::size_t>(n), 1.0)
{
    const auto room = static_cast<std::size_t>(6 * n * n);
    for (Int c = 1; c <= n; ++c) listed.push_back(c);
    for (const char* id : {"P", "Q", "R", "O", "T"})
        flags.at(static_cast<std::size_t>(world.index(id) - 1)) = 1;
    for (std::size_t i = 0; i < room; ++i)
        values.push_back(std::isinf(every_real) ? 1 + 0.25 * static_cast<double>(i % 7) : every_real);
    real_outputs.assign(9, GuardedReals(room));
    integer_outputs.assign(5, GuardedInts(room));
}

std::vector<Int> Arguments::results() const
{
    std::vector<Int> all{integer.begin(), integer.end()};
    for (const double value : real) all.push_back(std::bit_cast<Int>(value));
    for (const auto& output : real_outputs)
        for (const double value : output.values()) all.push_back(std::bit_cast<Int>(value));
    for (const auto& output : integer_outputs)
        for (const Int value : output.values()) all.push_back(value);
    return all;
}

const std::vector<Routine>& routines_that_only_read()
{
#define ROUTINE(name, ...)                              \
    {                                                   \
#name, [](Arguments & a) { name(__VA_ARGS__); } \
    }
#define LISTED &a.n, a.listed.data()
#define SEGMENTS &a.segments, a.segment_list.data()
#define FLAGS a.flags.data()
#define IN a.values.data()
#define OUT(which) a.reals(which)
#define LIST(which) a.integers(which)
#define COUNT(which) (a.integer.data() + (which))
#define REAL(which) (a.real.data() + (which))
    // clang-format off
    static const std::vector<Routine> routines{
        ROUTINE(POLY_GETDPN, &a.one, LISTED, OUT(1)),
        ROUTINE(POLY_GETDPN1, &a.n, SEGMENTS, IN, LISTED, OUT(1), FLAGS),
        ROUTINE(POLY_GETDPN2, &a.n, SEGMENTS, IN, LISTED, OUT(1), FLAGS),
        ROUTINE(POLY_GETMRF, &a.one, LISTED, OUT(1)),
        ROUTINE(POLY_GETMWN, &a.one, LISTED, OUT(1)),
        ROUTINE(POLY_GETMWN1, &a.n, IN, SEGMENTS, IN, LISTED, OUT(1), FLAGS),
        ROUTINE(POLY_GETMRT, &a.one, LISTED, OUT(1)),
        ROUTINE(POLY_GETMWW, &a.one, LISTED, OUT(1)),
        ROUTINE(POLY_GETPDI, &a.one, LISTED, OUT(1)),
        ROUTINE(POLY_GETSMF, &a.one, &a.polymer, OUT(1)),
        ROUTINE(POLY_GETSWF, &a.one, &a.polymer, OUT(1)),
        ROUTINE(POLY_SWFVEC, &a.one, &a.n, &a.n, a.listed.data(), OUT(1)),
        ROUTINE(POLY_GETSMF1, &a.polymer, &a.n, IN, SEGMENTS, OUT(1)),
        ROUTINE(POLY_GETSWF1, &a.polymer, &a.n, IN, IN, SEGMENTS, OUT(1)),
        ROUTINE(POLY_GETMOMENTS, IN, &a.parts, a.ones.data(), a.ones.data(), IN, &a.sites, OUT(1), OUT(2), OUT(3),
                OUT(4)),
        ROUTINE(POLY_POLYRESULTS, IN, IN + 1, &a.parts, a.ones.data(), a.ones.data(), IN, &a.sites, OUT(1), OUT(2),
                OUT(3), OUT(4), OUT(5), OUT(6), OUT(7)),
        ROUTINE(POLY_GETRAT, &a.one, LISTED, IN, REAL(0)),
        ROUTINE(POLY_GETISP, LISTED, nullptr, LIST(1)),
        ROUTINE(POLY_GETCRY, nullptr, LISTED, OUT(1)),
        ROUTINE(POLY_XATOXT, LISTED, IN, IN, OUT(1)),
        ROUTINE(POLY_GETXTRUE, LISTED, IN, &a.n, IN, SEGMENTS, FLAGS, IN, OUT(1)),
        ROUTINE(POLY_VATOVT, LISTED, IN, IN, IN, OUT(1), &a.one),
        ROUTINE(POLY_VATOVX, LISTED, IN, IN, IN, OUT(1), &a.one, nullptr, FLAGS),
        ROUTINE(POLY_XATOWT, IN, LISTED, OUT(1)),
        ROUTINE(POLY_XTTOWT, &a.n, IN, IN, OUT(1)),
        ROUTINE(POLY_GETSEG, &a.one, &a.polymer, COUNT(0), LIST(1), OUT(1)),
        ROUTINE(POLY_GETPSEG, LISTED, &a.n, IN, OUT(1), LIST(1), OUT(2), COUNT(0), LIST(2), LIST(3)),
        ROUTINE(POLY_GETMFS, &a.n, &a.polymer, SEGMENTS, IN, OUT(1)),
        ROUTINE(POLY_GETWFS, &a.n, &a.polymer, IN, SEGMENTS, IN, OUT(1)),
        ROUTINE(POLY_XPTOXS, LISTED, IN, nullptr, LIST(1), OUT(1), COUNT(0), LIST(2), OUT(2), &a.one),
        ROUTINE(POLY_XTTOXS, LISTED, FLAGS, IN, &a.n, IN, SEGMENTS, COUNT(0), LIST(1), OUT(1)),
        ROUTINE(POLY_PFTOSF, LISTED, IN, FLAGS, &a.n, IN, SEGMENTS, COUNT(0), LIST(1), OUT(1), &a.one),
        ROUTINE(POLY_PTTOPS, LISTED, FLAGS, IN, &a.n, IN, SEGMENTS, SEGMENTS, OUT(1), OUT(2)),
        ROUTINE(POLY_QSGTOQ, LISTED, IN, OUT(1)),
        ROUTINE(POLY_QSTOQA, IN, LISTED, IN, OUT(1)),
        ROUTINE(POLY_IDXSPLIT, LISTED, COUNT(0), LIST(1), LIST(2), COUNT(1), LIST(3), LIST(4)),
        ROUTINE(POLY_PROPMRG, nullptr, &a.n, &a.n, a.listed.data(), a.listed.data(), IN, IN, OUT(1)),
        ROUTINE(POLY_GETXSUB, nullptr, IN, LISTED, OUT(1)),
        ROUTINE(POLY_WRKPOINT, COUNT(0), LISTED, LIST(1)),
        ROUTINE(POLY_SETH2O, LISTED, COUNT(0)),
        ROUTINE(POLY_GETPOL1, &a.n, IN, a.listed.data(), OUT(1), OUT(2), OUT(3), OUT(4), OUT(5), OUT(6), &a.n, IN,
                LIST(1), OUT(7), OUT(8), COUNT(0), LIST(2)),
        ROUTINE(POLY_GETPOL2, LISTED, OUT(1), OUT(2), OUT(3), OUT(4), OUT(5), &a.n, LIST(1), OUT(6), OUT(7),
                COUNT(0), LIST(2)),
        ROUTINE(POLY_GETPOL3, LISTED, &a.n, OUT(1), COUNT(0), LIST(1), LIST(2), OUT(2)),
        ROUTINE(POLY_GETPOL, &a.one, &a.n, IN, COUNT(0), LIST(1), LISTED, OUT(1)),
        ROUTINE(POLY_GETPALL, &a.one, LISTED, &a.n, COUNT(0), LIST(1), COUNT(1), LIST(2), OUT(1), OUT(2)),
        ROUTINE(POLY_GETPMIX, &a.polymer, IN, LISTED, &a.n, IN, LIST(1), OUT(1), COUNT(0), LIST(2), OUT(2)),
        ROUTINE(POLY_GETPMIX1, &a.polymer, IN, LISTED, IN, OUT(1), OUT(2), nullptr, IN),
        ROUTINE(POLY_GETOLI, LISTED, &a.n, IN, COUNT(0), LIST(1), OUT(1), LIST(2)),
        ROUTINE(POLY_GETMAVG, &a.n, IN, SEGMENTS, IN, LISTED, OUT(1), FLAGS),
        ROUTINE(POLY_GETSAVG, &a.n, IN, SEGMENTS, IN, &a.polymer, IN, REAL(0)),
        ROUTINE(POLY_GETPOLQ, &a.n, IN, SEGMENTS, IN, &a.polymer, IN, REAL(0)),
        ROUTINE(POLY_GETFAVG, &a.n, SEGMENTS, IN, &a.polymer, IN, REAL(0)),
        ROUTINE(POLY_GETFAVGT, &a.n, SEGMENTS, IN, &a.polymer, IN, REAL(0)),
        ROUTINE(POLY_GETMWS, LISTED, &a.n, IN, SEGMENTS, FLAGS, IN, OUT(1)),
        ROUTINE(POLY_GETMWP, LISTED, &a.n, IN, SEGMENTS, FLAGS, IN, OUT(1)),
        ROUTINE(POLY_GETWWP, LISTED, &a.n, IN, SEGMENTS, FLAGS, IN, OUT(1)),
        ROUTINE(POLY_GETPOLI, &a.one, LISTED, OUT(1)),
        ROUTINE(POLY_TBPARA, IN, IN, IN, IN, IN, IN, IN, &a.three, REAL(0), REAL(1)),
        ROUTINE(POLY_TBKIJ3, IN, &a.positions, &a.six, &a.n, IN, OUT(1)),
        ROUTINE(POLY_TBKIJ4, IN, &a.positions, &a.six, &a.n, IN, OUT(1), OUT(2), &a.two, a.selected.data()),
        ROUTINE(POLY_KIJ5, IN, &a.positions, &a.six, &a.n, IN, a.selected.data(), a.unmasked.data(), OUT(1)),
        ROUTINE(POLY_DKIJ5, IN, &a.positions, &a.six, &a.n, IN, a.selected.data(), a.unmasked.data(), OUT(1)),
        ROUTINE(POLY_TBPARI, &a.positions, &a.n, OUT(1), &a.two, &a.one),
        ROUTINE(POLY_CSDINI, &a.points, &a.sites, OUT(1), IN, OUT(2), OUT(3), OUT(4)),
        ROUTINE(POLY_CSDADD, &a.points, IN, IN, IN, IN, OUT(1), REAL(0)),
        ROUTINE(POLY_CSDCAL, &a.points, &a.sites, &a.one, IN, IN, IN, IN, OUT(1), OUT(2), OUT(3)),
    };
    // clang-format on
    return routines;
}

}  // namespace support
