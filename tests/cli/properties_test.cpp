#include "cli/program.h"

namespace {

using namespace cli_test;

// One polymer with three A to one B in a chain, an oligomer of two B, a molecule that has no segments.
const std::string good = R"([components]
A-R = { class = "segment", molecular_weight = 100 }
B-R = { class = "segment", molecular_weight = 50 }
W = { molecular_weight = 18 }
P = { class = "polymer", molecular_weight = 350, pdi = 2 }
O = { class = "oligomer", molecular_weight = 100 }
[polymers]
segments = [{ id = "A-R", type = "repeat" }, { id = "B-R", type = "repeat" }]
polymers = ["P"]
oligomers = [{ id = "O", segments = { B-R = 2 } }]
attributes = [{ component = "P", names = ["ZMOM", "SFLOW"] }]
[streams.S]
flows = { W = 1, O = 1, P = 1 }
attributes.P = { ZMOM = 0.01, SFLOW = [3, 1] }
[streams.T]
flows = { W = 1 }
[properties.V]
unit = "cm3/mol"
segments = { A-R = 10, B-R = 20 }
[reactors.R]
inlet = "T"
outlet = "S"
)";

TEST(Properties, AreAveragedAsTheCaseAsks)
{
    const struct {
        const char* averaging;
        double polymer;
        double oligomer;
    } rows[] = {
        {"", 12.5, 20},
        {"averaging = \"number\"", 12.5, 20},
        {"averaging = \"mass\"", 4000.0 / 350, 20},
        {"weight_factors = { A-R = 1, B-R = 9 }", 210.0 / 12, 20},
        {"components = { P = -40 }", -40, 20},
        {"averaging = \"mass\"\ncomponents = { O = 0 }", 4000.0 / 350, 0},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.averaging);
        const auto e = evaluated(with(good, "unit = \"cm3/mol\"", r.averaging));
        EXPECT_DOUBLE_EQ(number(e, "streams.S.properties.P.V"), r.polymer);
        EXPECT_EQ(number(e, "streams.S.properties.O.V"), r.oligomer);
        const auto& table = e.report.sections.front().tables.back();
        EXPECT_EQ(table.rows.size(), 2u);
        EXPECT_EQ(table.columns.back().unit, "1");
    }
}

// A chain without segments weighs nothing as well: nothing else may come out as not a number.
TEST(Properties, ThatAreNotFiniteAreReported)
{
    EXPECT_EQ(evaluated(with(good, "{ B-R = 2 }", "{ B-R = 0 }")).diagnostics(),
              Lines{"c.toml:12:10: streams.S: V of O is nan; expected a finite result"});
    EXPECT_EQ(evaluated(with(good, "A-R = 10", "A-R = 1e308")).diagnostics(),
              Lines{"c.toml:12:10: streams.S: V of P is inf; expected a finite result"});
}

// The segments of P weigh 87.5 g/mol on average: its 350 kg/h become 382.8125 of 468 on the segment basis.
TEST(Closures, ShowAttributesThatContradictTheSegments)
{
    const auto text = with(good, "\"ZMOM\", \"SFLOW\"]", "\"ZMOM\", \"SFLOW\", \"MWSEG\"]");
    const auto e = evaluated(with(text, "ZMOM = 0.01,", "ZMOM = 0.01, MWSEG = 80,"));
    for (const std::string average : {"mean_segment_weight", "mn", "mw"})
        EXPECT_NEAR(number(e, "streams.S.chain_weights." + average + ".P.difference"), 7.5 / 80, 1e-14);
    EXPECT_EQ(number(e, "streams.S.closures.true.mass_difference"), 0);
    EXPECT_NEAR(number(e, "streams.S.closures.segment.mass_difference"), 32.8125 / 468, 1e-14);
}

TEST(Reactors, GiveTheWholePolymerWithoutMomentsBySite)
{
    const auto text = with(good, "\"ZMOM\", \"SFLOW\"]", "\"ZMOM\", \"SMOM\", \"SFLOW\"]");
    const File file{with(text, "ZMOM = 0.01,", "ZMOM = 0.01, SMOM = 3200,")};
    const auto reactor = run_json(file.path)["reactors"][0];
    EXPECT_EQ(reactor["inlet"], "T");
    EXPECT_EQ(reactor["inlets"], Json::array({"T"}));
    EXPECT_EQ(reactor["outlet"], "S");
    // Z = 0.01, F = 4, S = 3200, and the flow of 1 kmol/h weighs 350 kg/h.
    EXPECT_EQ(reactor["polymer_made"], Json::array({{{"site", "total"},
                                                     {"mass_flow", 350.0},
                                                     {"mean_segment_weight", 87.5},
                                                     {"mn", 35000.0},
                                                     {"mw", 70000.0},
                                                     {"dpn", 400.0},
                                                     {"dpw", 800.0},
                                                     {"pdi", 2.0}}}));
    const auto text_form = run(file.path, Format::text).out;
    EXPECT_NE(text_form.find("\nReactor R, from T to S\n\nPolymer made\n"), std::string::npos) << text_form;
}

}  // namespace
