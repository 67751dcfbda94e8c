#include <bit>
#include <cfloat>
#include <random>
#include <sstream>

#include "support/files.h"
#include "support/routine_calls.h"

#ifdef HAS_FORTRAN
extern "C" void fortran_real_field(const double* value, char* field);
#endif

namespace {

using namespace support;

// A composite distribution, and nothing for the summary file.
struct Distribution {
    Values x, y;
    Int gpc = 0;

    std::string report(World& world, Int lines_per_page) const
    {
        const Int n = std::ssize(x), none = 0;
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
    const double s = 1.0 / 400;
    double weight = 0;
    Distribution d;
    d.x = d.y = Values(static_cast<std::size_t>(n));
    call(POLY_CSDINI, n, 0, d.x, 1e5, weight, d.y, nullptr);
    for (std::size_t k = 0; k < d.x.size(); ++k) d.y[k] = s * s * d.x[k] * std::exp(-s * d.x[k]);
    return d;
}

TEST(DistributionReport, EqualsTheStoredPages)
{
    for (const Int points : {12, 200})
        for (const Int lines : {8, 60}) {
            World world;
            const auto name = std::to_string(points) + "_points_" + std::to_string(lines) + "_lines.txt";
            EXPECT_EQ(most_probable(points).report(world, lines), stored("report/reports/" + name));
        }
}

TEST(DistributionReport, StartsItsTableWhereThereIsRoomAndStopsAfterTheTitleWithoutArea)
{
    using Reservations = std::vector<std::pair<Int, Int>>;  // lines, new-page flag
    const Reservations title{{2, 0}}, two_points{{2, 0}, {6, 0}, {2, 0}};
    const struct {
        const char* name;
        Distribution distribution;
        double zero_bound;
        Int lines_per_page;
        Reservations expected;
    } cases[] = {
        {"eleven lines left", most_probable(9), 1e-15, 13, {{2, 0}, {11, 0}, {6, 0}, {2, 0}}},
        {"ten lines left", most_probable(9), 1e-15, 12, {{2, 0}, {12, 1}, {5, 0}, {2, 0}}},
        {"a page of six holds two points", most_probable(3), 1e-15, 6, {{2, 0}, {6, 1}, {5, 0}, {2, 0}}},
        {"a shorter page is taken as six", most_probable(3), 1e-15, -1, {{2, 0}, {6, 1}, {5, 0}, {2, 0}}},
        {"no points", {{}, {}}, 1e-15, 60, title},
        {"one point", {{5}, {1}}, 1e-15, 60, title},
        {"area below the bound", {{1, 3}, {0.5, 0.5}}, std::nextafter(1, 2), 60, title},
        {"area at the bound", {{1, 3}, {0.5, 0.5}}, 1, 60, two_points},
        {"in GPC form heights are divided by the length", {{1, 3}, {0.5, 1.5}, 1}, 1, 60, two_points},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        auto world = World{}.bounds(missing, c.zero_bound);
        const minihost::ServiceLog log;
        const std::string report = c.distribution.report(world, c.lines_per_page);
        Reservations reserved;
        for (const auto& asked : log.calls())
            if (asked.service == "RP_RESERVE_LINES") reserved.emplace_back(asked.subject, asked.selector);
        EXPECT_EQ(reserved, c.expected);
        EXPECT_EQ(report.ends_with("*** POLYMER DISTRIBUTIONS *** \n"), c.expected == title);
        EXPECT_EQ(report.find("(GPC style)") != report.npos, c.distribution.gpc != 0);
    }
}

std::vector<std::string> fields(const Values& values)
{
    // A zero bound below every area lets the table show any values.
    auto world = World{}.bounds(missing, -infinity);
    std::vector<std::string> result;
    std::istringstream report(Distribution{Values(values.size(), 1.0), values}.report(world, 1'000'000));
    for (std::string line; std::getline(report, line);)
        if (line.size() >= 38 && line.substr(line.size() - 24, 11) == "  1.000    ")
            result.push_back(line.substr(line.size() - 12, 11));
    return result;
}

TEST(RealField, EqualsTheFortranRuntimes)
{
#ifndef HAS_FORTRAN
    GTEST_SKIP() << "no Fortran compiler was found";
#else
    Values values{0.0, -0.0, infinity, -infinity, std::nan("")};
    for (const double edge : {0.1, 0.09999, 0.099995, 0.099985, 0.99995, 1.0, 9.9995, 99.995, 999.95, 9998.5,
                              9999.5, 1e4, 1e-99, 1e-100, 1e99, 1e100})
        for (int step = -40; step <= 40; ++step)
            for (const double sign : {-1, 1}) values.push_back(sign * edge * (1 + step * DBL_EPSILON));
    for (int k = 0; k < 2000; ++k) values.push_back(0.5 + k * 5);  // ties at the last digit
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> exponent(-12, 12);
    while (values.size() < 60'000) values.push_back(std::pow(10.0, exponent(random)));
    while (values.size() < 110'000) values.push_back(std::bit_cast<double>(random()));
    const auto printed = fields(values);
    ASSERT_EQ(printed.size(), values.size());
    for (std::size_t k = 0; k < values.size(); ++k) {
        std::string expected(11, '?');
        fortran_real_field(&values[k], expected.data());
        // Zero has no sign; the double next to 9.9995 lies below it, and the run-time library rounds it up.
        if (values[k] == 0) expected = "  0.000    ";
        if (std::fabs(values[k]) == 9.9995) expected = values[k] < 0 ? " -9.999    " : "  9.999    ";
        ASSERT_EQ(printed[k], expected) << std::hexfloat << values[k] << ", value " << k;
    }
#endif
}

}  // namespace
