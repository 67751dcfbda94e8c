#include "cli/program.h"

namespace {

using namespace cli_test;

const std::string components = R"([components]
W = { molecular_weight = 18 }
A-R = { class = "segment", molecular_weight = 100 }
B-R = { class = "segment", molecular_weight = 50 }
P = { class = "polymer", molecular_weight = 100 }
[polymers]
segments = [{ id = "A-R", type = "repeat" }, { id = "B-R", type = "repeat" }]
polymers = ["P"]
attributes = [{ component = "P", names = ["ZMOM", "FMOM", "SMOM", "TMOM", "SFLOW", "SFRAC", "PDI", "MWZ"] }]
)";

using Values = std::map<std::string, std::vector<double>>;

// Flow of P and the attributes that a stream gives it.
Values values(const app::Stream& stream)
{
    Values found;
    for (const auto& flow : stream.flows) found["flow of " + flow.component.id].push_back(flow.value);
    for (const auto& value : stream.attributes) found[value.name.id] = value.elements;
    return found;
}

void expect_near(const Values& seen, const Values& expected)
{
    ASSERT_EQ(seen.size(), expected.size());
    for (const auto& [key, elements] : expected) {
        ASSERT_TRUE(seen.contains(key) && seen.at(key).size() == elements.size()) << key;
        for (std::size_t i = 0; i < elements.size(); ++i)
            EXPECT_NEAR(seen.at(key)[i], elements[i], 1e-12 * elements[i]) << key;
    }
}

// Flow of P, its moments, its segments, Mw/Mn and Mz.
Values chains(double flow, double z, double f, double s, double t, std::vector<double> segments, double pdi,
              double mz)
{
    return {{"flow of P", {flow}},
            {"ZMOM", {z}},
            {"FMOM", {f}},
            {"SMOM", {s}},
            {"TMOM", {t}},
            {"SFLOW", segments},
            {"SFRAC", {segments[0] / f, segments[1] / f}},
            {"PDI", {pdi}},
            {"MWZ", {mz}}};
}

// By hand: m0 = 0.6 × 100 + 0.4 × 50 = 80 g/mol, F = 800/80 = 10, Z = 800/8000 = 0.1, S = 16000/80 × 10 =
// 2000, T = 24000/80 × 2000 = 600 000. The masses of the segments are 600 and 200 of 800.
TEST(Chains, GiveMomentsFromAnyAveragesThatDetermineThem)
{
    const auto all = chains(8, 0.1, 10, 2000, 6e5, {6, 4}, 2, 24000);
    auto without_mz = all;
    without_mz.erase("TMOM");
    without_mz.erase("MWZ");
    // Mz is 24 000 g/mol by the type of Schulz and Zimm; 16 000 × 2 by the log-normal one.
    const auto log_normal = chains(8, 0.1, 10, 2000, 8e5, {6, 4}, 2, 32000);
    const std::string moles = "mole_fractions = { A-R = 0.6, B-R = 0.4 }, ", mass = moles + "mass = 800, ";
    const std::pair<std::string, Values> rows[] = {
        {mass + "mn = 8000, mw = 16000, mz = 24000", all},
        {mass + "mn = 8000, dispersity = 2", without_mz},
        {mass + "mw = 16000, dispersity = 2, mz = 24000", all},
        {mass + "dpn = 100, dispersity = 2, mz = 24000", all},
        {mass + "dpn = 100, mw = 16000, mz = 24000", all},
        {moles + "moles = 0.1, mn = 8000, mw = 16000, mz = 24000", all},
        {mass + "mn = 8000, mw = 16000, mz = 24000, dpn = 100.09, dispersity = 2.001", all},
        {mass + "mn = 8000, dispersity = 2, type = 'schulz-zimm'", all},
        {mass + "mn = 8000, mz = 24000, type = 'schulz-zimm'", all},
        {mass + "mw = 16000, mz = 24000, type = 'schulz-zimm'", all},
        {mass + "dispersity = 2, mz = 24000, type = 'schulz-zimm'", all},
        {mass + "dpn = 100, mz = 32000, type = 'log-normal'", log_normal},
        {mass + "mw = 16000, mz = 32000, type = 'log-normal'", log_normal},
        {mass + "dispersity = 2, mz = 32000, type = 'log-normal'", log_normal},
        {"mass_fractions = { A-R = 0.75, B-R = 0.25 }, mass = 800, mn = 8000, mw = 16000, mz = 24000", all},
        {moles +
             "fractions = [{ mass = 400, mn = 8000, mw = 16000 }, { moles = 0.05, mn = 8000, mw = 16000 }]",
         without_mz},
        // Single chain lengths of 50 and 500 segments: S = 5 × 550, T = 5 × (2500 + 250 000).
        {moles +
             "fractions = [{ mass = 400, mn = 4000, mw = 4000 }, { mass = 400, dpn = 500, dispersity = 1 }]",
         chains(8, 0.11, 10, 2750, 1262500, {6, 4}, 2750 * 0.11 / 100, 1262500.0 / 2750 * 80)},
        // Chains of 100 A-R and chains of 100 B-R, 0.01 kmol/h of each: Mw = (100 × 10 000 + 50 × 5000) / 150
        // by mass, Mz = (100 × 10 000² + 50 × 5000²) / 1 250 000, m0 = 75.
        {"mole_fractions = { A-R = 1 }, fractions = [{ mass = 100, dpn = 100, dispersity = 1 }, { mass = 50, "
         "dpn = 100, dispersity = 1, mole_fractions = { B-R = 1 } }]",
         chains(1.5, 0.02, 2, 25000.0 / 3 / 75 * 2, 9000.0 / 75 * 25000 / 3 / 75 * 2, {1, 1},
                25000.0 / 3 / 7500, 9000)},
        {moles + "mass = 0, mn = 8000, mw = 16000",
         {{"flow of P", {0}}, {"ZMOM", {0}}, {"FMOM", {0}}, {"SMOM", {0}}, {"TMOM", {0}}, {"SFLOW", {0, 0}}}},
    };
    for (const auto& [given, expected] : rows) {
        SCOPED_TRACE(given);
        expect_near(
            values(parsed(components + "[streams.S]\nchains.P = { " + given + " }\n").streams.front()),
            expected);
    }
}

const std::string good = components + R"([streams.S]
mass_flows = { W = 36 }
[streams.S.chains.P]
mass = 800
mole_fractions = { A-R = 0.6, B-R = 0.4 }
mn = 8000
dispersity = 2
[streams.T]
flows = { W = 1, P = 1 }
attributes.P = { ZMOM = 0.5, FMOM = 1, SMOM = 10, SFLOW = { A-R = 1 }, SFRAC = { A-R = 1 } }
[streams.M]
mix = { N = 0.5, S = 2 }
[streams.N]
mix = { T = 4, S = 1 }
[reactors.R]
inlets = ["T", "S"]
outlet = "M"
)";

TEST(Chains, FollowTheirNumbersByKey)
{
    app::CaseDocument document{good, "c.toml"};
    document.set_number("streams.S.chains.P.mn", 4000);
    app::Diagnostics diagnostics;
    EXPECT_EQ(values(document.read(diagnostics).streams.front())["ZMOM"], std::vector<double>{0.2});
}

// N = 4 T + S and M = 0.5 N + 2 S = 2 T + 2.5 S, with W = 2 in S.
TEST(Mixes, AddFlowsAndMomentsAndFormAveragesAnew)
{
    const auto streams = parsed(good).streams;
    const double z = 1.25, f = 27, s = 5020;
    auto expected = chains(22, z, f, s, 0, {17, 10}, s * z / f / f, 0);
    for (const auto* name : {"TMOM", "MWZ"}) expected.erase(name);
    expected["flow of W"] = {7};
    expect_near(values(streams[2]), expected);
    const auto without_polymer = with(with(good, ", P = 1 }", " }"), "attributes.P = {", "#");
    EXPECT_EQ(values(parsed(without_polymer).streams[3])["PDI"], std::vector<double>{2}) << "of S alone";
}

// M holds 2.5 S + 2 T: of P 1200 kg/h from S and 100 kg/h from T more than both inlets.
TEST(Reactors, SubtractAllInlets)
{
    const auto e = evaluated(good);
    EXPECT_NEAR(number(e, "reactors.R.polymer_made.total.mass_flow"), 1300, 1e-9);
    EXPECT_NEAR(number(e, "reactors.R.polymer_made.total.dpn"), 16 / 0.65, 1e-12);
    const auto reactor = json(e)["reactors"][0];
    EXPECT_EQ(reactor["inlet"], "T + S");
    EXPECT_EQ(reactor["inlets"], Json::array({"T", "S"}));
}

TEST(Chains, AreComparedWithAttributesGivenAsWell)
{
    const auto text =
        with(good, "[streams.T]",
             "[streams.S.attributes.P]\nZMOM = 0.1\nSMOM = 2000.1\nSFLOW = { B-R = 5, A-R = 6 }\n"
             "[streams.T]");
    const auto e = evaluated(text);
    // Among the contradictions that these values bring about.
    const auto seen = e.diagnostics();
    for (const char* line :
         {"c.toml:19:1: streams.S.attributes.P.SMOM is 2000.1, but 2000 follows from streams.S.chains.P: a "
          "difference of 0.005 %; the given value is used",
          "c.toml:20:1: streams.S.attributes.P.SFLOW[2] is 5, but 4 follows from streams.S.chains.P: a "
          "difference of 20 %; the given value is used"})
        EXPECT_EQ(std::ranges::count(seen, line), 1) << line;
    EXPECT_FALSE(app::has_errors(e.report));
    EXPECT_EQ(values(e.input.streams.front())["SMOM"], std::vector<double>{2000.1});
    const auto with_mz = parsed(components +
                                "[streams.S]\nattributes.P.SMOM = 1000\nchains.P = { mass = 800, mn = 8000, "
                                "mw = 16000, mz = 24000, mole_fractions = { A-R = 0.6, B-R = 0.4 } }\n");
    EXPECT_NEAR(values(with_mz.streams.front())["TMOM"][0], 3e5, 1e-9) << "Mz stays";
}

// N = 4 T + S: F = 14, S = 2040, 1200 kg/h; by mass Mw = (400 × 1000 + 800 × 16 000) / 1200.
TEST(Mixes, OfDifferentSegmentWeightsAreNamed)
{
    const auto warnings = parsed(good).warnings;
    ASSERT_EQ(warnings.size(), 2u);
    EXPECT_EQ(warnings[0].source.line, 23u);
    EXPECT_EQ(
        warnings[0].text,
        "streams.N.mix: chains of P differ in their segment weights; moments count segments, so that Mw is "
        "12489.8 g/mol in the results, but 11000 g/mol by mass; Mz and dispersity differ likewise");
}

TEST(NaturalInputs, AreRefusedWithPlaceValueAndExpectation)
{
    EXPECT_EQ(diagnose(good), Lines{});
    // @ is short for the key of the chains.
    expect_each(std::regex_replace(std::string{R"(
mn = 8000\ndispersity = 2 -> mn = 8000\ndpn = 100 => 12:19: @ gives mn, dpn; expected Mn and Mw by two of mn
    (or dpn), mw and dispersity, or by one of them, mz and a type that relates them
mn = 8000\ndispersity = 2 -> mw = 8000\nmz = 9000 => 12:19: @ gives mw, mz; expected Mn and Mw by two of mn
    (or dpn), mw and dispersity, or by one of them, mz and a type that relates them
mn = 8000\ndispersity = 2 -> => 12:19: @ gives no averages; expected Mn and Mw by two of mn (or dpn), mw and
    dispersity, or by one of them, mz and a type that relates them
dispersity = 2 -> dispersity = 0.9 => 16:1: @.dispersity is 0.9; expected 1 or greater
dispersity = 2 -> mw = 7000 => 12:19: @: Mw is 7000 g/mol; expected at least Mn, 8000 g/mol
dispersity = 2 -> dispersity = 2\nmz = 15000 => 12:19: @: Mz is 15000 g/mol; expected at least Mw, 16000 g/mol
mn = 8000 -> mn = 79 => 12:19: @: Mn is 79 g/mol; expected at least the mean segment weight, 80 g/mol
dispersity = 2 -> dispersity = 2\nmw = 17000 => 12:19: @: mw is 17000, but 16000 follows from mn and
    dispersity; expected values that agree within 0.1 %
dispersity = 2 -> dispersity = 2\ndpn = 101
    => 12:19: @: mn is 8000, but 8080 follows from dpn; expected values that agree within 0.1 %
dispersity = 2 -> dispersity = 2\nmz = 30000\ntype = "schulz-zimm"
    => 12:19: @: mz is 30000, but 24000 follows from the type; expected values that agree within 0.1 %
mn = 8000\ndispersity = 2 -> mw = 8000\nmz = 16000\ntype = "schulz-zimm"
    => 12:19: @: mz is 16000 g/mol; expected less than twice mw, 16000 g/mol, by the type
dispersity = 2 -> dispersity = 2\ntype = "poisson"
    => 17:1: @.type is "poisson"; expected one of log-normal, schulz-zimm
mass = 800 -> mass = 1e308 => 12:19: @ has moments that are not finite; expected smaller values
mass = 800 ->
    => 12:19: @.mass is missing; expected the mass flow in kg/h, or moles, the flow of chains in kmol/h
mass = 800 -> mass = 800\nmoles = 0.1 => 14:1: @.moles and @.mass are both given; expected one of the two
B-R = 0.4 -> B-R = 0.39 => 14:1: @.mole_fractions add up to 0.99; expected 1 within 1e-6
B-R = 0.4 -> C-R = 0.4 => 14:31: @.mole_fractions names "C-R", which is not a segment; did you mean "A-R"?
mole_fractions = { A-R = 0.6, B-R = 0.4 }\n ->
    => 12:19: @ has no mole_fractions or mass_fractions; expected those of A-R, B-R
mn = 8000 -> mass_fractions = { A-R = 1 }\nmn = 8000
    => 15:1: @.mass_fractions and @.mole_fractions are both given; expected one of the two
mass = 800\nmole_fractions = { A-R = 0.6, B-R = 0.4 }\nmn = 8000\ndispersity = 2 -> fractions = []
    => 13:1: @.fractions is empty; expected at least one fraction
mass = 800\nmole_fractions = { A-R = 0.6, B-R = 0.4 }\nmn = 8000\ndispersity = 2 -> mole_fractions = { A-R = 1
    }\nfractions = [{ mass = 1, mn = 8000 }] => 14:14: @.fractions[1] gives mn; expected Mn and Mw by two of
    mn (or dpn), mw and dispersity, or by one of them, mz and a type that relates them
mn = 8000\ndispersity = 2 -> fractions = [{ mass = 1, mn = 8000, mw = 8000 }]
    => 13:1: @.mass and @.fractions are both given; expected one of the two
chains.P] -> chains.Q] => 12:19: streams.S.chains names "Q", which is not a polymer; expected one of P
W = 36 -> W = 36, P = 1 => 12:19: @ and streams.S.mass_flows.P are both given; expected one of the two
mass_flows = { W = 36 } -> mass_flows = { W = 36 }\nflows = { W = 36 }
    => 11:16: streams.S.mass_flows.W and streams.S.flows.W are both given; expected one of the two
mass_flows = { W = 36 } -> mass_flows = { A-R = 36 } => 11:16: streams.S.mass_flows names "A-R", which is a
    segment; segments are parts of polymers and have no flow or attributes of their own
{ T = 4, S = 1 } -> { T = 4, M = 1 } => 21:1: streams.M.mix leads back to its own stream: M, N, M; expected
    streams that can be computed one after another
{ T = 4, S = 1 } -> { N = 1 } => 23:1: streams.N.mix leads back to its own stream: N, N; expected streams that
    can be computed one after another
{ T = 4, S = 1 } -> { T = 4, U = 1 }
    => 23:16: streams.N.mix names "U", which is not a stream; expected one of S, T, M, N
mass = 800 -> mass = 1e-12
    => 12:19: streams.S.chains.P: ZMOM is 1.25e-16 kmol/h; expected 0, or more than the zero bound, 1e-15, and
       less than the missing value bound, 1e+35
dispersity = 2 -> mz = 1000\ntype = "log-normal"
    => 12:19: streams.S.chains.P: mz is 1000 g/mol; expected at least mn, 8000 g/mol
{ T = 4, S = 1 } -> { } => 23:1: streams.N.mix is empty; expected at least one stream
{ T = 4, S = 1 } -> { T = 4, S = -1 } => 23:16: streams.N.mix.S is -1; expected a finite number, 0 or greater
{ T = 4, S = 1 } -> { T = 4 }\nflows = { W = 1 }
    => 24:1: streams.N.flows and streams.N.mix are both given; expected one of the two
SMOM = 10, ->
    => 23:1: streams.N.mix: streams.T gives no SMOM of P; expected one, since another stream gives it
SMOM -> MWZ = 1, SMOM => 9:59: polymers.attributes names "MWZ = 1, SMOM", which is not an attribute
inlets = ["T" -> inlets = ["U"
    => 25:11: reactors.R.inlets[1] names "U", which is not a stream; expected one of S, T, M, N
inlets = ["T" -> inlets = ["" => 25:11: reactors.R.inlets[1] is ""; expected the name of a stream
inlets = ["T" -> inlets = ["S" => 25:16: reactors.R.inlets names "S" twice
inlets = ["T", "S"] -> inlets = []
    => 25:1: reactors.R.inlets is empty; expected the name of at least one stream
inlets = -> inlet = "T"\ninlets =
    => 26:1: reactors.R.inlets and reactors.R.inlet are both given; expected one of the two
)"},
                                   std::regex{"@"}, "streams.S.chains.P"),
                good, diagnose);
}

}  // namespace
