#include <functional>

#include "app/evaluation/result_arrays.h"
#include "cli/check_command.h"
#include "cli/convert_command.h"
#include "cli/fit_command.h"
#include "cli/program.h"

namespace {

using namespace cli_test;

// Linear chains of two site types: 0.5 kmol/h of chains of 21 segments, 1000 kg/h, Mn 2000 g/mol,
// Mw/Mn = 0.5 × 441 / 10.5² = 2, Mz/Mw = 10.5 × 27783 / 441² = 1.5.
const std::string good = R"([components]
A-R = { class = "segment", molecular_weight = 100 }
B-E = { class = "segment", molecular_weight = 50 }
P = { class = "polymer", molecular_weight = 100 }
[polymers]
segments = [{ id = "A-R", type = "repeat" }, { id = "B-E", type = "end" }]
polymers = ["P"]
sites = { count = 2 }
attributes = [{ component = "P", names = ["ZMOM", "FMOM", "SMOM", "TMOM", "SFLOW", "SZMOM", "SFMOM", "SSMOM", "SSFLOW"] }]
[streams.S]
flows = { P = 10 }
[streams.S.attributes.P]
ZMOM = 0.5
FMOM = 10.5
SMOM = 441
TMOM = 27783
SFLOW = [9.5, 1]
SZMOM = [0.2, 0.3]
SFMOM = [3.9, 6.6]
SSMOM = [141, 300]
SSFLOW = [3.5, 0.4, 6, 0.6]
)";

using Changes = std::vector<std::pair<std::string, std::string>>;

Lines diagnose(const Changes& changes)
{
    auto text = good;
    for (const auto& [old, replacement] : changes) text = with(text, old, replacement);
    return evaluated(text).diagnostics();
}

struct Row {
    Changes changes;
    Lines expected;
};

void expect_each(const std::vector<Row>& rows)
{
    for (const auto& [changes, expected] : rows) {
        SCOPED_TRACE(changes.empty() ? "" : changes.back().second);
        EXPECT_EQ(diagnose(changes), expected);
    }
}

// Another attribute of P, in line 13.
Changes giving(const std::string& name, const std::string& value)
{
    return {{"[\"ZMOM\"", "[\"" + name + "\", \"ZMOM\""},
            {"ZMOM = 0.5", name + " = " + value + "\nZMOM = 0.5"}};
}

TEST(Contradictions, AreNamedWithBothValuesAndTheirDifference)
{
    const std::string p = "streams.S.attributes.P.";
    const std::string site_2 =
        "SZMOM times SSMOM is 36.6, but the square of the sum of SSFLOW of this site type is 43.56; they "
        "differ by 16 % of the larger: Mw/Mn would be 0.84022, below 1; results of the site type use these "
        "values";
    expect_each({
        {{}, {}},
        {{{"{ P = 10 }", "{ P = 5 }"}},
         {"c.toml:11:11: streams.S.flows.P: flow times molecular weight is 500 kg/h, but SFLOW times segment "
          "weights is 1000 kg/h; they differ by 50 % of the larger, a factor of 2; compositions use the "
          "flow, averages the moments; check streams.S.flows.P, components.P.molecular_weight and the scale "
          "of SFLOW, ZMOM, FMOM, SMOM, TMOM"}},
        {{{"FMOM = 10.5", "FMOM = 10.501"}}, {}},  // 0.0095 %
        {{{"FMOM = 10.5", "FMOM = 10.502"}},
         {"c.toml:14:1: " + p +
          "FMOM is 10.502 kmol/h, but the sum of SFLOW is 10.5 kmol/h; they differ by 0.019 % of the larger; "
          "DPN comes from FMOM and ZMOM, Mw/Mn from ZMOM, SMOM and SFLOW; reactors use SFLOW"}},
        {{{"SMOM = 441", "SMOM = 200"}, {"[141, 300]", "[78, 122]"}},
         {"c.toml:15:1: " + p +
              "SMOM: ZMOM times SMOM is 100, but the square of FMOM is 110.25; they differ by 9.3 % of the "
              "larger: Mw/Mn would be 0.907029, below 1; Mw/Mn comes from ZMOM, SMOM and SFLOW",
          "c.toml:20:1: " + p + "SSMOM[2]: " + site_2}},
        {{{"\"FMOM\", ", ""},
          {"FMOM = 10.5\n", ""},
          {"SMOM = 441", "SMOM = 200"},
          {"[141, 300]", "[78, 122]"}},
         {"c.toml:14:1: " + p +
              "SMOM: ZMOM times SMOM is 100, but the square of the sum of SFLOW is 110.25; they differ by "
              "9.3 % of the larger: Mw/Mn would be 0.907029, below 1; Mw/Mn comes from ZMOM, SMOM and SFLOW",
          "c.toml:19:1: " + p + "SSMOM[2]: " + site_2}},
        {{{"TMOM = 27783", "TMOM = 10000"}},
         {"c.toml:16:1: " + p +
          "TMOM: FMOM times TMOM is 105000, but the square of SMOM is 194481; they differ by 46 % of the "
          "larger: Mz/Mw would be 0.539898, below 1; Mz uses TMOM and SMOM"}},
        {{{"[0.2, 0.3]", "[0.2, 0.2]"}},
         {"c.toml:13:1: " + p +
          "ZMOM is 0.5 kmol/h, but the sum of SZMOM is 0.4 kmol/h; they differ by 20 % of the larger; "
          "averages of the stream use ZMOM, site types and the reactors with site types SZMOM"}},
        {{{"[141, 300]", "[141, 200]"}},
         {"c.toml:15:1: " + p +
          "SMOM is 441 kmol/h, but the sum of SSMOM is 341 kmol/h; they differ by 22.7 % of the larger; "
          "averages of the stream use SMOM, site types and the reactors with site types SSMOM"}},
        {{{"[3.5, 0.4", "[3.5, 0.5"}},
         {"c.toml:17:1: " + p +
              "SFLOW of B-E is 1 kmol/h, but the sum of SSFLOW over the site types is 1.1 kmol/h; they "
              "differ by 9.09 % of the larger; averages of the stream use SFLOW, site types and the reactors "
              "with site types SSFLOW",
          "c.toml:19:1: " + p +
              "SFMOM[1] is 3.9 kmol/h, but the sum of SSFLOW of this site type is 4 kmol/h; they differ by "
              "2.5 % of the larger; results of site types use SSFLOW"}},
        {{{"\"SSFLOW\"", "\"SFRAC\""},
          {"SSFLOW = [3.5, 0.4, 6, 0.6]", "SFRAC = [0.9047619, 0.0952381]"},
          {"[3.9, 6.6]", "[3.9, 6]"},
          {"\"SZMOM\", ", ""},
          {"SZMOM = [0.2, 0.3]\n", ""},
          {"\"SSMOM\", ", ""},
          {"SSMOM = [141, 300]\n", ""}},
         {"c.toml:14:1: " + p +
              "FMOM is 10.5 kmol/h, but the sum of SFMOM is 9.9 kmol/h; they differ by 5.71 % of the larger; "
              "DPN comes from FMOM and ZMOM, nothing from SFMOM",
          "c.toml:18:1: " + p + "SFMOM is not used: no result depends on it"}},
        // 0.2 · 60 is below 3.9², whereas the sums over the site types agree.
        {{{"[141, 300]", "[60, 381]"}},
         {"c.toml:20:1: " + p +
          "SSMOM[1]: SZMOM times SSMOM is 12, but the square of the sum of SSFLOW of this site type is "
          "15.21; they differ by 21.1 % of the larger: Mw/Mn would be 0.788955, below 1; results of the site "
          "type use these values"}},
        {{{"ZMOM = 0.5", "ZMOM = 0.4"}, {"[0.2, 0.3]", "[0.2, 0.2]"}},
         {"c.toml:17:1: " + p +
          "SFLOW: flow of end segments is 1 kmol/h, but twice ZMOM is 0.8 kmol/h; they differ by 20 % of the "
          "larger, and linear chains have two ends each; DPN comes from FMOM and ZMOM"}},
        {{{"ZMOM = 0.5", "ZMOM = 0"},
          {"\"SMOM\", ", ""},
          {"SMOM = 441\n", ""},
          {"\"SSMOM\", ", ""},
          {"SSMOM = [141, 300]\n", ""},
          {"\"TMOM\", ", ""},
          {"TMOM = 27783\n", ""},
          {"\"SZMOM\", ", ""},
          {"SZMOM = [0.2, 0.3]\n", ""},
          {", \"SSFLOW\"", ""},
          {"SSFLOW = [3.5, 0.4, 6, 0.6]\n", ""},
          {", \"SFMOM\"", ""},
          {"SFMOM = [3.9, 6.6]\n", ""},
          {"[9.5, 1]", "[10.5, 0]"},
          {"{ P = 10 }", "{ P = 10.5 }"},
          {"100 }\n[", "100, pdi = 2 }\n["}},
         {"c.toml:13:1: " + p +
          "ZMOM is 0 kmol/h, but FMOM is 10.5 kmol/h; they differ by 100 % of the larger: no chains are "
          "counted; DPN comes from the least length, one segment, since ZMOM is 0"}},
        // The key that the file has, and no molecular weight to check.
        {{{"flows = { P = 10 }", "mass_flows = { P = 500 }"}},
         {"c.toml:11:16: streams.S.mass_flows.P: flow times molecular weight is 500 kg/h, but SFLOW times "
          "segment weights is 1000 kg/h; they differ by 50 % of the larger, a factor of 2; compositions use "
          "the flow, averages the moments; check streams.S.mass_flows.P and the scale of SFLOW, ZMOM, FMOM, "
          "SMOM, TMOM"}},
        // Branches, or chains with one end that is no segment.
        {{{"\"repeat\"", "\"branch3\""}, {"ZMOM = 0.5", "ZMOM = 0.4"}, {"[0.2, 0.3]", "[0.2, 0.2]"}}, {}},
        {{{"ZMOM = 0.5", "ZMOM = 1"}, {"[0.2, 0.3]", "[0.4, 0.6]"}}, {}},
        {giving("DPN", "30"),
         {"c.toml:13:1: " + p +
          "DPN is 30, but FMOM over ZMOM is 21; they differ by 30 % of the larger; DPN comes from DPN; "
          "reactors use the moments"}},
        {giving("MWSEG", "90"),
         {"c.toml:13:1: " + p +
          "MWSEG is 90 g/mol, but the mean segment weight of SFLOW is 95.2381 g/mol; they differ by 5.5 % of "
          "the larger; molecular weights of the stream use MWSEG, reactors SFLOW"}},
        {giving("SFRAC", "[0.9, 0.1]"),
         {"c.toml:13:1: " + p +
          "SFRAC of B-E is 0.1, but its share of SFLOW is 0.0952381; they differ by 4.76 % of the larger; "
          "molecular weights of the stream use SFRAC, reactors SFLOW"}},
    });
}

// Site type 1: 0.2 chains, 3.9 segments, 370 kg/h; site type 2: 0.3, 6.6, 630.
TEST(UnusedValues, AreNamedWithWhatIsUsedInstead)
{
    const auto row = [](const std::string& name, const std::string& value, const std::string& text) {
        return Row{giving(name, value), {"c.toml:13:1: streams.S.attributes.P." + name + text}};
    };
    expect_each({
        row("PDI", "2.5",
            " is 2.5, but is not used: Mw/Mn from ZMOM, SMOM and SFLOW is 2; they differ by 20 % of the "
            "larger"),
        row("PDI", "2", " is 2, but is not used: Mw/Mn from ZMOM, SMOM and SFLOW is 2; they agree"),
        row("MWN", "2100",
            " is 2100 g/mol, but is not used: Mn from FMOM and ZMOM with segment weights from SFLOW is 2000 "
            "g/mol; they differ by 4.76 % of the larger"),
        row("MWW", "5000",
            " is 5000 g/mol, but is not used: Mw from ZMOM, SMOM and SFLOW is 4000 g/mol; they differ by 20 "
            "% of the larger"),
        row("DPW", "42", " is 42, but is not used: Mw over the mean segment weight is 42; they agree"),
        row("DPZ", "60",
            " is 60, but is not used: TMOM over SMOM is 63; they differ by 4.76 % of the larger"),
        row("MWZ", "6000",
            " is 6000 g/mol, but is not used: TMOM over SMOM times the mean segment weight is 6000 g/mol; "
            "they agree"),
        row("EFRAC", "[0.5]",
            "[1] is 0.5, but is not used: its share of the end segments in SFLOW is 1; they differ by 50 % "
            "of the larger"),
        row("SSFRAC", "[0.9, 0.1, 0.9, 0.1]",
            "[4] is 0.1, but is not used: its share of SSFLOW is 0.0909091; they differ by 9.09 % of the "
            "larger"),
        row("SDPN", "[19.5, 20]",
            "[2] is 20, but is not used: its value from SZMOM, SSMOM and SSFLOW is 22; they differ by 9.09 % "
            "of the larger"),
        row("SDPW", "[40, 45]",
            "[1] is 40, but is not used: its value from SZMOM, SSMOM and SSFLOW is 36.1538; they differ by "
            "9.62 % of the larger"),
        row("SPDI", "[1.854, 2]",
            "[2] is 2, but is not used: its value from SZMOM, SSMOM and SSFLOW is 2.06612; they differ by "
            "3.2 % of the larger"),
        row("SMWN", "[1850, 2000]",
            "[2] is 2000 g/mol, but is not used: its value from SZMOM, SSMOM and SSFLOW is 2100 g/mol; they "
            "differ by 4.76 % of the larger"),
        row("SMWW", "[3430, 4000]",
            "[2] is 4000 g/mol, but is not used: its value from SZMOM, SSMOM and SSFLOW is 4338.84 g/mol; "
            "they differ by 7.81 % of the larger"),
        {{{"100 }\n[", "100, dpn = 30 }\n["}},
         {"c.toml:4:50: components.P.dpn is 30, but is not used: DPN in stream S from FMOM and ZMOM is 21; "
          "they differ by 30 % of the larger"}},
        {{{"100 }\n[", "100, pdi = 3 }\n["}},
         {"c.toml:4:50: components.P.pdi is 3, but is not used: Mw/Mn in stream S from ZMOM, SMOM and SFLOW "
          "is 2; they differ by 33.3 % of the larger"}},
        {{{"[polymers]", "[settings]\npdi_from = \"parameters\"\n[polymers]"},
          {"100 }\n[", "100, pdi = 3 }\n["}},
         {"c.toml:17:1: streams.S.attributes.P.SMOM: Mw/Mn from ZMOM, SMOM and SFLOW is 2, but is not used, "
          "since settings.pdi_from is \"parameters\": Mw/Mn from the pdi parameter is 3; they differ by 33.3 "
          "% of the larger"}},
        {{{"\"SMOM\", ", ""},
          {"SMOM = 441\n", ""},
          {"\"SSMOM\", ", ""},
          {"SSMOM = [141, 300]\n", ""},
          {"\"TMOM\", ", "\"DPZ\", "},
          {"TMOM = 27783", "DPZ = 60"},
          {"\"SZMOM\", ", ""},
          {"SZMOM = [0.2, 0.3]\n", ""},
          {", \"SSFLOW\"", ""},
          {"SSFLOW = [3.5, 0.4, 6, 0.6]\n", ""},
          {", \"SFMOM\"", ""},
          {"SFMOM = [3.9, 6.6]\n", ""}},
         {"c.toml:4:1: components.P.pdi is not given, but Mw/Mn of P comes from it where a stream has no "
          "usable ZMOM, SMOM and SFLOW, or settings.pdi_from is \"parameters\": Mw is Mn; expected pdi or "
          "SMOM",
          "c.toml:15:1: streams.S.attributes.P.DPZ is not used: Mz comes from TMOM and SMOM, which P does "
          "not give"}},
        {{{"\"SMOM\", ", ""},
          {"SMOM = 441\n", ""},
          {"\"SSMOM\", ", ""},
          {"SSMOM = [141, 300]\n", ""},
          {"\"SZMOM\", ", ""},
          {"SZMOM = [0.2, 0.3]\n", ""},
          {", \"SSFLOW\"", ""},
          {"SSFLOW = [3.5, 0.4, 6, 0.6]\n", ""},
          {", \"SFMOM\"", ""},
          {"SFMOM = [3.9, 6.6]\n", ""},
          {"100 }\n[", "100, pdi = 2 }\n["}},
         {"c.toml:15:1: streams.S.attributes.P.TMOM is not used: Mz comes from TMOM and SMOM, which P does "
          "not give"}},
        {{{"molecular_weight = 50 }", "molecular_weight = 50, dpn = 2 }"}},
         {"c.toml:3:51: components.B-E.dpn is not used: B-E is a segment"}},
        {{{"{ P = 10 }", "{ P = 0 }"}, {"100 }\n[", "100, pdi = 2 }\n["}},
         {"c.toml:4:50: components.P.pdi is not used: P flows in no stream",
          "c.toml:12:23: streams.S.attributes.P is not used: P does not flow in this stream"}},
        {{{"[polymers]", "O = { class = \"oligomer\", molecular_weight = 300, dpn = 5 }\n[polymers]"},
          {"polymers = [\"P\"]", "polymers = [\"P\"]\noligomers = [{ id = \"O\", segments = { A-R = 3 } }]"}},
         {"c.toml:5:51: components.O.dpn is 5, but the number of segments of O in polymers.oligomers is 3; "
          "they differ by 40 % of the larger; DPN comes from dpn, compositions from the segments"}},
        {{{"{ P = 10 }", "{ P = 0 }"}},
         {"c.toml:12:23: streams.S.attributes.P is not used: P does not flow in this stream"}},
        {{{"\"SSMOM\", ", ""}, {"SSMOM = [141, 300]\n", ""}},
         {"c.toml:18:1: streams.S.attributes.P.SZMOM is not used: results of site types need polymers.sites, "
          "and SZMOM, SSMOM and SSFLOW of every polymer",
          "c.toml:20:1: streams.S.attributes.P.SSFLOW is not used: results of site types need "
          "polymers.sites, and SZMOM, SSMOM and SSFLOW of every polymer"}},
        {{{"[streams.S]", "[streams.T]\nflows = { W = 1 }\nattributes.W = { DPN = 5 }\n[streams.S]"},
          {"attributes = [", "attributes = [{ component = \"W\", names = [\"DPN\"] }, "},
          {"[polymers]", "[components.W]\nmolecular_weight = 18\n[polymers]"}},
         {"c.toml:14:18: streams.T.attributes.W.DPN is not used: W is not a polymer"}},
    });
}

// The absent value would be 0 or missing, and the results of the stream wrong without a sign of it.
TEST(RequiredValues, AreErrorsThatSayWhatToGive)
{
    const std::string lead = "c.toml:12:23: streams.S.attributes.P.";
    expect_each({
        {{{"ZMOM = 0.5\n", ""}},
         {lead + "ZMOM is missing; expected a number in kmol/h, since P carries it: the chains would not be "
                 "counted without it"}},
        {{{"SFLOW = [9.5, 1]\n", ""}},
         {lead + "SFLOW is missing; expected a number for each segment, in kmol/h, since P carries it: the "
                 "segments would not be known without it"}},
        {{{"FMOM = 10.5\n", ""}},
         {lead + "FMOM is missing; expected a number in kmol/h, since P carries it: Mn would be that of one "
                 "segment without it"}},
        {{{"[\"ZMOM\"", "[\"DPN\", \"SFRAC\", \"ZMOM\""}, {"FMOM = 10.5\n", ""}},
         {lead + "DPN is missing; expected a number of segments per chain, since P carries it: Mn would be "
                 "that of one segment without it",
          lead + "SFRAC is missing; expected a mole fraction for each segment, since P carries it: all "
                 "segments would share equally without it"}},
        {{{"[\"ZMOM\"", "[\"DPN\", \"ZMOM\""}, {"100 }\n[", "100, dpn = 21 }\n["}}, {}},
        {{{"SMOM = 441\n", ""}},
         {lead +
          "SMOM is missing; expected a number in kmol/h, since P carries it: Mw would be 0 without it"}},
        {{{"SMOM = 441\n", ""},
          {"100 }\n[", "100, pdi = 2 }\n["},
          {"[polymers]", "[settings]\npdi_from = \"parameters\"\n[polymers]"},
          {"\"TMOM\", ", ""},
          {"TMOM = 27783\n", ""}},
         {}},
        {{{"SSMOM = [141, 300]\n", ""}},
         {lead + "SSMOM is missing; expected a number for each site type, in kmol/h, since P carries it: Mw "
                 "of the site types would be 0 without it"}},
    });
}

TEST(Warnings, AreInEveryFormAndCountWhenAskedFor)
{
    const File file{with(good, "{ P = 10 }", "{ P = 5 }")};
    const auto outcome = [&](cli::Strictness strictness) {
        cli::RunOptions options;
        options.strictness = strictness;
        return run(options, file.path, Format::json);
    };
    const auto [status, out, errors] = outcome(cli::Strictness::normal);
    EXPECT_EQ(status, cli::exit_success);
    const auto warnings = Json::parse(out)["warnings"];
    ASSERT_EQ(warnings.size(), 1u);
    EXPECT_EQ(warnings[0]["line"], 11);
    EXPECT_EQ(warnings[0]["column"], 11);
    EXPECT_EQ(warnings[0]["key"], "streams.S.flows.P");
    const auto text = warnings[0]["text"].get<std::string>();
    EXPECT_EQ(errors, warnings[0]["file"].get<std::string>() + ":11:11: " + text + "\n");
    EXPECT_NE(app::format_html(evaluated(with(good, "{ P = 10 }", "{ P = 5 }")).report).find(text + "</li>"),
              std::string::npos);
    EXPECT_EQ(outcome(cli::Strictness::strict).status, cli::exit_case_error);

    const auto convert = [](const auto& path, Format format, std::FILE* to, std::FILE* err) {
        return cli::convert(path, {"S", app::Basis::apparent, app::Basis::true_chains}, format, to, err,
                            cli::Strictness::strict);
    };
    const auto converted = support::capture(convert, file.path, Format::text);
    EXPECT_EQ(converted.status, cli::exit_case_error);
    EXPECT_EQ(converted.errors, errors);
}

// Commands that need no more than a case and a measured curve.
struct Command {
    const char* name;
    std::function<int(cli::Strictness, std::FILE*, std::FILE*)> start;
};
std::vector<Command> commands(const std::filesystem::path& file, const std::filesystem::path& measured)
{
    cli::FitCommandOptions fit;
    fit.file = file;
    fit.gpc = measured;
    fit.segment_weight = 100;
    fit.format = Format::json;
    return {
        {"check", [file](auto strictness, auto* out,
                         auto* errors) { return cli::check(file, Format::json, out, errors, strictness); }},
        {"convert",
         [file](auto strictness, auto* out, auto* errors) {
             return cli::convert(file, {"S", app::Basis::apparent, app::Basis::true_chains}, Format::json,
                                 out, errors, strictness);
         }},
        {"fit",
         [fit](auto strictness, auto* out, auto* errors) mutable {
             fit.strictness = strictness;
             return cli::fit(fit, out, errors);
         }},
    };
}

TEST(Commands, StopAtACaseWithErrors)
{
    const File file{"[components]\nW = { class = 7 }\n"};
    for (const auto& command : commands(file.path, file.path)) {
        const auto start = [&](const auto&, Format, std::FILE* out, std::FILE* errors) {
            return command.start(cli::Strictness::normal, out, errors);
        };
        const auto [status, out, errors] = support::capture(start, file.path, Format::json);
        EXPECT_EQ(status, cli::exit_case_error) << command.name;
        EXPECT_EQ(out, "") << command.name;
        EXPECT_NE(
            errors.find(file.path.string() + ":2:7: components.W.class is 7; expected a text in quotes"),
            std::string::npos)
            << errors;
    }
}

// A warning of the reader, about chains and a moment given as well.
TEST(Warnings, OfTheCaseFileAreGivenByEveryCommand)
{
    const File file{R"([components]
A-R = { class = "segment", molecular_weight = 100 }
P = { class = "polymer", molecular_weight = 100 }
[polymers]
segments = [{ id = "A-R", type = "repeat" }]
polymers = ["P"]
attributes = [{ component = "P", names = ["ZMOM", "FMOM", "SMOM", "SFLOW"] }]
[streams.S]
chains.P = { mass = 1000, mn = 10000, dispersity = 2 }
attributes.P.SMOM = 2000.1
)"};
    const File measured{"M S\n1e3 0.5\n2e3 3\n4e3 6\n8e3 5\n2e4 0.5\n", "measured"};
    const std::string text =
        "streams.S.attributes.P.SMOM is 2000.1, but 2000 follows from streams.S.chains.P: a difference of "
        "0.005 %; the given value is used";
    for (const auto& row : commands(file.path, measured.path))
        for (const auto strictness : {cli::Strictness::normal, cli::Strictness::strict}) {
            SCOPED_TRACE(row.name);
            const auto command = [&](const auto&, Format, std::FILE* out, std::FILE* errors) {
                return row.start(strictness, out, errors);
            };
            const auto seen = support::capture(command, file.path, Format::json);
            EXPECT_EQ(seen.status, strictness == cli::Strictness::strict ? cli::exit_case_error : 0);
            EXPECT_EQ(seen.errors, file.path.string() + ":10:14: " + text + "\n");
            const auto warnings = Json::parse(seen.out)["warnings"];
            ASSERT_EQ(warnings.size(), 1u);
            EXPECT_EQ(warnings[0]["file"], file.path.string());
            EXPECT_EQ(warnings[0]["text"], text);
        }
}

TEST(Examples, HaveNoWarnings)
{
    for (const auto& entry : std::filesystem::directory_iterator{examples}) {
        if (entry.path().extension() != ".toml" || entry.path().stem() == "bad-input") continue;
        EXPECT_EQ(run_json(entry.path())["warnings"], Json::array()) << entry.path();
    }
}

// B with C is not given: no data, whereas a given parameter of 0 is 0.
TEST(Parameters, WithoutDataDifferFromZero)
{
    const std::string text = R"([components]
A = { molecular_weight = 1 }
B = { molecular_weight = 1 }
C = { molecular_weight = 1 }
[parameters.K]
components = ["A", "B", "C"]
pairs = [{ components = ["A", "B"], values = [2, 0, 0, 0, 0, 300] }, { components = ["A", "C"], values = [0, 0, 0, 0, 0, 300] }]
temperatures = [300]
)";
    const auto e = evaluated(text);
    const auto json = Json::parse(app::format_json(e.report))["parameters"][0]["binary_parameters"];
    EXPECT_EQ(json[1],
              (Json{{"temperature", 300.0}, {"component", "B"}, {"A", 2.0}, {"B", 0.0}, {"C", nullptr}}));
    EXPECT_EQ(json[0]["C"], 0.0);
    const auto csv = app::format_csv(e.report);
    EXPECT_NE(csv.find("parameter,K,binary_parameters,300,B,,C,,1\n"), std::string::npos) << csv;
    EXPECT_NE(csv.find("parameter,K,binary_parameters,300,A,,C,0,1\n"), std::string::npos) << csv;
    EXPECT_NE(app::format_text(e.report).find("B          2  0  -\n"), std::string::npos)
        << app::format_text(e.report);
    EXPECT_NE(app::format_html(e.report).find(R"(<td class="number" data-value="">–</td>)"),
              std::string::npos);
    const auto arrays = app::result_arrays(e.results);
    const auto found = std::ranges::find(arrays, "parameters.K.pair_has_data", &app::ResultArray::key);
    ASSERT_NE(found, arrays.end());
    EXPECT_EQ(std::vector(found->values, found->values + 9),
              (std::vector<double>{1, 1, 1, 1, 1, 0, 1, 0, 1}));
}

TEST(Crystallinity, IsPrintedForComponentsThatGiveIt)
{
    const auto e = evaluated(with(good, "100 }\n[", "100, cry = 0.6 }\n["));
    EXPECT_EQ(number(e, "streams.S.crystallinity.P.cry"), 0.6);
}

}  // namespace
