// One call of one routine on a run of a given size, for instruction counts.
//
//   polyprops_routines                   the names of the routines
//   polyprops_routines POLY_GETDPN 100   calls it once with 100 components, all of them listed
#include <charconv>
#include <iostream>
#include <numeric>
#include <string_view>
#include <vector>

#include "bench/benchmark_host.h"
#include "polyprops/polyprops.h"

namespace bench {
namespace {

template <class T>
struct Array : std::vector<T> {
    using std::vector<T>::vector;
    operator T*() { return this->data(); }
};
using Ints = Array<Int>;
using Reals = Array<Real>;

Ints counting(Int count, Int first)
{
    Ints values(static_cast<std::size_t>(count));
    std::iota(values.begin(), values.end(), first);
    return values;
}

// The arguments of every routine; a routine writes to k, i1 to i4, r1 to r7, work, m1, m2 and mi.
struct Arguments {
    Arguments(const Run& run, const minihost::StreamView& stream)
        : nc(run.nc),
          nseg(run.group),
          np(run.group),
          nk(run.nc - run.group),
          polymer(run.first_polymer()),
          k0(stream.first_flow.front()),
          sv(stream.values)
    {
        for (Int j = 1; j <= nc; ++j) {
            const bool chains = run.is_polymer(j) || run.is_oligomer(j);
            iflag.push_back(chains ? 1 : 0);
            if (!chains) scm.at(j - 1) = 1.0;
            for (Int s = 0; chains && s < nseg; ++s) scm.at(s * nc + j - 1) = 2.0 + static_cast<Real>(s % 3);
        }
    }

    Int nc, nseg, np, nk, polymer, k0;
    const Real* sv;
    Int sel = 1, one = 1, mode = 1, ns = site_types + 1, ktype = 1, k = 0;
    Real chain_molecular_weight = 7000;
    Ints idx = counting(nc, 1), iseg = counting(nseg, 1), posp = counting(np, 1), posk = counting(nk, np + 1);
    Ints iflag;
    Reals x = Reals(nc, 0.001), mw = Reals(nc, 50.0), q = Reals(nc, 3.0);
    Reals scm = Reals(nc * nc, 0.0);
    Ints i1 = Ints(2 * nc), i2 = i1, i3 = i1, i4 = i1;
    Reals r1 = Reals(2 * nc), r2 = r1, r3 = r1, r4 = r1, r5 = r1, r6 = r1, r7 = r1;
    Reals mwn = Reals(nc, 5000.0), m1 = Reals(nc * nc), m2 = m1;
    Ints mi = Ints(nc * nc);
};

struct Case {
    std::string_view name;
    void (*call)(Arguments& a);
};

#define CASE(routine, ...)                                    \
    Case                                                      \
    {                                                         \
#routine, [](Arguments & a) { routine(__VA_ARGS__); } \
    }

const Case cases[] = {
    // chain
    CASE(POLY_GETDPN, &a.sel, &a.nc, a.idx, a.r1),
    CASE(POLY_GETDPN1, &a.nc, &a.nseg, a.iseg, a.scm, &a.nc, a.idx, a.r1, a.iflag),
    CASE(POLY_GETDPN2, &a.nc, &a.nseg, a.iseg, a.scm, &a.nc, a.idx, a.r1, a.iflag),
    CASE(POLY_GETMRF, &a.sel, &a.nc, a.idx, a.r1),
    CASE(POLY_GETMWN, &a.sel, &a.nc, a.idx, a.r1),
    CASE(POLY_GETMWN1, &a.nc, a.mw, &a.nseg, a.iseg, a.scm, &a.nc, a.idx, a.r1, a.iflag),
    CASE(POLY_GETMRT, &a.sel, &a.nc, a.idx, a.r1),
    CASE(POLY_GETMWW, &a.sel, &a.nc, a.idx, a.r1),
    CASE(POLY_GETPDI, &a.sel, &a.nc, a.idx, a.r1),
    CASE(POLY_GETSMF, &a.sel, &a.polymer, a.r1),
    CASE(POLY_GETSWF, &a.sel, &a.polymer, a.r1),
    CASE(POLY_SWFVEC, &a.sel, &a.nc, &a.nc, a.idx, a.m1),
    CASE(POLY_GETSMF1, &a.polymer, &a.nc, a.scm, &a.nseg, a.iseg, a.r1),
    CASE(POLY_GETSWF1, &a.polymer, &a.nc, a.mw, a.scm, &a.nseg, a.iseg, a.r1),
    CASE(POLY_GETMOMENTS, a.sv, &a.one, &a.k0, &a.ktype, a.mw, &a.ns, a.r1, a.r2, a.r3, a.r4),
    CASE(POLY_POLYRESULTS, a.sv, a.sv, &a.one, &a.k0, &a.ktype, a.mw, &a.ns, a.r1, a.r2, a.r3, a.r4, a.r5, a.r6, a.r7),
    CASE(POLY_GETRAT, &a.sel, &a.nc, a.idx, a.x, a.r1),
    CASE(POLY_GETISP, &a.nc, a.idx, nullptr, a.i1),
    CASE(POLY_GETCRY, nullptr, &a.nc, a.idx, a.r1),
    // basis
    CASE(POLY_XATOXT, &a.nc, a.idx, a.mw, a.x, a.r1),
    CASE(POLY_GETXTRUE, &a.nc, a.idx, a.x, &a.nc, a.mw, &a.nseg, a.iseg, a.iflag, a.scm, a.r1),
    CASE(POLY_VATOVT, &a.nc, a.idx, a.mw, a.mwn, a.x, a.r1, &a.mode),
    CASE(POLY_VATOVX, &a.nc, a.idx, a.mw, a.mwn, a.x, a.r1, &a.mode, nullptr, a.iflag),
    CASE(POLY_XATOWT, a.x, &a.nc, a.idx, a.r1),
    CASE(POLY_XTTOWT, &a.nc, a.x, a.mw, a.r1),
    CASE(POLY_GETSEG, &a.sel, &a.polymer, &a.k, a.i1, a.r1),
    CASE(POLY_GETPSEG, &a.nc, a.idx, &a.nc, a.q, a.r1, a.mi, a.m1, &a.k, a.i1, a.i2),
    CASE(POLY_GETMFS, &a.nc, &a.polymer, &a.nseg, a.iseg, a.scm, a.r1),
    CASE(POLY_GETWFS, &a.nc, &a.polymer, a.mw, &a.nseg, a.iseg, a.scm, a.r1),
    CASE(POLY_XPTOXS, &a.nc, a.idx, a.x, nullptr, a.i1, a.r1, &a.k, a.i2, a.r2, &a.one),
    CASE(POLY_XTTOXS, &a.nc, a.idx, a.iflag, a.x, &a.nc, a.scm, &a.nseg, a.iseg, &a.k, a.i1, a.r1),
    CASE(POLY_PFTOSF, &a.nc, a.idx, a.x, a.iflag, &a.nc, a.scm, &a.nseg, a.iseg, &a.k, a.i1, a.r1, &a.one),
    CASE(POLY_PTTOPS, &a.nc, a.idx, a.iflag, a.x, &a.nc, a.scm, &a.nseg, a.iseg, &a.nc, a.idx, a.r1, a.r2),
    CASE(POLY_QSGTOQ, &a.nc, a.idx, a.q, a.r1),
    CASE(POLY_QSTOQA, a.mw, &a.nc, a.idx, a.q, a.r1),
    CASE(POLY_IDXSPLIT, &a.nc, a.idx, &a.k, a.i1, a.i2, &a.mode, a.i3, a.i4),
    CASE(POLY_PROPMRG, nullptr, &a.np, &a.nk, a.posp, a.posk, a.x.data(), a.q.data(), a.r1.data()),
    CASE(POLY_GETXSUB, nullptr, a.x, &a.nc, a.idx, a.r1),
    CASE(POLY_WRKPOINT, &a.k, &a.nc, a.idx, a.i1),
    CASE(POLY_SETH2O, &a.nc, a.idx, &a.k),
    // mixture
    CASE(POLY_GETPOL1, &a.nc, a.x, a.idx, a.r1, a.r2, a.r3, a.r4, a.r5, a.r6, &a.nc, a.mw, a.i1, a.m1, a.m2, &a.k, a.i2),
    CASE(POLY_GETPOL2, &a.nc, a.idx, a.r1, a.r2, a.r3, a.r4, a.r5, &a.nc, a.i1, a.m1, a.m2, &a.k, a.i2),
    CASE(POLY_GETPOL3, &a.nc, a.idx, &a.nc, a.r1, &a.k, a.i1, a.i2, a.m1),
    CASE(POLY_GETPOL, &a.sel, &a.nc, a.mw, &a.k, a.i1, &a.nc, a.idx, a.m1),
    CASE(POLY_GETPALL, &a.sel, &a.nc, a.idx, &a.nc, &a.k, a.i1, &a.mode, a.i2, a.m1, a.r1),
    CASE(POLY_GETPMIX, &a.polymer, &a.chain_molecular_weight, &a.nc, a.idx, &a.nc, a.mw, a.i1, a.m1, &a.k, a.i2, a.r1),
    CASE(POLY_GETPMIX1, &a.polymer, &a.chain_molecular_weight, &a.nc, a.idx, a.x, a.r1, a.mwn, nullptr, a.mw),
    CASE(POLY_GETOLI, &a.nc, a.idx, &a.nc, a.scm, &a.k, a.i1, a.m1, a.i2),
    CASE(POLY_GETMAVG, &a.nc, a.q, &a.nseg, a.iseg, a.scm, &a.nc, a.idx, a.r1, a.iflag),
    CASE(POLY_GETSAVG, &a.nc, a.mw, &a.nseg, a.iseg, a.scm, &a.polymer, a.q, a.r1),
    // Its own value is missing, so that it averages.
    Case{"POLY_GETPOLQ",
         [](Arguments& a) {
             a.q.at(a.polymer - 1) = 1e35;
             POLY_GETPOLQ(&a.nc, a.mw, &a.nseg, a.iseg, a.scm, &a.polymer, a.q, a.r1);
         }},
    CASE(POLY_GETFAVG, &a.nc, &a.nseg, a.iseg, a.scm, &a.polymer, a.q, a.r1),
    CASE(POLY_GETFAVGT, &a.nc, &a.nseg, a.iseg, a.scm, &a.polymer, a.q, a.r1),
    CASE(POLY_GETMWS, &a.nc, a.idx, &a.nc, a.mw, &a.nseg, a.iseg, a.iflag, a.scm, a.r1),
    CASE(POLY_GETMWP, &a.nc, a.idx, &a.nc, a.mw, &a.nseg, a.iseg, a.iflag, a.scm, a.r1),
    CASE(POLY_GETWWP, &a.nc, a.idx, &a.nc, a.mw, &a.nseg, a.iseg, a.iflag, a.scm, a.r1),
    CASE(POLY_GETPOLI, &a.sel, &a.nc, a.idx, a.r1),
};

#undef CASE

int run(std::string_view name, Int components)
{
    for (const Case& c : cases) {
        if (c.name != name) continue;
        const Run size{components};
        const auto host = lay_run(size);
        Arguments arguments{size, host->streams().view(stream_name)};
        c.call(arguments);
        return 0;
    }
    std::cerr << "polyprops_routines: unknown routine \"" << name
              << "\"; call it without arguments for the names\n";
    return 1;
}

Int number(std::string_view text)
{
    Int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc{} && end == text.data() + text.size() ? value : 0;
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv)
{
    if (argc == 1) {
        for (const bench::Case& c : bench::cases) std::cout << c.name << '\n';
        return 0;
    }
    const bench::Int components = argc == 3 ? bench::number(argv[2]) : 0;
    if (components < 5 || components > 1000) {
        std::cerr << "usage: polyprops_routines [ROUTINE COMPONENTS], COMPONENTS from 5 to 1000\n";
        return 2;
    }
    return bench::run(argv[1], components);
}
