#include "cli/convert_command.h"
#include "cli/program.h"

namespace {

using namespace cli_test;
using app::Basis;

TEST(Run, TextLeavesOutWhatDoesNotFlow)
{
    const auto out = run(examples / "styrene-butadiene.toml", Format::text).out;
    EXPECT_EQ(out.find("Nothing flows"), std::string::npos);
    const auto feed = out.substr(0, out.find("Stream PRODUCT"));
    EXPECT_NE(feed.find("CYCLOHEX"), std::string::npos);
    EXPECT_EQ(feed.find("SBR"), std::string::npos);
    EXPECT_EQ(feed.find("Segment fractions"), std::string::npos);
}

// Numbers of JSON as CSV has them, in their order.
void add_numbers(const nlohmann::ordered_json& json, Lines& numbers)
{
    for (const auto& value : json)
        if (value.is_structured())
            add_numbers(value, numbers);
        else if (value.is_number() || value.is_null())
            numbers.push_back(value.is_null() ? "" : app::text(value.get<double>()));
}

// The other cells of a row are those of the interface for C, which is compared for every example.
TEST(Run, CsvHasTheNumbersAndUnitsOfJson)
{
    for (const char* example : {"nylon6-oligomers.toml", "slurry-hdpe.toml"}) {
        const auto json = nlohmann::ordered_json::parse(run(examples / example, Format::json).out);
        EXPECT_EQ(json["schema_version"], 2);
        Lines expected, seen;
        for (const auto* kind : {"streams", "reactors"})
            if (json.contains(kind)) add_numbers(json[kind], expected);
        std::istringstream lines{run(examples / example, Format::csv).out};
        std::string line;
        std::getline(lines, line);
        EXPECT_EQ(line, "section,name,table,item,component,segment,quantity,value,unit");
        while (std::getline(lines, line)) {
            const auto cells = support::parts(line, ",");
            seen.push_back(cells.at(7));
            EXPECT_EQ(cells.at(8), json["units"].at(cells[2]).at(cells[6])) << line;
        }
        EXPECT_EQ(seen, expected);
    }
}

// Values by segment ID and by position meet in the order of the components, not in that of the paragraph.
TEST(Run, SegmentValuesByNameGoToTheirSegments)
{
    const auto e = evaluated(R"(
[components]
A-R = { class = "segment", molecular_weight = 100 }
B-R = { class = "segment", molecular_weight = 50 }
P = { class = "polymer", molecular_weight = 100, pdi = 3 }
[settings]
pdi_from = "parameters"
[polymers]
segments = [{ id = "B-R", type = "repeat" }, { id = "A-R", type = "repeat" }]
polymers = ["P"]
attributes = [{ component = "P", names = ["ZMOM", "SMOM", "SFLOW"] }]
[streams]
NAMED = { flows = { P = 1 }, attributes.P = { ZMOM = 0.5, SMOM = 50, SFLOW = { B-R = 3, A-R = 1 } } }
LISTED = { flows = { P = 1 }, attributes.P = { ZMOM = 0.5, SMOM = 50, SFLOW = [1, 3] } }
)");
    for (const std::string stream : {"streams.NAMED.", "streams.LISTED."}) {
        SCOPED_TRACE(stream);
        EXPECT_EQ(number(e, stream + "segment_fractions.P.A-R.mole_fraction"), 0.25);
        EXPECT_EQ(number(e, stream + "segment_fractions.P.A-R.mass_fraction"), 0.4);
        EXPECT_EQ(number(e, stream + "chain_averages.P.dpn"), 8);
        EXPECT_EQ(number(e, stream + "chain_averages.P.mean_segment_weight"), 62.5);
        EXPECT_EQ(number(e, stream + "chain_averages.P.pdi"), 3);
    }
}

Outcome convert(const std::string& example, const cli::Conversion& conversion, Format format)
{
    const auto command = [&](const auto& file, const auto&... rest) {
        return cli::convert(file, conversion, rest...);
    };
    return support::capture(command, examples / example, format);
}

TEST(Convert, GivesTheTablesOfTheRunForEachPairOfBases)
{
    const auto all = run_json("nylon6-oligomers.toml")["streams"][0];
    const std::pair<Basis, Basis> pairs[] = {{Basis::apparent, Basis::true_chains},
                                             {Basis::apparent, Basis::segment},
                                             {Basis::true_chains, Basis::segment}};
    for (const auto& [from, to] : pairs) {
        SCOPED_TRACE(app::text(to));
        const auto [status, out, errors] = convert("nylon6-oligomers.toml", {"MELT", from, to}, Format::json);
        EXPECT_EQ(status, cli::exit_success) << errors;
        const auto stream = Json::parse(out)["streams"][0];
        EXPECT_EQ(stream.size(), 4u);  // name, two compositions, closures
        for (const auto basis : {from, to}) {
            const auto table = std::string{app::text(basis)} + "_composition";
            EXPECT_EQ(stream[table], all[table]);
        }
    }
}

TEST(Convert, LeadsFromChainsBackToTheFlowsOfTheCase)
{
    const auto given = run_json("nylon6-oligomers.toml")["streams"][1]["apparent_composition"];
    const auto outcome =
        convert("nylon6-oligomers.toml", {"CHIPS", Basis::true_chains, Basis::apparent}, Format::json);
    const auto back = Json::parse(outcome.out)["streams"][0]["apparent_composition"];
    ASSERT_EQ(back.size(), given.size());
    for (std::size_t i = 0; i < given.size(); ++i)
        for (const auto* key : {"mole_flow", "mass_flow", "mole_fraction", "mass_fraction"})
            EXPECT_NEAR(back[i][key].get<double>() / given[i][key].get<double>(), 1, 1e-13);
}

TEST(Convert, PrintsTextAndCsv)
{
    const cli::Conversion conversion{"STD-30K", Basis::true_chains, Basis::segment};
    EXPECT_NE(convert("polystyrene-blend.toml", conversion, Format::text)
                  .out.find("\nStream STD-30K\n\nComposition on the true basis: polymers by their chains\n"
                            "  Component  Class    Mole flow  Mass flow  Mole fraction  Mass fraction\n"
                            "                         kmol/h       kg/h              -              -\n"
                            "  PS         polymer  0.0333333       1000              1              1\n"),
              std::string::npos);
    const auto csv = convert("polystyrene-blend.toml", conversion, Format::csv).out;
    EXPECT_NE(csv.find("stream,STD-30K,closures,segment,,,mole_fraction_sum,1,1\n"), std::string::npos);
}

TEST(Convert, RefusesWhatItCannotDoAsAnErrorOfUsage)
{
    const std::vector<std::pair<cli::Conversion, std::string>> rows = {
        {{"BLEND", Basis::segment, Basis::apparent},
         "polyprops: --from is \"segment\"; expected \"apparent\" or \"true\", since segments do not tell "
         "which chains they came from\n"},
        {{"BLEND", Basis::true_chains, Basis::true_chains},
         "polyprops: --from and --to are both \"true\"; expected two bases\n"},
        {{"BLENDE", Basis::apparent, Basis::true_chains},
         "polyprops: " + (examples / "polystyrene-blend.toml").string() +
             " has no stream \"BLENDE\"; did you mean \"BLEND\"?\n"},
    };
    for (const auto& [conversion, error] : rows) {
        const auto outcome = convert("polystyrene-blend.toml", conversion, Format::text);
        EXPECT_EQ(outcome.status, cli::exit_usage);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.errors, error);
    }
}

}  // namespace
