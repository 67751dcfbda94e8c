#include <gtest/gtest.h>

#include "cli/case_reader.h"
#include "cli/program.h"
#include "support/edited.h"

namespace {

using support::with;
using namespace cli_test;

// One polymer with three A to one B in a chain, an oligomer of two B, a molecule that has no segments.
const std::string good = R"([components]
A-R = { class = "segment", molecular_weight = 100 }
B-R = { class = "segment", molecular_weight = 50 }
W = { molecular_weight = 18 }
P = { class = "polymer", molecular_weight = 100 }
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
        const auto [status, out, errors] =
            run_text(with(good, "unit = \"cm3/mol\"", r.averaging), Format::json);
        ASSERT_EQ(status, cli::exit_success) << errors;
        const auto report = Json::parse(out);
        EXPECT_DOUBLE_EQ(row(report, "S", "properties", {{"component", "P"}})["V"].get<double>(), r.polymer);
        EXPECT_EQ(row(report, "S", "properties", {{"component", "O"}})["V"], r.oligomer);
        EXPECT_EQ(report["streams"][0]["properties"].size(), 2u);
        EXPECT_EQ(report["units"]["properties"]["V"], "1");
    }
}

// It weighs nothing as well: nothing else may come out as not a number.
TEST(Properties, OfAChainWithoutSegmentsAreReported)
{
    const auto [status, out, errors] = run_text(with(good, "{ B-R = 2 }", "{ B-R = 0 }"), Format::json);
    EXPECT_EQ(status, cli::exit_case_error);
    EXPECT_NE(errors.find("case.toml: streams.S: V of O is nan; expected a finite result\n"),
              std::string::npos);
    EXPECT_EQ(std::ranges::count(errors, '\n'), 1) << errors;
}

// The segments of P weigh 87.5 g/mol on average: its 100 kg/h become 109.375 of 218 on the segment basis.
TEST(Closures, ShowAttributesThatContradictTheSegments)
{
    const auto text = with(good, "\"ZMOM\", \"SFLOW\"]", "\"ZMOM\", \"SFLOW\", \"MWSEG\"]");
    const auto [status, out, errors] =
        run_text(with(text, "ZMOM = 0.01,", "ZMOM = 0.01, MWSEG = 80,"), Format::json);
    ASSERT_EQ(status, cli::exit_success) << errors;
    const auto report = Json::parse(out);
    for (const auto* average : {"mean_segment_weight", "mn", "mw"}) {
        const auto p = row(report, "S", "chain_weights", {{"component", "P"}, {"average", average}});
        EXPECT_NEAR(p["difference"].get<double>(), 7.5 / 80, 1e-14) << average;
    }
    EXPECT_EQ(row(report, "S", "closures", {{"basis", "true"}})["mass_difference"], 0);
    EXPECT_NEAR(row(report, "S", "closures", {{"basis", "segment"}})["mass_difference"].get<double>(),
                9.375 / 218, 1e-14);
}

TEST(Reactors, GiveTheWholePolymerWithoutMomentsBySite)
{
    const auto text = with(good, "\"ZMOM\", \"SFLOW\"]", "\"ZMOM\", \"SMOM\", \"SFLOW\"]");
    const auto [status, out, errors] =
        run_text(with(text, "ZMOM = 0.01,", "ZMOM = 0.01, SMOM = 3200,"), Format::json);
    ASSERT_EQ(status, cli::exit_success) << errors;
    const auto reactor = Json::parse(out)["reactors"][0];
    EXPECT_EQ(reactor["inlet"], "T");
    EXPECT_EQ(reactor["outlet"], "S");
    // Z = 0.01, F = 4, S = 3200, and the flow of 1 kmol/h weighs 100 kg/h.
    EXPECT_EQ(reactor["polymer_made"], Json::array({{{"site", "total"},
                                                     {"mass_flow", 100.0},
                                                     {"mean_segment_weight", 25.0},
                                                     {"mn", 10000.0},
                                                     {"mw", 20000.0},
                                                     {"dpn", 400.0},
                                                     {"dpw", 800.0},
                                                     {"pdi", 2.0}}}));
}

TEST(Reactors, StandBehindTheStreamsInText)
{
    const auto [status, out, errors] = run_text(good, Format::text);
    EXPECT_EQ(status, cli::exit_success) << errors;
    EXPECT_NE(out.find("\nReactor R, from T to S\n\nPolymer made\n"), std::string::npos) << out;
}

TEST(CaseDiagnostics, NamePlaceKeyAndExpectationOfPropertiesAndReactors)
{
    const struct {
        const char* old;
        const char* replacement;
        const char* diagnostic;
    } rows[] = {
        {"A-R = 10, B-R = 20", "A-R = 10",
         "17:13: properties.V.segments has no value for B-R; expected one for each segment"},
        {"segments = { A-R = 10, B-R = 20 }\n[rea", "[rea",
         "17:13: properties.V.segments has no value for A-R, B-R; expected one for each segment"},
        {"B-R = 20 }", "B-R = inf }", "19:24: properties.V.segments.B-R is inf; expected a finite number"},
        {"B-R = 20 }", "B-R = 20, B-E = 2 }",
         R"(19:34: properties.V.segments names "B-E", which is not a segment; did you mean "B-R"?)"},
        {"unit", "averaging = \"masss\"\nunit",
         R"(18:1: properties.V.averaging is "masss"; did you mean "mass"?)"},
        {"unit", "averaging = \"mass\"\nweight_factors = { A-R = 1, B-R = 1 }\nunit",
         "19:1: properties.V.weight_factors and properties.V.averaging are both given; expected one of the "
         "two"},
        {"unit", "weight_factors = { A-R = 1, B-R = 0 }\nunit",
         "18:29: properties.V.weight_factors.B-R is 0; expected a finite number greater than 0"},
        {"unit", "weight_factors = { B-R = 2 }\nunit",
         "17:13: properties.V.weight_factors has no value for A-R; expected one for each segment"},
        {"unit", "components = { W = 2 }\nunit",
         R"(18:16: properties.V.components names "W", which is not a polymer or oligomer; expected one of P, O)"},
        {"\"cm3/mol\"", "\"\"", R"(17:13: properties.V.unit is empty; expected a unit, "1" for a ratio)"},
        {"unit", "units", R"(18:1: unknown key "units"; did you mean "unit"?)"},
        {"properties.V]", "properties.class]", R"(17:13: "class" is not usable as the name of a property)"},
        {"\"T\"", "\"U\"",
         R"(21:1: reactors.R.inlet names "U", which is not a stream; expected one of S, T)"},
        {"\"T\"", "\"\"", R"(21:1: reactors.R.inlet is ""; expected the name of a stream)"},
        {"inlet = \"T\"", "", "20:11: reactors.R.inlet is missing; expected the name of a stream"},
        {"outlet = \"S\"", "outlet = \"T\"",
         R"(22:1: reactors.R: inlet and outlet are both "T"; expected two streams)"},
        {"outlet = \"S\"", "outlet = 1", "22:1: reactors.R.outlet is 1; expected a text in quotes"},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.diagnostic);
        cli::Diagnostics diagnostics;
        cli::parse_case(with(good, r.old, r.replacement), "c.toml", diagnostics);
        EXPECT_EQ(diagnostics.lines("c.toml"),
                  std::vector<std::string>{std::string{"c.toml:"} + r.diagnostic});
    }
}

}  // namespace
