// The tokens that the library writes to the summary file, in sequence.

#include "support/files.h"
#include "support/routine_calls.h"

namespace {

using namespace support;

void plot(World& world, const Values& x, const Values& y, Int sections, Int scale_switch)
{
    const Int n = std::ssize(x), gpc = 0;
    const double scale = 100;
    POLY_CSDPLOT(world.host().summary().context("R101"), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                 nullptr, nullptr, nullptr, &n, x.data(), y.data(), &sections, &scale, &scale_switch, &gpc);
}

void write_site_results(World& world, Int sites)
{
    const double r[][2] = {{11, 12}, {21, 22}, {31, 32}, {41, 42}, {51, 52}, {61, 62}, {71, 72}};
    POLY_WRTPOLSUM(world.host().summary().context("PRODUCT"), &sites, r[0], r[1], r[2], r[3], r[4], r[5],
                   r[6]);
}

TEST(DistributionSummary, TiesEveryBlockToItsAxesAndGoesOnNumbering)
{
    World world;
    auto& summary = world.host().summary();
    ST_SUMGLOBAL[2] = 7;
    ST_SUMGLOBAL[3] = 30;
    plot(world, {2, 4}, {0.25, 0.5, 1, 2, 3, 4}, 2, 1);
    plot(world, {3}, {1}, 0, 2);  // lengths are scaled by a switch of 1 alone
    plot(world, {}, {}, 0, 0);
    EXPECT_EQ(summary.text(), stored("report/distribution_tokens.txt"));
    // The current block, the next data set and the next block.
    EXPECT_EQ((Ints{ST_SUMGLOBAL[1], ST_SUMGLOBAL[2], ST_SUMGLOBAL[3]}), (Ints{38, 22, 39}));
}

TEST(SiteSummary, WritesSeparatorsAfterTheFirstResultOnly)
{
    auto world = World{}.polymer_count(1);
    auto& summary = world.host().summary();
    ST_SUMGLOBAL[3] = 5;
    for (const Int sites : {2, 0, -1}) write_site_results(world, sites);
    EXPECT_EQ(summary.text(), stored("report/site_tokens.txt"));
    EXPECT_EQ((Ints{ST_SUMGLOBAL[1], ST_SUMGLOBAL[2], ST_SUMGLOBAL[3]}), (Ints{7, 1, 8}));
}

TEST(Summary, IsWrittenWhenTheRunWantsIt)
{
    const std::pair<Int, Int> cases[] = {{0, 1}, {1, 1}, {2, 1}, {3, 1}, {-1, 1}, {1, 0}};
    for (const auto& [report_switch, polymers] : cases) {
        SCOPED_TRACE(testing::Message() << "switch " << report_switch << ", polymers " << polymers);
        auto world = World{}.polymer_count(polymers);
        auto& summary = world.host().summary();
        summary.set_report_switch(report_switch);
        const bool is_wanted = report_switch == 1 || report_switch == 2;
        write_site_results(world, 2);
        EXPECT_EQ(!summary.tokens().empty(), is_wanted && polymers > 0);
        const auto written = summary.tokens().size();
        plot(world, {1, 2}, {1, 1}, 0, 0);
        EXPECT_EQ(summary.tokens().size() > written, is_wanted);
        EXPECT_EQ(ST_SUMGLOBAL[3] > 1, is_wanted);
        EXPECT_NE(world.host().report().text().find("Area = "), std::string::npos)
            << "the report has its own way";
    }
}

}  // namespace
