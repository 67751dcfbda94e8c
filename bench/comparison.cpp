// Routines compared with plain loops of the same arithmetic, on the same data.
//
//   polyprops_comparison                              the names of the cases, with their sizes
//   polyprops_comparison POLY_KIJ5 60 library 1000    nanoseconds per call of the library:
//                                                     the fastest of ten runs of 1000 calls
//   polyprops_comparison POLY_KIJ5 60 loop 1000       the same of the loop
//
// Both ways are called first and their results compared: they must agree but for rounding.
#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <iostream>
#include <string_view>
#include <vector>

#include "bench/benchmark_host.h"
#include "polyprops/polyprops.h"

namespace bench {

using Reals = std::vector<Real>;
using Ints = std::vector<Int>;

constexpr Int sites = 5;
constexpr Int positions = 6;

// The data of every case: a grid of `size` points, and pairs of `size` components of which every twelfth has
// a reference temperature of its own.
struct Data {
    explicit Data(Int n) : size(n), x(n), p(positions * n * n), rows(n, 1.0), mask(n, 0)
    {
        const Int none = 0;
        const Real longest_chain = 1e6;
        Real weight = 0;
        Reals unused(n);
        POLY_CSDINI(&n, &none, x.data(), &longest_chain, &weight, unused.data(), nullptr);
        for (Int pair = 0; pair < n * n; ++pair) {
            const Real u = static_cast<Real>(pair % 97) / 97;
            const Real block[positions] = {0.1 + u,  -0.2 * u, 0.03,
                                           0.01 * u, -0.002,   pair % 12 ? 298.15 : 300.0};
            std::copy_n(block, positions, p.begin() + positions * pair);
        }
    }

    Int size, mode = 0, both = 2;
    Real temperature = 341.7;
    Reals x, p, rows;
    Ints mask;
    Reals tau{1e-4, 3e-4, 1e-3, 3e-3, 1e-2}, beta{0, 1e-5, 0, 1e-4, 0}, amounts{1, 2, 3, 2, 1};
};

struct Results {
    explicit Results(Int n) : weights(sites + 1), first(n * std::max(n, sites)), second(first) {}
    Reals weights, first, second;
};

// ---- the plain loops ----

[[gnu::noinline]] void loop_csdcal(const Data& d, Results& r)
{
    const Int n = d.size;
    Real added = 0;
    for (Int j = 0; j < sites; ++j) added += d.amounts[j];
    const Real before = r.weights[sites];
    const Real after = before + added;
    for (Int k = 0; k < n; ++k) {
        r.second[k] = 0;
        for (Int j = 0; j < sites; ++j) {
            const Real s = d.tau[j] + d.beta[j];
            const Real x = d.x[k];
            const Real g =
                std::exp(std::clamp(-s * x, -250.0, 80.59)) * x * s * (0.5 * x * d.beta[j] * s + d.tau[j]);
            Real& value = r.first[j * n + k];
            value = (g * d.amounts[j] + value * before) / after;
            r.second[k] += value;
        }
    }
    for (Int j = 0; j < sites; ++j) r.weights[j] += d.amounts[j];
    r.weights[sites] = after;
}

// Calls evaluate(element, coefficients, x, reference temperature) for every pair, row by row.
template <class Evaluate>
void each_pair(const Data& d, bool diagonal, Evaluate evaluate)
{
    for (Int i = 0; i < d.size; ++i)
        for (Int j = 0; j < d.size; ++j) {
            const Real* const p = &d.p[positions * (j * d.size + i)];
            if (diagonal || i != j) evaluate(j * d.size + i, p, d.temperature / p[5], p[5]);
        }
}

[[gnu::noinline]] void loop_tbkij3(const Data& d, Results& r)
{
    each_pair(d, true, [&](Int at, const Real* p, Real x, Real) {
        r.first[at] = (p[4] * x + p[3]) * x + (std::log(x) * p[2] + p[0] + p[1] / x);
    });
}

[[gnu::noinline]] void loop_tbkij4(const Data& d, Results& r)
{
    each_pair(d, false, [&](Int at, const Real* p, Real x, Real reference) {
        r.first[at] = (p[4] * x + p[3]) * x + (std::log(x) * p[2] + p[0] + p[1] / x);
        r.second[at] = (p[3] - p[1] / (x * x) + p[2] / x + 2 * p[4] * x) / reference;
    });
}

[[gnu::noinline]] void loop_kij5(const Data& d, Results& r)
{
    each_pair(d, false, [&](Int at, const Real* p, Real x, Real) {
        r.first[at] = (p[4] * x + p[3]) * x + p[1] / x + p[0] + std::log(x) * p[2];
    });
}

[[gnu::noinline]] void loop_dkij5(const Data& d, Results& r)
{
    each_pair(d, false, [&](Int at, const Real* p, Real x, Real) {
        r.first[at] = -p[1] / x + p[2] + p[3] * x + 2 * p[4] * (x * x);
    });
}

// ---- the routines ----

void csdcal(const Data& d, Results& r)
{
    POLY_CSDCAL(&d.size, &sites, &d.mode, d.tau.data(), d.beta.data(), d.amounts.data(), d.x.data(),
                r.weights.data(), r.second.data(), r.first.data());
}
void tbkij3(const Data& d, Results& r)
{
    POLY_TBKIJ3(&d.temperature, &positions, &positions, &d.size, d.p.data(), r.first.data());
}
void tbkij4(const Data& d, Results& r)
{
    POLY_TBKIJ4(&d.temperature, &positions, &positions, &d.size, d.p.data(), r.first.data(), r.second.data(),
                &d.both, d.rows.data());
}
void kij5(const Data& d, Results& r)
{
    POLY_KIJ5(&d.temperature, &positions, &positions, &d.size, d.p.data(), d.rows.data(), d.mask.data(),
              r.first.data());
}
void dkij5(const Data& d, Results& r)
{
    POLY_DKIJ5(&d.temperature, &positions, &positions, &d.size, d.p.data(), d.rows.data(), d.mask.data(),
               r.first.data());
}

using Way = void (*)(const Data&, Results&);

struct Case {
    std::string_view name;
    Way library, loop;
    std::vector<Int> sizes;
};
const Case cases[] = {{"POLY_CSDCAL", csdcal, loop_csdcal, {128, 1024}},
                      {"POLY_TBKIJ3", tbkij3, loop_tbkij3, {10, 60, 200}},
                      {"POLY_TBKIJ4", tbkij4, loop_tbkij4, {10, 60, 200}},
                      {"POLY_KIJ5", kij5, loop_kij5, {10, 60, 200}},
                      {"POLY_DKIJ5", dkij5, loop_dkij5, {10, 60, 200}}};

bool agree(const Reals& a, const Reals& b)
{
    return std::equal(a.begin(), a.end(), b.begin(),
                      [](Real u, Real v) { return std::fabs(u - v) <= 1e-14 * std::fabs(u); });
}

bool agree(const Case& c, const Data& data)
{
    Results library(data.size);
    Results loop(data.size);
    for (int increment = 0; increment < 2; ++increment) {
        c.library(data, library);
        c.loop(data, loop);
    }
    return agree(library.first, loop.first) && agree(library.second, loop.second) &&
           agree(library.weights, loop.weights);
}

Real nanoseconds_per_call(Way way, const Data& data, Int calls)
{
    using Clock = std::chrono::steady_clock;
    Results results(data.size);
    auto fastest = Clock::duration::max();
    for (int run = 0; run < 10; ++run) {
        const auto start = Clock::now();
        for (Int call = 0; call < calls; ++call) way(data, results);
        fastest = std::min(fastest, Clock::now() - start);
    }
    return std::chrono::duration<Real, std::nano>(fastest).count() / static_cast<Real>(calls);
}

int run(std::string_view name, Int size, std::string_view way, Int calls)
{
    const auto is_it = [name](const Case& c) { return c.name == name; };
    const auto* const found = std::find_if(std::begin(cases), std::end(cases), is_it);
    if (found == std::end(cases) || (way != "library" && way != "loop") || size < 1 || calls < 1) {
        std::cerr << "polyprops_comparison: expected a case, a size, \"library\" or \"loop\", and a number "
                     "of calls\n";
        return 2;
    }
    const auto host = lay_run(Run{5});
    const Data data(size);
    if (!agree(*found, data)) {
        std::cerr << "polyprops_comparison: " << name << " and its loop disagree\n";
        return 1;
    }
    std::cout << nanoseconds_per_call(way == "loop" ? found->loop : found->library, data, calls) << '\n';
    return 0;
}

Int number(std::string_view text)
{
    Int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc{} && end == text.data() + text.size() ? value : 0;
}

}  // namespace bench

int main(int argc, char** argv)
{
    using namespace bench;
    if (argc == 5) return run(argv[1], number(argv[2]), argv[3], number(argv[4]));
    for (const Case& c : cases)
        for (const Int size : c.sizes) std::cout << c.name << ' ' << size << '\n';
    return argc == 1 ? 0 : 2;
}
