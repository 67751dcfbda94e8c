#include "cli/bases.h"

#include <gtest/gtest.h>

#include "cli/program.h"

namespace {

using namespace cli_test;
using cli::Basis;

const char* const all_examples[] = {"polystyrene-blend.toml", "styrene-butadiene.toml",
                                    "nylon6-oligomers.toml", "slurry-hdpe.toml"};

TEST(Examples, CloseOnEveryBasisAndAgreeOnChainWeights)
{
    for (const char* example : all_examples) {
        const auto report = run_json(example);
        for (const auto& stream : report["streams"]) {
            SCOPED_TRACE(std::string{example} + " " + stream["name"].get<std::string>());
            ASSERT_EQ(stream["closures"].size(), 3u);
            for (const auto& closure : stream["closures"]) {
                EXPECT_NEAR(closure["mole_fraction_sum"].get<double>(), 1, 1e-13);
                EXPECT_NEAR(closure["mass_fraction_sum"].get<double>(), 1, 1e-13);
                EXPECT_NEAR(closure["mass_difference"].get<double>(), 0, 1e-13);
            }
            EXPECT_EQ(stream["chain_weights"].size(), 3 * stream["segment_counts"].size());
            for (const auto& weight : stream["chain_weights"])
                EXPECT_NEAR(weight["difference"].get<double>(), 0, 1e-13) << weight;
        }
    }
}

// Fractions come from other routines than flows.
TEST(Examples, GiveFractionsThatFollowFromTheirFlows)
{
    for (const char* example : all_examples) {
        const Json results = run_json(example);
        for (const auto& stream : results["streams"])
            for (const auto& closure : stream["closures"]) {
                const auto basis = closure["basis"].get<std::string>();
                for (const auto& a : stream[basis + "_composition"]) {
                    SCOPED_TRACE(std::string{example} + " " + basis + " " + a.dump());
                    for (const std::string kind : {"mole", "mass"})
                        EXPECT_NEAR(a[kind + "_fraction"].get<double>(),
                                    a[kind + "_flow"].get<double>() / closure[kind + "_flow"].get<double>(),
                                    1e-13);
                }
            }
    }
}

TEST(Examples, GiveTheTablesThatTheirCommentsDerive)
{
    struct Row {
        const char* example;
        const char* name;
        const char* table;
        Json texts;
        const char* key;
        double value;
    };
    const Row rows[] = {
        {"polystyrene-blend.toml", "BLEND", "true_composition", {{"component", "PS"}}, "mole_flow", 0.43 / 3},
        {"styrene-butadiene.toml", "PRODUCT", "true_composition", {{"component", "SBR"}}, "mole_flow", 0.05},
        {"styrene-butadiene.toml",
         "PRODUCT",
         "segment_composition",
         {{"component", "STY-R"}},
         "mole_flow",
         25},
        {"styrene-butadiene.toml", "PRODUCT", "closures", {{"basis", "segment"}}, "mole_flow", 884.661},
        {"styrene-butadiene.toml", "PRODUCT", "segment_counts", {{"component", "SBR"}}, "BUTD-R", 2900},
        {"styrene-butadiene.toml",
         "PRODUCT",
         "properties",
         {{"component", "SBR"}},
         "molar_volume",
         65.82974890},
        {"styrene-butadiene.toml",
         "PRODUCT",
         "properties",
         {{"component", "SBR"}},
         "glass_transition",
         220.5302322},
        {"nylon6-oligomers.toml",
         "MELT",
         "segment_composition",
         {{"component", "COOH-E"}},
         "mole_flow",
         0.0509},
        {"nylon6-oligomers.toml",
         "MELT",
         "segment_composition",
         {{"component", "ACA-R"}},
         "mole_flow",
         8.0054},
        {"nylon6-oligomers.toml", "MELT", "segment_counts", {{"component", "LIN-3"}}, "ACA-R", 1},
        {"slurry-hdpe.toml", "FIRST", "polymer_made", {{"site", "1"}}, "mw", 22415.146},
        {"slurry-hdpe.toml", "FIRST", "polymer_made", {{"site", "2"}}, "mass_flow", 3366.48},
        {"slurry-hdpe.toml", "FIRST", "polymer_made", {{"site", "total"}}, "pdi", 3.078625},
        {"slurry-hdpe.toml", "SECOND", "polymer_made", {{"site", "1"}}, "mean_segment_weight", 28.75535},
        {"slurry-hdpe.toml", "SECOND", "polymer_made", {{"site", "2"}}, "dpw", 31999},
        {"slurry-hdpe.toml", "SECOND", "polymer_made", {{"site", "2"}}, "mn", 453352.64},
        {"slurry-hdpe.toml", "SECOND", "polymer_made", {{"site", "total"}}, "mass_flow", 5700.5728},
        {"slurry-hdpe.toml", "SECOND", "polymer_made", {{"site", "total"}}, "dpn", 7272.72727273},
        {"slurry-hdpe.toml", "SLURRY-2", "chain_averages", {{"component", "HDPE"}}, "pdi", 9.31624375},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(std::string{r.name} + " " + r.table + " " + r.key);
        const double seen = row(run_json(r.example), r.name, r.table, r.texts)[r.key];
        EXPECT_NEAR(seen, r.value, 1e-9 * r.value);
    }
}

Outcome convert(const std::string& example, const cli::Conversion& conversion, Format format)
{
    const auto command = [&](const auto& file, Format form, std::FILE* out, std::FILE* errors) {
        return cli::convert(file, conversion, form, out, errors);
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
        SCOPED_TRACE(cli::text(to));
        const auto [status, out, errors] = convert("nylon6-oligomers.toml", {"MELT", from, to}, Format::json);
        EXPECT_EQ(status, cli::exit_success) << errors;
        const auto stream = Json::parse(out)["streams"][0];
        EXPECT_EQ(stream.size(), 4u);  // name, two compositions, closures
        for (const auto basis : {from, to}) {
            const auto table = std::string{cli::text(basis)} + "_composition";
            EXPECT_EQ(stream[table], all[table]);
        }
    }
}

TEST(Convert, LeadsFromChainsBackToTheFlowsOfTheCase)
{
    const auto all = run_json("nylon6-oligomers.toml");
    const auto outcome =
        convert("nylon6-oligomers.toml", {"CHIPS", Basis::true_chains, Basis::apparent}, Format::json);
    const auto back = Json::parse(outcome.out);
    for (const auto& seen : back["streams"][0]["apparent_composition"]) {
        const auto given = row(all, "CHIPS", "apparent_composition", {{"component", seen["component"]}});
        for (const auto* key : {"mole_flow", "mass_flow", "mole_fraction", "mass_fraction"})
            EXPECT_NEAR(seen[key].get<double>(), given[key].get<double>(), 1e-13 * given[key].get<double>());
    }
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
    EXPECT_NE(csv.find("stream,STD-30K,segment_composition,,STY-R,,mole_fraction,1,1\n"), std::string::npos);
    EXPECT_NE(csv.find("stream,STD-30K,closures,segment,,,mole_fraction_sum,1,1\n"), std::string::npos);
}

TEST(Convert, RefusesWhatItCannotDoAsAnErrorOfUsage)
{
    const std::vector<std::pair<cli::Conversion, std::string>> rows = {
        {{"BLEND", Basis::segment, Basis::apparent},
         "polyprops: --from is \"segment\"; expected \"apparent\" or \"true\", since segments do not tell "
         "which "
         "chains they stood in\n"},
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
