// The tokens that the library writes to the summary file, in sequence.
#include <gtest/gtest.h>
#include <polyprops/host.h>
#include <polyprops/polyprops.h>

#include "support/world.h"

namespace {

using support::World;
using Int = std::int64_t;
using Reals = std::vector<double>;

struct Plot {
    Reals x, y;
    Int sections = 0;
    double scale = 1;
    Int scale_switch = 0;

    void write(World& world) const
    {
        const auto n = static_cast<Int>(x.size());
        const Int gpc = 0;
        const void* context = world.host().summary().context("R101");
        POLY_CSDPLOT(context, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                     &n, x.data(), y.data(), &sections, &scale, &scale_switch, &gpc);
    }
};

void write_site_results(World& world, Int sites)
{
    const void* context = world.host().summary().context("PRODUCT");
    const Reals r[] = {{11, 12}, {21, 22}, {31, 32}, {41, 42}, {51, 52}, {61, 62}, {71, 72}};
    POLY_WRTPOLSUM(context, &sites, r[0].data(), r[1].data(), r[2].data(), r[3].data(), r[4].data(),
                   r[5].data(), r[6].data());
}

// Tokens as their lines, each followed by a blank.
std::string tokens(World& world)
{
    std::string text;
    for (const auto& token : world.host().summary().tokens()) text += token.line() + " ";
    return text;
}

std::string index_set(const std::string& number, const std::string& name, const std::string& body)
{
    return "break definition word \"IDSET\" label \"ID_\" integer " + number + " name \"" + name +
           "\" open " + body + " close ";
}

std::string list_set(const std::string& number, const std::vector<std::string>& sets)
{
    std::string text = "break definition word \"LSET\" label \"L_\" integer " + number + " open ";
    for (const auto& set : sets)
        text +=
            (&set == &sets.front() ? "" : "word \"&\" ") + std::string("label \"%ID_\" integer ") + set + " ";
    return text + "close ";
}

std::string block(const std::string& name, const std::string& values, const std::string& context = "R101")
{
    return "break data header \"" + name + "\" \"" + context + "\" open " + values + "close break data ";
}

struct Counters {
    Int block, data_set, next_block;
    bool operator==(const Counters&) const = default;
};
Counters counters()
{
    return {ST_SUMGLOBAL[1], ST_SUMGLOBAL[2], ST_SUMGLOBAL[3]};
}

TEST(DistributionSummary, TiesEveryBlockToItsAxes)
{
    World world;
    world.host();
    ST_SUMGLOBAL[2] = 7;
    ST_SUMGLOBAL[3] = 30;
    const std::string count = "label \"#\" integer ", code = "integer ", end = " word \"*2\"";
    Plot{{2, 4}, {0.25, 0.5, 1, 2, 3, 4}, 2, 100, 1}.write(world);
    EXPECT_EQ(tokens(world),
              index_set("7", "NPOINT", count + "2") + index_set("8", "PROPERTIES", code + "40001" + end) +
                  index_set("9", "PROPERTIES", code + "40002" + end) + list_set("30", {"8", "7"}) +
                  block("YCSD", "real 0.25 real 0.5 ") + list_set("31", {"9", "7"}) +
                  block("XCSD", "real 200 real 400 ") + index_set("10", "TRAY_NO", count + "2") +
                  index_set("11", "PROPERTIES", code + "40009" + end) + list_set("32", {"11", "7", "10"}) +
                  block("YCSDS", "real 1 real 2 real 3 real 4 "));
    EXPECT_EQ(counters(), (Counters{32, 12, 33}));

    // A second distribution goes on numbering; without a grid and sections its blocks are empty.
    const auto first = tokens(world);
    Plot{{}, {}, 0, 100, 2}.write(world);
    EXPECT_EQ(tokens(world).substr(first.size()),
              index_set("12", "NPOINT", count + "0") + index_set("13", "PROPERTIES", code + "40001" + end) +
                  index_set("14", "PROPERTIES", code + "40002" + end) + list_set("33", {"13", "12"}) +
                  block("YCSD", "") + list_set("34", {"14", "12"}) + block("XCSD", "") +
                  index_set("15", "TRAY_NO", count + "0") +
                  index_set("16", "PROPERTIES", code + "40009" + end) + list_set("35", {"16", "12", "15"}) +
                  block("YCSDS", ""));
    EXPECT_EQ(counters(), (Counters{35, 17, 36}));
}

TEST(DistributionSummary, ScalesLengthsOnlyWhenToldTo)
{
    for (const Int scale_switch : {0, 1, 2}) {
        World world;
        Plot{{3}, {1}, 0, 10, scale_switch}.write(world);
        const std::string expected = block("XCSD", scale_switch == 1 ? "real 30 " : "real 3 ");
        EXPECT_NE(tokens(world).find(expected), std::string::npos) << "switch " << scale_switch;
    }
}

TEST(SiteSummary, WritesSeparatorsAfterTheFirstResultOnly)
{
    const std::string list =
        "word \"LSET\" label \"L_\" integer 5 open label \"%ID_\" word \"SITES\" word \"&\" "
        "label \"%ID_\" close \"POLYRES\" break definition ";
    const struct {
        Int sites;
        std::string values;
    } cases[] = {
        {2,
         "real 11 separator real 12 separator real 21 real 22 real 31 real 32 real 41 real 42 real 51 "
         "real 52 real 61 real 62 real 71 real 72 "},
        {0, ""},
        {-1, ""}};
    for (const auto& c : cases) {
        auto world = World{}.segments({"A"}).polymer("P");
        world.host();
        ST_SUMGLOBAL[3] = 5;
        const Counters before = counters();
        write_site_results(world, c.sites);
        EXPECT_EQ(tokens(world), list + block("POLYRES", c.values, "PRODUCT"));
        EXPECT_EQ(counters(), (Counters{5, before.data_set, 6}));
    }
}

TEST(Summary, IsWrittenWhenTheRunWantsIt)
{
    const struct {
        Int report_switch, polymers;
        bool distribution, sites;
    } cases[] = {{0, 1, false, false}, {1, 1, true, true},    {2, 1, true, true},
                 {3, 1, false, false}, {-1, 1, false, false}, {1, 0, true, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "switch " << c.report_switch << ", polymers " << c.polymers);
        auto world = World{}.polymer_count(c.polymers);
        auto& summary = world.host().summary();
        summary.set_report_switch(c.report_switch);
        const Counters before = counters();
        write_site_results(world, 2);
        EXPECT_EQ(!summary.tokens().empty(), c.sites);
        const auto written = summary.tokens().size();
        Plot{{1, 2}, {1, 1}}.write(world);
        EXPECT_EQ(summary.tokens().size() > written, c.distribution);
        EXPECT_EQ(counters() == before, !c.distribution);
        EXPECT_NE(world.host().report().text().find("Area = "), std::string::npos)
            << "the report has its own way";
    }
}

}  // namespace
