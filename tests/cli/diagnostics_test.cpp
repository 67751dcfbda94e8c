#include "app/evaluation/stream_list.h"
#include "app/host_setup/loaded_case.h"
#include "cli/program.h"

namespace {

using namespace cli_test;

// Line numbers below count from the first line after the opening bracket.
const std::string good = R"([components]
WATER = { class = "conventional", molecular_weight = 18.015 }
A-R = { class = "segment", molecular_weight = 100 }
B-E = { class = "segment", molecular_weight = 50 }
P = { class = "polymer", molecular_weight = 100 }
O = { class = "oligomer", molecular_weight = 150 }
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
[streams.T]
flows = { O = 1 }
[properties.V]
unit = "cm3/mol"
segments = { A-R = 10, B-E = 20 }
[reactors.R]
inlet = "T"
outlet = "S"
[distributions.D]
points = 9
longest_chain = 99
sites = [{ tau = 1, amount = 1 }]
[parameters.K]
components = ["P", "O"]
temperatures = [300]
pairs = [{ components = ["P", "O"], values = [0, 0, 0, 0, 0, 300] }]
)";

std::string joined(const Lines& lines)
{
    std::string text;
    for (const auto& line : lines) text += (text.empty() ? "" : "\n") + line;
    return text;
}

// Within the limits, a text that says nothing more is an error of another kind.
TEST(CaseDiagnostics, RefuseDepthAndSizeBeforeParsing)
{
    const auto repeated = [](const std::string& part, std::size_t times) {
        std::string text;
        for (std::size_t i = 0; i < times; ++i) text += part;
        return text;
    };
    const std::string deep = "tables and arrays are nested more than 200 deep; expected 200 at most";
    const struct {
        const char* name;
        std::string before, part, after;
        std::size_t most;
        const char* place;  // of the part that is one too many
    } cases[] = {
        {"key", "x = '.'\n", "a.", "a = 1\n", 199, "2:400"},
        {"arrays", "x = ", "[", "1.5", 199, "1:204"},
        {"inline tables", "x = [1, 2]\ny = ", "{ b = ", "1", 199, "2:1199"},
        {"header", "# [\n[", "a.", "a]\n", 199, "2:401"},
        {"keys below a header", "[a.b]\n", "c.", "c = 1\n", 197, "2:396"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(diagnose(c.before + repeated(c.part, 50000) + c.after),
                  Lines{std::string{"c.toml:"} + c.place + ": " + deep});
        EXPECT_EQ(joined(diagnose(c.before + repeated(c.part, c.most) + c.after)).find(deep),
                  std::string::npos);
    }
    const auto strings =
        "title = \"\"\"" + repeated("[", 300) + "\"\"\" # " + repeated("[", 300) + "\n" + good;
    EXPECT_EQ(diagnose(strings), Lines{});
    const auto sites = "sites = [" + repeated("{ tau = 1, amount = 1 }, ", 9999);
    const auto wide = diagnose(with(with(good, "sites = [", sites), "points = 9", "points = 100000"));
    ASSERT_EQ(wide.size(), 1u);
    EXPECT_EQ(wide.front().find("c.toml:25:16: distributions.D: 100000 points of 10003 curves need 932 "
                                "GiB of memory; "),
              0u)
        << wide.front();
    // The last has a key with a sign that is neither a blank nor a letter.
    for (const std::string no_toml :
         {"x = 'a\n", "x = 'a", "x = \"\"\"a", "x = \"a\\", "x = 1]\n", "x = 1, 2\n", "[[[a]]]\n",
          "[a.[b]]\n", "x = 'C:\\' 1\n", "a\u035E = 1\n"})
        EXPECT_EQ(diagnose(no_toml).size(), 1u) << no_toml;
    EXPECT_EQ(diagnose(std::string((64U << 20U) + 1, '\n')),
              Lines{"c.toml: the text has 67108865 bytes; expected 64 MiB at most"});
}

TEST(CaseDiagnostics, RefuseManyDistributionsForTheirMemoryTogether)
{
    auto text = good;
    for (int n = 0; n < 4000; ++n)
        text += "[distributions.D" + std::to_string(n) +
                "]\npoints = 100000\nlongest_chain = 1e6\nsites = [{ tau = 0.1, amount = 1 }]\n";
    const auto seen = diagnose(text);
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_NE(seen.front().find(": 100000 points of 4 curves, with the distributions before, need "),
              std::string::npos)
        << seen.front();
}

TEST(CaseDiagnostics, NamePlaceKeyValueAndExpectation)
{
    EXPECT_EQ(diagnose(good), Lines{});
    EXPECT_EQ(diagnose(with(good, "18.015", "9007199254740993")), Lines{});
    expect_each(R"(
ZMOM = 0.5 -> zmon = 0.5 => 15:1: unknown key "zmon"; did you mean "ZMOM"?
class = "conv -> clas = "conv => 2:11: unknown key "clas"; did you mean "class"?
class = "conventional" -> colour = 1 => 2:11: unknown key "colour"; expected one of class, molecular_weight,
    name, dpn, pdi, cry, mark_houwink_exponent
"conventional" -> "polymeric" => 2:11: components.WATER.class is "polymeric"; did you mean "polymer"?
18.015 -> "18" => 2:35: components.WATER.molecular_weight is "18"; expected a finite number greater than 0
18.015 -> 0 => 2:35: components.WATER.molecular_weight is 0; expected a finite number greater than 0
, molecular_weight = 18.015 ->
    => 2:1: components.WATER.molecular_weight is missing; expected a finite number greater than 0
WATER = -> WATERBATH = => 2:1: component ID "WATERBATH" has 9 characters; expected at most 8
WATER = -> "WA ER" = => 2:1: component ID "WA ER" is not usable; expected 1 to 8 printable ASCII characters
    without blanks and quotes
[polymers] -> [settings]\nmissing_value_bound = 1e-15\n[polymers]
    => 7:2: settings.zero_bound is 1e-15; expected less than missing_value_bound, 1e-15
[polymers] -> [settings]\npdi_from = "moment"\n[polymers]
    => 8:1: settings.pdi_from is "moment"; did you mean "moments"?
[polymers] -> [settings]\nmessage_level = 3\n[polymers]
    => 8:1: settings.message_level is 3; expected a whole number from 0 to 2
["P"] -> ["P", 7] => 9:18: polymers.polymers[2] is 7; expected a text in quotes
["P"] -> ["P", "WATER"] => 9:18: polymers.polymers names "WATER", which is of class "conventional"; expected a
    component of class "polymer"
A-R = 1, -> A-R = -1,
    => 10:39: polymers.oligomers[1].segments.A-R is -1; expected a finite number, 0 or greater
["P"] -> ["P", "POLYSTYRENE"]
    => 9:18: polymers.polymers: ID "POLYSTYRENE" has 11 characters; expected at most 8
oligomers = [ -> oligomers = [{ segments = { A-R = 1 } },
    => 10:14: polymers.oligomers[1].id is not given; only an entry behind another one continues its oligomer
["P"] -> ["P"]\ndistributions = [{ polymer = "P", type = 5 }]
    => 10:35: polymers.distributions[1].type is 5; expected a whole number from 1 to 4
["P"] -> ["P"]\nsites = { count = 2, integers = [1, 2] }
    => 10:22: polymers.sites.integers has 2 values; expected 3 whole numbers
["P"] -> ["P"]\nsites = { count = 1.0 }
    => 10:11: polymers.sites.count is 1; expected a whole number from 0 to 1000
[streams.S] -> [[catalyst_scaling]]\ncomponent = "WATTER"\nattribute = "ZMOM"\n[streams.S]
    => 13:1: catalyst_scaling names "WATTER", which is not a component; did you mean "WATER"?
"SFLOW"] -> "SFLOW", "FLOW"]
    => 11:60: polymers.attributes names "FLOW", which is not an attribute; did you mean "SFLOW"?
"SFLOW"] -> "SFLOW", "ZMOM"] => 11:60: polymers.attributes names "ZMOM" twice for P
P = 1.0 -> P = 1.0, WATTER = 1
    => 13:20: streams.S.flows names "WATTER", which is not a component; did you mean "WATER"?
P = 1.0 -> P = 1.0, A-R = 1 => 13:20: streams.S.flows names "A-R", which is a segment; segments are parts of
    polymers and have no flow or attributes of their own
P = 1.0 -> P = nan => 13:11: streams.S.flows.P is nan; expected a finite number, 0 or greater
flows = { P = 1.0 } -> \n
    => 12:10: streams.S.flows is missing; expected a table of component IDs and their mole flows
ZMOM = 0.5 -> SMOM = 0.5
    => 15:1: streams.S.attributes.P.SMOM is not among the attributes that P carries (ZMOM, SFLOW)
attributes.P] -> attributes.O]\nZMOM = 1\n[streams.S.attributes.P]
    => 15:1: streams.S.attributes.O.ZMOM: O carries no attributes
[1.0, 2.0] -> [1, "2"]
    => 16:13: streams.S.attributes.P.SFLOW[2] is "2"; expected a finite number, 0 or greater
[1.0, 2.0] -> { A-R = 1, C-E = 2 }
    => 16:20: streams.S.attributes.P.SFLOW names "C-E", which is not a segment; did you mean "B-E"?
ZMOM = 0.5 -> ZMOM = { A-R = 1 } => 15:1: streams.S.attributes.P.ZMOM is a table; only attributes with one
    value per segment may be given by segment ID
ZMOM = 0.5\nSFLOW = [1.0, 2.0] ->
    => 13:11: streams.S.attributes.P is missing; expected values, since P flows in this stream
segments = { A-R = 10, B-E = 20 }\n ->
    => 19:13: properties.V.segments has no value for A-R, B-E; expected one for each segment
B-E = 20 -> B-E = inf => 21:24: properties.V.segments.B-E is inf; expected a finite number
B-E = 20 -> B-E = 20, C-E = 2
    => 21:34: properties.V.segments names "C-E", which is not a segment; did you mean "B-E"?
unit -> averaging = "mass"\nweight_factors = { A-R = 1, B-E = 1 }\nunit
    => 21:1: properties.V.weight_factors and properties.V.averaging are both given; expected one of the two
unit -> weight_factors = { A-R = 1, B-E = 0 }\nunit
    => 20:29: properties.V.weight_factors.B-E is 0; expected a finite number greater than 0
unit -> weight_factors = { B-E = 2 }\nunit
    => 19:13: properties.V.weight_factors has no value for A-R; expected one for each segment
unit -> components = { WATER = 2 }\nunit
    => 20:16: properties.V.components names "WATER", which is not a polymer or oligomer; expected one of P, O
"cm3/mol" -> "" => 19:13: properties.V.unit is empty; expected a unit, "1" for a ratio
properties.V] -> properties.class] => 19:13: "class" is not usable as the name of a property
"T" -> "U" => 23:1: reactors.R.inlet names "U", which is not a stream; expected one of S, T
"T" -> "" => 23:1: reactors.R.inlet is ""; expected the name of a stream
inlet = "T" -> => 22:11: reactors.R.inlet is missing; expected the name of a stream
outlet = "S" -> outlet = "T" => 24:1: reactors.R: inlet and outlet are both "T"; expected two streams
points = 9 -> points = 1 => 26:1: distributions.D.points is 1; expected a whole number from 2 to 100000
longest_chain = 99 -> longest_chain = 1.5 => 27:1: distributions.D.longest_chain is 1.5; expected 2 or greater
points = 9 -> stream = "U"\npoints = 9
    => 26:1: distributions.D.stream names "U", which is not a stream; expected one of S, T
sites = [{ tau = 1, amount = 1 }]\n ->
    => 25:16: distributions.D has neither sites nor increments; expected one of them
[{ tau = 1, amount = 1 }] -> [] => 28:1: distributions.D.sites is empty; expected at least one site
amount = 1 -> amount = 0 => 25:16: distributions.D makes 0 in total; expected more than the zero bound, 1e-15
tau = 1 -> tau = 0 => 28:10: distributions.D.sites[1]: tau + beta is 0; expected greater than 0
tau = 1, -> => 28:10: distributions.D.sites[1].tau is missing; expected a finite number, 0 or greater
{ tau = 1 -> { name = "A", tau = 1, amount = 1 }, { name = "A", tau = 1
    => 28:47: distributions.D.sites names "A" twice
sites = [{ tau = 1, amount = 1 }] -> increments = [[{ tau = 1, amount = 1 }], [{ amount = 1 }, { tau = 1,
    amount = 1 }]] => 28:42: distributions.D.increments[2] has 2 sites; the increment before it has 1
sites = [{ tau = 1, amount = 1 }] -> components = []
    => 28:1: distributions.D.components is empty; expected at least one component
sites = [{ tau = 1, amount = 1 }] -> components = [{ type = "poisson", dpn = 9, dispersity = 1.1, amount = 1
    }] => 28:44: distributions.D.components[1].dispersity is given; a Poisson distribution has one that
    follows from its length
sites = [{ tau = 1, amount = 1 }] -> components = [{ type = "log-normal", mn = 9, dpn = 9, dispersity = 2,
    amount = 1 }] => 28:15: distributions.D.components[1] has both mn and dpn; expected one of them
sites = [{ tau = 1, amount = 1 }] -> components = [{ type = "schulz-zimm", dpn = 9, dispersity = 1, amount = 1
    }] => 28:48: distributions.D.components[1].dispersity is 1; expected greater than 1
sites = [{ tau = 1, amount = 1 }] -> components = [{ type = "poisson", mn = 9, amount = 1 }]
    => 28:15: distributions.D: component 1 is given by mn; expected a segment_weight or a stream too, to make
       chain lengths of it
points = 9 -> mark_houwink_exponent = 2.5\npoints = 9
    => 26:1: distributions.D.mark_houwink_exponent is 2.5; expected greater than 0 and at most 2
["P", "O"]\n -> ["P", "O", "X"]\n => 30:25: parameters.K.components names "X", which is not a component;
    expected one of WATER, A-R, B-E, P, O
"O"], v -> "R"], v
    => 32:31: parameters.K.pairs names "R", which is not in parameters.K.components; expected one of P, O
"O"], v -> "P"], v => 32:31: parameters.K.pairs pairs "P" with itself
values = -> value =
    => 32:10: parameters.K.pairs[1].values is missing; expected 6 numbers
    => 32:37: unknown key "value"; did you mean "values"?
[0, 0, 0, 0, 0, 300] -> 300 => 32:37: parameters.K.pairs[1].values is 300; expected an array
["P", "O"], v -> "P", v => 32:12: parameters.K.pairs[1].components is "P"; expected an array
[300] -> [] => 31:1: parameters.K.temperatures is empty; expected at least one temperature
[1.0, 2.0] -> [] => 16:1: streams.S.attributes.P.SFLOW has 0 values; the polymer has 2 segments (A-R, B-E)
distributions.D -> distributions."D\u001B"
    => 25:16: the name "D\u001B" is no text of one line without control characters
"cm3/mol" -> "a\u000Ab"
    => 20:1: properties.V.unit is "a\u000Ab"; expected a text of one line without control characters
tau = 1, -> tau = -1, => 28:12: distributions.D.sites[1].tau is -1; expected a finite number, 0 or greater
0, 0, 0, 0, 0, 300 -> 0, 0
    => 32:37: parameters.K.pairs[1].values has 2 values; expected 6, one for each position
300] } -> 0] } => 32:26: parameters.K.pairs: the reference temperature of P, O at position 6 is 0; expected
    greater than 0
0, 0, 0, 0, 0, 300] }] -> 0, 0, 0, 300] }]\npositions = 4 => 33:1: parameters.K.positions is 4; expected
    another number than 2 and 4, which are the linear and the reciprocal form
0, 0, 0, 0, 0, 300] }] -> 0, 0, 1, 300] }]\nform = "reciprocal"\nreference_position = 3
    => 34:1: parameters.K.reference_position is 3; expected 0 or a position behind the 3 coefficients
0, 0, 0, 0, 0, 300] }] -> 0, 0, 0, 0] }]\nform = "linear"\npositions = 4\nreference_position = 1
    => 34:1: parameters.K.positions is 4; expected 2 in this form
pairs = -> leading_positions = 6\nleading_symmetry = "antisymmetric"\npairs =
    => 32:1: parameters.K.leading_positions is 6; expected less than the reference_position, 6: a reference
       temperature has one sign
["P", "O"]\n -> ["P", "O", "P"]\n => 30:25: parameters.K.components names "P" twice
300] }] -> 300] }, { components = ["P", "O"], values = [0, 0, 0, 0, 0, 300] }]
    => 32:86: parameters.K.pairs gives the pair P, O twice
sites = [ -> increments = [[{ tau = 1, amount = 1 }]]\nsites = [
    => 28:1: distributions.D has both sites and increments; expected one of them
sites = [{ tau = 1, amount = 1 }] -> sections = [{ sites = [{ tau = 1, amount = 1 }] }, 7]
    => 28:13: distributions.D.sections[1].name is missing; expected a text in quotes
    => 28:52: distributions.D.sections[2] is 7; expected a table
sites = [{ tau = 1, amount = 1 }] -> components = [{ type = "poisson", dpn = 9, amount = 0 }]
    => 25:16: distributions.D has components of 0 in total; expected more than the zero bound, 1e-15
sites = [{ tau = 1, amount = 1 }] -> components = [{ type = "poisson", dpn = 1, amount = 1 }]
    => 28:35: distributions.D.components[1].dpn is 1; expected greater than 1
18.015 -> "a text of more than forty letters ü, é, ö, shortened" => 2:35: components.WATER.molecular_weight is
    "a text of more than forty letters ü,..."; expected a finite number greater than 0
"conventional" -> 7 => 2:11: components.WATER.class is 7; expected a text in quotes
["P"] -> ["P"]\nsites = { count = 1, integers = [1, "2", 3] }
    => 10:37: polymers.sites.integers[2] is "2"; expected a whole number
# All errors of a file, in its order.
18.015 -> -1 & P = 1.0 -> P = -1.0 & polymers = ["P"] -> polymer = ["P"]
    => 2:35: components.WATER.molecular_weight is -1; expected a finite number greater than 0
    => 5:1: components.P is of class "polymer", but polymers.polymers does not list it
    => 9:1: unknown key "polymer"; did you mean "polymers"?
    => 13:11: streams.S.flows.P is -1; expected a finite number, 0 or greater
ZMOM = 0.5 -> ZMOM = [0.5, 1] & [1.0, 2.0] -> 1
    => 15:1: streams.S.attributes.P.ZMOM has 2 values; expected 1
    => 16:1: streams.S.attributes.P.SFLOW has 1 value; the polymer has 2 segments (A-R, B-E)
)",
                good, diagnose);
}

TEST(CaseDiagnostics, ReportMissingSectionsAndPlaceWhatIsNotToml)
{
    EXPECT_EQ(diagnose("title = \"nothing\""),
              (Lines{"c.toml:1:1: components is missing; expected a table with at least one component",
                     "c.toml:1:1: streams is missing; expected a table with at least one stream"}));
    const auto lines = diagnose("title = \"a\"\n[settings]\n[settings]\n");
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines.front().substr(0, 11), "c.toml:3:1:") << lines.front();
}

// A matrix of all components would have the square of their number.
TEST(StreamList, HasNoMatrixWithoutChains)
{
    const auto numbers_of_matrix = [](const std::string& flows) {
        const auto input = parsed(with(good, "{ O = 1 }", flows));
        app::LoadedCase loaded{input};
        EXPECT_TRUE(loaded.add_streams(input).empty());
        return app::list_stream("T", loaded.host()).counts.counts.size();
    };
    EXPECT_EQ(numbers_of_matrix("{ O = 1 }"), 25u);
    EXPECT_EQ(numbers_of_matrix("{ WATER = 1 }"), 5u);
}

}  // namespace
