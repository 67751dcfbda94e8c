#include <gtest/gtest.h>
#include <polyprops/host.h>
#include <polyprops/polyprops.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <sstream>

#include "minihost/service_log.h"
#include "support/stored.h"
#include "support/world.h"

#ifdef HAS_FORTRAN
extern "C" void fortran_real_field(const double* value, char* field);
#endif

namespace {

using support::World;
using Int = std::int64_t;
using Reals = std::vector<double>;

// A composite distribution, and nothing for the summary file.
struct Distribution {
    Reals x, y;
    Int gpc = 0;

    std::string report(World& world, Int lines_per_page) const
    {
        const auto n = static_cast<Int>(x.size());
        const Int none = 0;
        const double scale = 1;
        auto& host = world.host();
        host.summary().set_report_switch(0);
        host.report().set_title("polyethylene, five sites");
        RP_PAGE[4 - 1] = lines_per_page;
        POLY_CSDPLOT(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                     &n, x.data(), y.data(), &none, &scale, &none, &gpc);
        return host.report().text();
    }
};

// Most probable distribution with a number average of 400 on a logarithmic grid.
Distribution most_probable(Int n)
{
    Distribution d;
    const double longest_chain = 1e5, s = 1.0 / 400;
    const Int none = 0;
    double weight = 0;
    d.x = d.y = Reals(static_cast<std::size_t>(n));
    POLY_CSDINI(&n, &none, d.x.data(), &longest_chain, &weight, d.y.data(), nullptr);
    for (std::size_t k = 0; k < d.x.size(); ++k) d.y[k] = s * s * d.x[k] * std::exp(-s * d.x[k]);
    return d;
}

TEST(DistributionReport, EqualsTheStoredPages)
{
    const struct {
        Int points, lines_per_page;
        const char* name;
    } cases[] = {{12, 60, "reports/12_points_60_lines.txt"},
                 {12, 8, "reports/12_points_8_lines.txt"},
                 {200, 60, "reports/200_points_60_lines.txt"},
                 {200, 8, "reports/200_points_8_lines.txt"}};
    for (const auto& c : cases) {
        World world;
        EXPECT_EQ(most_probable(c.points).report(world, c.lines_per_page), support::stored(__FILE__, c.name))
            << c.name;
    }
}

TEST(DistributionReport, StopsAfterTheTitleWithoutArea)
{
    const struct {
        const char* name;
        Distribution distribution;
        double zero_bound;
        bool table;
    } cases[] = {
        {"no points", {{}, {}}, 1e-15, false},
        {"one point", {{5}, {1}}, 1e-15, false},
        {"area below the bound", {{1, 3}, {0.5, 0.5}}, std::nextafter(1, 2), false},
        {"area at the bound", {{1, 3}, {0.5, 0.5}}, 1, true},
        {"in GPC form heights are divided by the length", {{1, 3}, {0.5, 1.5}, 1}, 1, true},
    };
    for (const auto& c : cases) {
        auto world = World{}.bounds(1e35, c.zero_bound);
        const std::string report = c.distribution.report(world, 60);
        EXPECT_EQ(report.ends_with("\n                       *** POLYMER DISTRIBUTIONS *** \n"), !c.table)
            << c.name;
        EXPECT_EQ(report.find("(GPC style)") != report.npos, c.table && c.distribution.gpc != 0) << c.name;
    }
}

using Reservations = std::vector<std::pair<Int, Int>>;  // lines, new-page flag

Reservations reservations(const minihost::ServiceLog& log)
{
    Reservations result;
    for (const auto& call : log.calls())
        if (call.service == "RP_RESERVE_LINES") result.emplace_back(call.subject, call.selector);
    return result;
}

TEST(DistributionReport, StartsItsTableWhereThereIsRoom)
{
    const struct {
        const char* name;
        Int points, lines_per_page;
        Reservations reserved;
    } cases[] = {
        {"eleven lines left", 9, 13, {{2, 0}, {11, 0}, {6, 0}, {2, 0}}},
        {"ten lines left", 9, 12, {{2, 0}, {12, 1}, {5, 0}, {2, 0}}},
        {"a page of six holds two points", 3, 6, {{2, 0}, {6, 1}, {5, 0}, {2, 0}}},
        {"a shorter page is taken as six", 3, 5, {{2, 0}, {6, 1}, {5, 0}, {2, 0}}},
        {"so is one without lines", 3, -1, {{2, 0}, {6, 1}, {5, 0}, {2, 0}}},
    };
    for (const auto& c : cases) {
        World world;
        const minihost::ServiceLog log;
        most_probable(c.points).report(world, c.lines_per_page);
        EXPECT_EQ(reservations(log), c.reserved) << c.name;
    }
}

std::vector<std::string> fields(const Reals& values)
{
    // A zero bound below every area lets the table show any values.
    auto world = World{}.bounds(1e35, -std::numeric_limits<double>::infinity());
    std::vector<std::string> result;
    std::istringstream report(Distribution{Reals(values.size(), 1.0), values}.report(world, 1'000'000));
    for (std::string line; std::getline(report, line);) {
        if (line.size() < 38 || line.substr(line.size() - 24, 11) != "  1.000    ") continue;
        result.push_back(line.substr(line.size() - 12, 11));
    }
    return result;
}

TEST(RealField, HasFourSignificantDigits)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const struct {
        double value;
        const char* field;
    } cases[] = {
        {0.0, "  0.000    "},      {-0.0, "  0.000    "},      {1.5, "  1.500    "},
        {-1234, " -1234.    "},    {0.1, " 0.1000    "},       {-0.5, "-0.5000    "},
        {0.09999, " 0.9999E-01"},  {0.099996, " 0.1000    "},  {9999.4, "  9999.    "},
        {9999.6, " 0.1000E+05"},   {9.9995, "  9.999    "},    {-1e-5, "-0.1000E-04"},
        {1e99, " 0.1000+100"},     {1e98, " 0.1000E+99"},      {-5e-324, "-0.4941-323"},
        {infinity, "   Infinity"}, {-infinity, "  -Infinity"}, {std::nan(""), "        NaN"},
    };
    Reals values;
    for (const auto& c : cases) values.push_back(c.value);
    const auto printed = fields(values);
    ASSERT_EQ(printed.size(), std::size(cases));
    for (std::size_t k = 0; k < printed.size(); ++k) EXPECT_EQ(printed[k], cases[k].field) << cases[k].value;
}

TEST(RealField, EqualsTheFortranRuntimes)
{
#ifndef HAS_FORTRAN
    GTEST_SKIP() << "no Fortran compiler was found";
#else
    Reals values{0.0};
    const auto add_around = [&](double edge) {
        double below = edge, above = edge;
        for (int step = 0; step < 40; ++step) {
            for (const double v : {below, above}) values.insert(values.end(), {v, -v});
            below = std::nextafter(below, 0);
            above = std::nextafter(above, 1e300);
        }
    };
    for (const double edge : {0.1, 0.09999, 0.099995, 0.099985, 0.99995, 1.0, 9.9995, 99.995, 999.95, 9998.5,
                              9999.5, 1e4, 1e-99, 1e-100, 1e99, 1e100})
        add_around(edge);
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> exponent(-12, 12);
    while (values.size() < 60'000) values.push_back(std::pow(10.0, exponent(random)));
    for (int k = 0; k < 2000; ++k) values.push_back(0.5 + k * 5);  // ties at the last digit
    while (values.size() < 110'000) {
        const double any = std::bit_cast<double>(random());
        if (std::isfinite(any)) values.push_back(any);
    }
    const auto printed = fields(values);
    ASSERT_EQ(printed.size(), values.size());
    for (std::size_t k = 0; k < values.size(); ++k) {
        // The double next to 9.9995 lies below it; the run-time library takes it for a value that rounds up.
        if (std::fabs(values[k]) == 9.9995) continue;
        std::string expected(11, '?');
        fortran_real_field(&values[k], expected.data());
        ASSERT_EQ(printed[k], expected) << std::hexfloat << values[k] << ", value " << k;
    }
#endif
}

}  // namespace
