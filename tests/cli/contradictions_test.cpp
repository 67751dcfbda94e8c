#include <functional>
#include <regex>

#include "app/evaluation/result_arrays.h"
#include "cli/check_command.h"
#include "cli/convert_command.h"
#include "cli/fit_command.h"
#include "cli/program.h"
#include "support/change_rows.h"

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

// `given NAME = VALUE`: another attribute of P, in line 13. `without NAME, NAME`: attributes that P neither
// carries nor has.
std::string changed(std::string text, const std::string& change)
{
    if (change.starts_with("given ")) {
        const auto value = change.substr(6);
        text = with(text, "[\"ZMOM\"", "[\"" + value.substr(0, value.find(' ')) + "\", \"ZMOM\"");
        return with(text, "ZMOM = 0.5", value + "\nZMOM = 0.5");
    }
    if (!change.starts_with("without ")) return support::changed(text, change);
    for (const auto& name : support::parts(change.substr(8), ",")) {
        const std::regex given{"\"" + name + "\", |, \"" + name + "\"|\n" + name + " = .*"};
        EXPECT_TRUE(std::regex_search(text, given)) << name;
        text = std::regex_replace(text, given, "");
    }
    return text;
}

// In each row @ is short for the key of an attribute of P.
void expect_rows(const std::string& table)
{
    const auto diagnose = [](const std::string& text) { return evaluated(text).diagnostics(); };
    support::expect_each(std::regex_replace(table, std::regex{"@"}, "streams.S.attributes.P."), good,
                         diagnose, changed);
}

TEST(Contradictions, AreNamedWithBothValuesAndTheirDifference)
{
    EXPECT_EQ(evaluated(good).diagnostics(), Lines{});
    expect_rows(R"(
{ P = 10 } -> { P = 5 } => 11:11: streams.S.flows.P: flow times molecular weight is 500 kg/h, but SFLOW times
    segment weights is 1000 kg/h; they differ by 50 % of the larger, a factor of 2; compositions use the flow,
    averages the moments; check streams.S.flows.P, components.P.molecular_weight and the scale of SFLOW, ZMOM,
    FMOM, SMOM, TMOM
# 0.0095 %
FMOM = 10.5 -> FMOM = 10.501
FMOM = 10.5 -> FMOM = 10.502
    => 14:1: @FMOM is 10.502 kmol/h, but the sum of SFLOW is 10.5 kmol/h; they differ by 0.019 % of the
       larger; DPN comes from FMOM and ZMOM, Mw/Mn from ZMOM, SMOM and SFLOW; reactors use SFLOW
SMOM = 441 -> SMOM = 200 & [141, 300] -> [78, 122]
    => 15:1: @SMOM: ZMOM times SMOM is 100, but the square of FMOM is 110.25; they differ by 9.3 % of the
       larger: Mw/Mn would be 0.907029, below 1; Mw/Mn comes from ZMOM, SMOM and SFLOW
    => 20:1: @SSMOM[2]: SZMOM times SSMOM is 36.6, but the square of the sum of SSFLOW of this site type is
       43.56; they differ by 16 % of the larger: Mw/Mn would be 0.84022, below 1; results of the site type use
       these values
without FMOM & SMOM = 441 -> SMOM = 200 & [141, 300] -> [78, 122]
    => 14:1: @SMOM: ZMOM times SMOM is 100, but the square of the sum of SFLOW is 110.25; they differ by 9.3 %
       of the larger: Mw/Mn would be 0.907029, below 1; Mw/Mn comes from ZMOM, SMOM and SFLOW
    => 19:1: @SSMOM[2]: SZMOM times SSMOM is 36.6, but the square of the sum of SSFLOW of this site type is
       43.56; they differ by 16 % of the larger: Mw/Mn would be 0.84022, below 1; results of the site type use
       these values
TMOM = 27783 -> TMOM = 10000 => 16:1: @TMOM: FMOM times TMOM is 105000, but the square of SMOM is 194481; they
    differ by 46 % of the larger: Mz/Mw would be 0.539898, below 1; Mz uses TMOM and SMOM
[0.2, 0.3] -> [0.2, 0.2] => 13:1: @ZMOM is 0.5 kmol/h, but the sum of SZMOM is 0.4 kmol/h; they differ by 20 %
    of the larger; averages of the stream use ZMOM, site types and the reactors with site types SZMOM
[141, 300] -> [141, 200] => 15:1: @SMOM is 441 kmol/h, but the sum of SSMOM is 341 kmol/h; they differ by 22.7
    % of the larger; averages of the stream use SMOM, site types and the reactors with site types SSMOM
[3.5, 0.4 -> [3.5, 0.5
    => 17:1: @SFLOW of B-E is 1 kmol/h, but the sum of SSFLOW over the site types is 1.1 kmol/h; they differ
       by 9.09 % of the larger; averages of the stream use SFLOW, site types and the reactors with site types
       SSFLOW
    => 19:1: @SFMOM[1] is 3.9 kmol/h, but the sum of SSFLOW of this site type is 4 kmol/h; they differ by 2.5
       % of the larger; results of site types use SSFLOW
"SSFLOW" -> "SFRAC" & SSFLOW = [3.5, 0.4, 6, 0.6] -> SFRAC = [0.9047619, 0.0952381] & [3.9, 6.6] -> [3.9, 6] &
    without SZMOM, SSMOM
    => 14:1: @FMOM is 10.5 kmol/h, but the sum of SFMOM is 9.9 kmol/h; they differ by 5.71 % of the larger;
       DPN comes from FMOM and ZMOM, nothing from SFMOM
    => 18:1: @SFMOM is not used: no result depends on it
# 0.2 · 60 is below 3.9², whereas the sums over the site types agree.
[141, 300] -> [60, 381] => 20:1: @SSMOM[1]: SZMOM times SSMOM is 12, but the square of the sum of SSFLOW of
    this site type is 15.21; they differ by 21.1 % of the larger: Mw/Mn would be 0.788955, below 1; results of
    the site type use these values
ZMOM = 0.5 -> ZMOM = 0.4 & [0.2, 0.3] -> [0.2, 0.2]
    => 17:1: @SFLOW: flow of end segments is 1 kmol/h, but twice ZMOM is 0.8 kmol/h; they differ by 20 % of
       the larger, and linear chains have two ends each; DPN comes from FMOM and ZMOM
ZMOM = 0.5 -> ZMOM = 0 & without SMOM, SSMOM, TMOM, SZMOM, SSFLOW, SFMOM & [9.5, 1] -> [10.5, 0] & { P = 10 }
    -> { P = 10.5 } & 100 }\n[ -> 100, pdi = 2 }\n[
    => 13:1: @ZMOM is 0 kmol/h, but FMOM is 10.5 kmol/h; they differ by 100 % of the larger: no chains are
       counted; DPN comes from the least length, one segment, since ZMOM is 0
# The key that the file has, and no molecular weight to check.
flows = { P = 10 } -> mass_flows = { P = 500 }
    => 11:16: streams.S.mass_flows.P: flow times molecular weight is 500 kg/h, but SFLOW times segment weights
       is 1000 kg/h; they differ by 50 % of the larger, a factor of 2; compositions use the flow, averages the
       moments; check streams.S.mass_flows.P and the scale of SFLOW, ZMOM, FMOM, SMOM, TMOM
# Branches, or chains with one end that is no segment.
"repeat" -> "branch3" & ZMOM = 0.5 -> ZMOM = 0.4 & [0.2, 0.3] -> [0.2, 0.2]
ZMOM = 0.5 -> ZMOM = 1 & [0.2, 0.3] -> [0.4, 0.6]
given DPN = 30 => 13:1: @DPN is 30, but FMOM over ZMOM is 21; they differ by 30 % of the larger; DPN comes
    from DPN; reactors use the moments
given MWSEG = 90 => 13:1: @MWSEG is 90 g/mol, but the mean segment weight of SFLOW is 95.2381 g/mol; they
    differ by 5.5 % of the larger; molecular weights of the stream use MWSEG, reactors SFLOW
given SFRAC = [0.9, 0.1] => 13:1: @SFRAC of B-E is 0.1, but its share of SFLOW is 0.0952381; they differ by
    4.76 % of the larger; molecular weights of the stream use SFRAC, reactors SFLOW
)");
}

// Site type 1: 0.2 chains, 3.9 segments, 370 kg/h; site type 2: 0.3, 6.6, 630.
TEST(UnusedValues, AreNamedWithWhatIsUsedInstead)
{
    expect_rows(R"(
given PDI = 2.5 => 13:1: @PDI is 2.5, but is not used: Mw/Mn from ZMOM, SMOM and SFLOW is 2; they differ by 20
    % of the larger
given PDI = 2 => 13:1: @PDI is 2, but is not used: Mw/Mn from ZMOM, SMOM and SFLOW is 2; they agree
given MWN = 2100 => 13:1: @MWN is 2100 g/mol, but is not used: Mn from FMOM and ZMOM with segment weights from
    SFLOW is 2000 g/mol; they differ by 4.76 % of the larger
given MWW = 5000 => 13:1: @MWW is 5000 g/mol, but is not used: Mw from ZMOM, SMOM and SFLOW is 4000 g/mol;
    they differ by 20 % of the larger
given DPW = 42 => 13:1: @DPW is 42, but is not used: Mw over the mean segment weight is 42; they agree
given DPZ = 60 => 13:1: @DPZ is 60, but is not used: TMOM over SMOM is 63; they differ by 4.76 % of the larger
given MWZ = 6000 => 13:1: @MWZ is 6000 g/mol, but is not used: TMOM over SMOM times the mean segment weight is
    6000 g/mol; they agree
given EFRAC = [0.5] => 13:1: @EFRAC[1] is 0.5, but is not used: its share of the end segments in SFLOW is 1;
    they differ by 50 % of the larger
given SSFRAC = [0.9, 0.1, 0.9, 0.1] => 13:1: @SSFRAC[4] is 0.1, but is not used: its share of SSFLOW is
    0.0909091; they differ by 9.09 % of the larger
given SDPN = [19.5, 20] => 13:1: @SDPN[2] is 20, but is not used: its value from SZMOM, SSMOM and SSFLOW is
    22; they differ by 9.09 % of the larger
given SDPW = [40, 45] => 13:1: @SDPW[1] is 40, but is not used: its value from SZMOM, SSMOM and SSFLOW is
    36.1538; they differ by 9.62 % of the larger
given SPDI = [1.854, 2] => 13:1: @SPDI[2] is 2, but is not used: its value from SZMOM, SSMOM and SSFLOW is
    2.06612; they differ by 3.2 % of the larger
given SMWN = [1850, 2000] => 13:1: @SMWN[2] is 2000 g/mol, but is not used: its value from SZMOM, SSMOM and
    SSFLOW is 2100 g/mol; they differ by 4.76 % of the larger
given SMWW = [3430, 4000] => 13:1: @SMWW[2] is 4000 g/mol, but is not used: its value from SZMOM, SSMOM and
    SSFLOW is 4338.84 g/mol; they differ by 7.81 % of the larger
100 }\n[ -> 100, dpn = 30 }\n[ => 4:50: components.P.dpn is 30, but is not used: DPN in stream S from FMOM and
    ZMOM is 21; they differ by 30 % of the larger
100 }\n[ -> 100, pdi = 3 }\n[ => 4:50: components.P.pdi is 3, but is not used: Mw/Mn in stream S from ZMOM,
    SMOM and SFLOW is 2; they differ by 33.3 % of the larger
[polymers] -> [settings]\npdi_from = "parameters"\n[polymers] & 100 }\n[ -> 100, pdi = 3 }\n[
    => 17:1: @SMOM: Mw/Mn from ZMOM, SMOM and SFLOW is 2, but is not used, since settings.pdi_from is
       "parameters": Mw/Mn from the pdi parameter is 3; they differ by 33.3 % of the larger
without SMOM, SSMOM, SZMOM, SSFLOW, SFMOM & "TMOM", -> "DPZ", & TMOM = 27783 -> DPZ = 60
    => 4:1: components.P.pdi is not given, but Mw/Mn of P comes from it where a stream has no usable ZMOM,
       SMOM and SFLOW, or settings.pdi_from is "parameters": Mw is Mn; expected pdi or SMOM
    => 15:1: @DPZ is not used: Mz comes from TMOM and SMOM, which P does not give
without SMOM, SSMOM, SZMOM, SSFLOW, SFMOM & 100 }\n[ -> 100, pdi = 2 }\n[
    => 15:1: @TMOM is not used: Mz comes from TMOM and SMOM, which P does not give
molecular_weight = 50 } -> molecular_weight = 50, dpn = 2 }
    => 3:51: components.B-E.dpn is not used: B-E is a segment
{ P = 10 } -> { P = 0 } & 100 }\n[ -> 100, pdi = 2 }\n[
    => 4:50: components.P.pdi is not used: P flows in no stream
    => 12:23: streams.S.attributes.P is not used: P does not flow in this stream
[polymers] -> O = { class = "oligomer", molecular_weight = 300, dpn = 5 }\n[polymers] & polymers = ["P"] ->
    polymers = ["P"]\noligomers = [{ id = "O", segments = { A-R = 3 } }]
    => 5:51: components.O.dpn is 5, but the number of segments of O in polymers.oligomers is 3; they differ by
       40 % of the larger; DPN comes from dpn, compositions from the segments
{ P = 10 } -> { P = 0 } => 12:23: streams.S.attributes.P is not used: P does not flow in this stream
without SSMOM
    => 18:1: @SZMOM is not used: results of site types need polymers.sites, and SZMOM, SSMOM and SSFLOW of
       every polymer
    => 20:1: @SSFLOW is not used: results of site types need polymers.sites, and SZMOM, SSMOM and SSFLOW of
       every polymer
[streams.S] -> [streams.T]\nflows = { W = 1 }\nattributes.W = { DPN = 5 }\n[streams.S] & attributes = [ ->
    attributes = [{ component = "W", names = ["DPN"] }, & [polymers] -> [components.W]\nmolecular_weight =
    18\n[polymers] => 14:18: streams.T.attributes.W.DPN is not used: W is not a polymer
)");
}

// The absent value would be 0 or missing, and the results of the stream wrong without a sign of it.
TEST(RequiredValues, AreErrorsThatSayWhatToGive)
{
    expect_rows(R"(
ZMOM = 0.5\n -> => 12:23: @ZMOM is missing; expected a number in kmol/h, since P carries it: the chains would
    not be counted without it
SFLOW = [9.5, 1]\n -> => 12:23: @SFLOW is missing; expected a number for each segment, in kmol/h, since P
    carries it: the segments would not be known without it
FMOM = 10.5\n -> => 12:23: @FMOM is missing; expected a number in kmol/h, since P carries it: Mn would be that
    of one segment without it
["ZMOM" -> ["DPN", "SFRAC", "ZMOM" & FMOM = 10.5\n ->
    => 12:23: @DPN is missing; expected a number of segments per chain, since P carries it: Mn would be that
       of one segment without it
    => 12:23: @SFRAC is missing; expected a mole fraction for each segment, since P carries it: all segments
       would share equally without it
["ZMOM" -> ["DPN", "ZMOM" & 100 }\n[ -> 100, dpn = 21 }\n[
SMOM = 441\n ->
    => 12:23: @SMOM is missing; expected a number in kmol/h, since P carries it: Mw would be 0 without it
SMOM = 441\n -> & 100 }\n[ -> 100, pdi = 2 }\n[ & [polymers] -> [settings]\npdi_from =
    "parameters"\n[polymers] & without TMOM
SSMOM = [141, 300]\n -> => 12:23: @SSMOM is missing; expected a number for each site type, in kmol/h, since P
    carries it: Mw of the site types would be 0 without it
)");
}

using Command = std::function<int(cli::Strictness, std::FILE*, std::FILE*)>;

// Those that need no more than a case and a measured curve.
std::map<std::string, Command> commands(const std::filesystem::path& file,
                                        const std::filesystem::path& measured)
{
    cli::RunOptions run;
    cli::FitCommandOptions fit;
    run.file = fit.file = file;
    run.format = fit.format = Format::json;
    fit.gpc = measured;
    fit.segment_weight = 100;
    const cli::Conversion bases{"S", app::Basis::apparent, app::Basis::true_chains};
    return {{"check", [=](auto strict, auto* out,
                          auto* err) { return cli::check(file, Format::json, out, err, strict); }},
            {"convert", [=](auto strict, auto* out,
                            auto* err) { return cli::convert(file, bases, Format::json, out, err, strict); }},
            {"fit", [=](auto strict, auto* out,
                        auto* err) mutable { return fit.strictness = strict, cli::fit(fit, out, err); }},
            {"run", [=](auto strict, auto* out, auto* err) mutable {
                 return run.strictness = strict, cli::run(run, out, err);
             }}};
}

Outcome outcome(const Command& command, cli::Strictness strictness)
{
    const auto start = [&](const auto&, Format, auto*... channels) {
        return command(strictness, channels...);
    };
    return support::capture(start, {}, Format::json);
}

TEST(Commands, StopAtACaseWithErrorsOrWithoutFile)
{
    const File bad{"[components]\nW = { class = 7 }\n", "bad.toml"};
    const File unfit_values{with(good, "ZMOM = 0.5", "ZMOM = [0.5, 1]")};
    const std::tuple<std::filesystem::path, std::string, Lines> rows[] = {
        {bad.path,
         ":2:7: components.W.class is 7; expected a text in quotes",
         {"check", "convert", "fit", "run"}},
        {unfit_values.path,
         ":13:1: streams.S.attributes.P.ZMOM has 2 values; expected 1",
         {"convert", "run"}},
        {examples / "absent.toml", ": cannot be read", {"check", "convert", "fit", "run"}},
        {examples, ": cannot be read", {"check", "convert", "fit", "run"}},
    };
    for (const auto& [file, error, names] : rows)
        for (const auto& name : names) {
            SCOPED_TRACE(file.string() + name);
            const auto [status, out, errors] =
                outcome(commands(file, file).at(name), cli::Strictness::normal);
            EXPECT_EQ(status, cli::exit_case_error);
            EXPECT_EQ(out, "");
            EXPECT_NE(errors.find(file.string() + error), std::string::npos) << errors;
        }
}

void expect_warning(const std::string& text, const Lines& names, int line, int column, const std::string& key,
                    const std::string& rest)
{
    const File file{text};
    const File measured{"M S\n1e3 0.5\n2e3 3\n4e3 6\n8e3 5\n2e4 0.5\n", "measured"};
    for (const auto& name : names)
        for (const auto strictness : {cli::Strictness::normal, cli::Strictness::strict}) {
            SCOPED_TRACE(name);
            const auto [status, out, errors] =
                outcome(commands(file.path, measured.path).at(name), strictness);
            EXPECT_EQ(status, strictness == cli::Strictness::strict ? cli::exit_case_error : 0);
            EXPECT_EQ(errors, file.path.string() + ":" + std::to_string(line) + ":" + std::to_string(column) +
                                  ": " + key + rest + "\n");
            EXPECT_EQ(Json::parse(out)["warnings"], Json::array({{{"file", file.path},
                                                                  {"line", line},
                                                                  {"column", column},
                                                                  {"key", key},
                                                                  {"text", key + rest}}}));
        }
}

// Of the evaluation, and of the reader: chains and a moment given as well.
TEST(Warnings, AreInEveryFormAndCountWhenAskedFor)
{
    const auto contradictory = with(good, "[141, 300]", "[141, 200]");
    const std::string statement =
        " is 441 kmol/h, but the sum of SSMOM is 341 kmol/h; they differ by 22.7 % of the larger; "
        "averages of the stream use SMOM, site types and the reactors with site types SSMOM";
    expect_warning(contradictory, {"run", "convert"}, 15, 1, "streams.S.attributes.P.SMOM", statement);
    EXPECT_NE(app::format_html(evaluated(contradictory).report).find(statement + "</li>"), std::string::npos);
    expect_warning(R"([components]
A-R = { class = "segment", molecular_weight = 100 }
P = { class = "polymer", molecular_weight = 100 }
[polymers]
segments = [{ id = "A-R", type = "repeat" }]
polymers = ["P"]
attributes = [{ component = "P", names = ["ZMOM", "FMOM", "SMOM", "SFLOW"] }]
[streams.S]
chains.P = { mass = 1000, mn = 10000, dispersity = 2 }
attributes.P.SMOM = 2000.1
)",
                   {"run", "check", "convert", "fit"}, 10, 14, "streams.S.attributes.P.SMOM",
                   " is 2000.1, but 2000 follows from streams.S.chains.P: a difference of 0.005 %; the given "
                   "value is used");
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
    const auto rows = json(e)["parameters"][0]["binary_parameters"];
    EXPECT_EQ(rows[1],
              (Json{{"temperature", 300.0}, {"component", "B"}, {"A", 2.0}, {"B", 0.0}, {"C", nullptr}}));
    EXPECT_EQ(rows[0]["C"], 0.0);
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
