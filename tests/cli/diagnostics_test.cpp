#include <gtest/gtest.h>

#include "cli/case_reader.h"
#include "cli/load.h"
#include "support/edited.h"

namespace {

using support::with;

// Line numbers below count from the first line after the opening bracket.
const std::string good = R"([components.WATER]
class = "conventional"
molecular_weight = 18.015
[components.A-R]
class = "segment"
molecular_weight = 100
[components.B-E]
class = "segment"
molecular_weight = 50
[components.P]
class = "polymer"
molecular_weight = 100
[components.O]
class = "oligomer"
molecular_weight = 150
[polymers]
segments = [{ id = "A-R", type = "repeat" }, { id = "B-E", type = "end" }]
polymers = ["P"]
oligomers = [{ id = "O", segments = { A-R = 1, B-E = 1 } }]
attributes = [{ component = "P", names = ["ZMOM", "SFLOW"] }]
[streams.S]
flows = { P = 1.0 }
[streams.S.attributes.P]
ZMOM = 0.5
SFLOW = [1.0, 2.0]
)";

using Lines = std::vector<std::string>;

Lines diagnose(const std::string& text)
{
    cli::Diagnostics diagnostics;
    const auto input = cli::parse_case(text, "c.toml", diagnostics);
    if (!diagnostics.empty()) return diagnostics.lines("c.toml");
    const auto checked = cli::check_input(input);
    EXPECT_TRUE(checked.messages.empty());
    return cli::add_streams(input, checked).lines("c.toml");
}

TEST(CaseDiagnostics, AcceptsAGoodCase)
{
    EXPECT_EQ(diagnose(good), Lines{});
}

TEST(CaseDiagnostics, NamesPlaceKeyValueAndExpectation)
{
    struct Row {
        const char* old;
        const char* replacement;
        const char* diagnostic;
    };
    const Row rows[] = {
        {"ZMOM = 0.5", "zmon = 0.5", R"(24:1: unknown key "zmon"; did you mean "ZMOM"?)"},
        {"class = \"conv", "clas = \"conv", R"(2:1: unknown key "clas"; did you mean "class"?)"},
        {"class = \"conventional\"", "colour = 1",
         R"(2:1: unknown key "colour"; expected one of class, molecular_weight, name, dpn, pdi, cry)"},
        {"\"conventional\"", "\"polymeric\"",
         R"(2:1: components.WATER.class is "polymeric"; did you mean "polymer"?)"},
        {"18.015", "\"18\"",
         R"(3:1: components.WATER.molecular_weight is "18"; expected a finite number greater than 0)"},
        {"18.015", "-1",
         "3:1: components.WATER.molecular_weight is -1; expected a finite number greater than 0"},
        {"18.015", "0",
         "3:1: components.WATER.molecular_weight is 0; expected a finite number greater than 0"},
        {"18.015", "inf",
         "3:1: components.WATER.molecular_weight is inf; expected a finite number greater than 0"},
        {"molecular_weight = 18.015\n", "\n",
         "1:13: components.WATER.molecular_weight is missing; expected a finite number greater than 0"},
        {"18.015", "18.015\ndpn = true",
         "4:1: components.WATER.dpn is true; expected a finite number, 0 or greater"},
        {"18.015", "18.015\nname = 5", "4:1: components.WATER.name is 5; expected a text in quotes"},
        {"components.WATER", "components.WATERBATH",
         R"(1:13: component ID "WATERBATH" has 9 characters; expected at most 8)"},
        {"components.WATER", "components.\"WA ER\"",
         R"(1:13: component ID "WA ER" is not usable; expected 1 to 8 printable ASCII characters without blanks and quotes)"},
        {"[polymers]", "[settings]\nzero_bound = 1e36\n[polymers]",
         "16:2: settings.zero_bound is 1e+36; expected less than missing_value_bound, 1e+35"},
        {"[polymers]", "[settings]\npdi_from = \"moment\"\n[polymers]",
         R"(17:1: settings.pdi_from is "moment"; did you mean "moments"?)"},
        {"\"repeat\"", "\"branch\"",
         R"(17:27: polymers.segments[1].type is "branch"; did you mean "branch3"?)"},
        {"[\"P\"]", "[\"P\", 7]", "18:18: polymers.polymers[2] is 7; expected a text in quotes"},
        {"[\"P\"]", "[\"P\", \"WATER\"]",
         R"(18:18: polymers.polymers names "WATER", which is of class "conventional"; expected a component of class "polymer")"},
        {"[\"P\"]", "[]",
         R"(10:13: components.P is of class "polymer", but polymers.polymers does not list it)"},
        {"A-R = 1,", "A-R = -1,",
         R"(19:39: polymers.oligomers[1].segments.A-R is -1; expected a finite number, 0 or greater)"},
        {"[\"P\"]", "[\"P\", \"POLYSTYRENE\"]",
         R"(18:18: polymers.polymers: ID "POLYSTYRENE" has 11 characters; expected at most 8)"},
        {"oligomers = [", "oligomers = [{ segments = { A-R = 1 } }, ",
         "19:14: polymers.oligomers[1].id is not given; only an entry behind another one continues its "
         "oligomer"},
        {"[\"P\"]", "[\"P\"]\ndistributions = [{ polymer = \"P\", type = 5 }]",
         "19:35: polymers.distributions[1].type is 5; expected a whole number from 1 to 4"},
        {"[\"P\"]", "[\"P\"]\nsites = { count = 2, integers = [1, 2] }",
         "19:22: polymers.sites.integers has 2 values; expected 3 whole numbers"},
        {"[\"P\"]", "[\"P\"]\nsites = { count = 1.0 }",
         "19:11: polymers.sites.count is 1; expected a whole number from 0 to 1000"},
        {"[polymers]", "[settings]\nmessage_level = 3\n[polymers]",
         "17:1: settings.message_level is 3; expected a whole number from 0 to 2"},
        {"[streams.S]", "[[catalyst_scaling]]\ncomponent = \"WATTER\"\nattribute = \"ZMOM\"\n[streams.S]",
         R"(22:1: catalyst_scaling names "WATTER", which is not a component; did you mean "WATER"?)"},
        {"\"SFLOW\"]", "\"SFLOW\", \"FLOW\"]",
         R"(20:60: polymers.attributes names "FLOW", which is not an attribute; did you mean "SFLOW"?)"},
        {"\"SFLOW\"]", "\"SFLOW\", \"ZMOM\"]", R"(20:60: polymers.attributes names "ZMOM" twice for P)"},
        {"P = 1.0", "P = 1.0, WATTER = 1",
         R"(22:20: streams.S.flows names "WATTER", which is not a component; did you mean "WATER"?)"},
        {"P = 1.0", "P = 1.0, A-R = 1",
         R"(22:20: streams.S.flows names "A-R", which is a segment; segments are parts of polymers and have no flow or attributes of their own)"},
        {"P = 1.0", "P = nan", "22:11: streams.S.flows.P is nan; expected a finite number, 0 or greater"},
        {"flows = { P = 1.0 }", "\n",
         "21:10: streams.S.flows is missing; expected a table of component IDs and their mole flows"},
        {"ZMOM = 0.5", "SMOM = 0.5",
         "24:1: streams.S.attributes.P.SMOM is not among the attributes that P carries (ZMOM, SFLOW)"},
        {"attributes.P]", "attributes.O]\nZMOM = 1\n[streams.S.attributes.P]",
         "24:1: streams.S.attributes.O.ZMOM: O carries no attributes"},
        {"ZMOM = 0.5", "ZMOM = [0.5, 1]", "24:1: streams.S.attributes.P.ZMOM has 2 values; expected 1"},
        {"[1.0, 2.0]", "[1, 2, 3]",
         "25:1: streams.S.attributes.P.SFLOW has 3 values; the polymer has 2 segments (A-R, B-E)"},
        {"[1.0, 2.0]", "[1, \"2\"]",
         R"(25:13: streams.S.attributes.P.SFLOW[2] is "2"; expected a finite number, 0 or greater)"},
        {"[1.0, 2.0]", "{ A-R = 1, C-E = 2 }",
         R"(25:20: streams.S.attributes.P.SFLOW names "C-E", which is not a segment; did you mean "B-E"?)"},
        {"ZMOM = 0.5", "ZMOM = { A-R = 1 }",
         "24:1: streams.S.attributes.P.ZMOM is a table; only attributes with one value per segment may be "
         "given by segment ID"},
        {"ZMOM = 0.5\nSFLOW = [1.0, 2.0]", "",
         "22:11: streams.S.attributes.P is missing; expected values, since P flows in this stream"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.replacement);
        EXPECT_EQ(diagnose(with(good, row.old, row.replacement)),
                  Lines{std::string{"c.toml:"} + row.diagnostic});
    }
}

TEST(CaseDiagnostics, ListsAllErrorsOfAFileInItsOrder)
{
    auto text = with(good, "18.015", "-1");
    text = with(text, "P = 1.0", "P = -1.0");
    text = with(text, "polymers = [\"P\"]", "polymer = [\"P\"]");
    EXPECT_EQ(
        diagnose(text),
        (Lines{"c.toml:3:1: components.WATER.molecular_weight is -1; expected a finite number greater than 0",
               R"(c.toml:10:13: components.P is of class "polymer", but polymers.polymers does not list it)",
               R"(c.toml:18:1: unknown key "polymer"; did you mean "polymers"?)",
               "c.toml:22:11: streams.S.flows.P is -1; expected a finite number, 0 or greater"}));
    text = with(good, "ZMOM = 0.5", "ZMOM = [0.5, 1]");
    EXPECT_EQ(diagnose(with(text, "[1.0, 2.0]", "1")),
              (Lines{"c.toml:24:1: streams.S.attributes.P.ZMOM has 2 values; expected 1",
                     "c.toml:25:1: streams.S.attributes.P.SFLOW has 1 value; the polymer has 2 segments "
                     "(A-R, B-E)"}));
}

TEST(CaseDiagnostics, ReportsMissingSections)
{
    EXPECT_EQ(diagnose("title = \"nothing\""),
              (Lines{"c.toml:1:1: components is missing; expected a table with at least one component",
                     "c.toml:1:1: streams is missing; expected a table with at least one stream"}));
}

TEST(CaseDiagnostics, PlacesWhatIsNotToml)
{
    const auto lines = diagnose("title = \"a\"\n[settings]\n[settings]\n");
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines.front().substr(0, 11), "c.toml:3:1:") << lines.front();
}

}  // namespace
