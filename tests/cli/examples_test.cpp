#include "cli/program.h"

namespace {

using namespace cli_test;

// Fractions come from other routines than flows.
TEST(Examples, CloseOnEveryBasisAndAgreeOnFractionsAndChainWeights)
{
    const auto expect_near = [](const Json& seen, double expected) {
        EXPECT_NEAR(seen.get<double>(), expected, 1e-13);
    };
    for (const char* example : {"polystyrene-blend.toml", "styrene-butadiene.toml", "nylon6-oligomers.toml",
                                "slurry-hdpe.toml", "molecular-weights.toml"}) {
        const auto report = run_json(example);
        for (const auto& stream : report["streams"]) {
            SCOPED_TRACE(std::string{example} + " " + stream["name"].get<std::string>());
            ASSERT_EQ(stream["closures"].size(), 3u);
            for (const auto& closure : stream["closures"]) {
                expect_near(closure["mole_fraction_sum"], 1);
                expect_near(closure["mass_fraction_sum"], 1);
                expect_near(closure["mass_difference"], 0);
                for (const auto& a : stream[closure["basis"].get<std::string>() + "_composition"])
                    for (const std::string kind : {"mole", "mass"})
                        expect_near(a[kind + "_fraction"],
                                    a[kind + "_flow"].get<double>() / closure[kind + "_flow"].get<double>());
            }
            EXPECT_EQ(stream["chain_weights"].size(), 3 * stream["segment_counts"].size());
            for (const auto& weight : stream["chain_weights"]) expect_near(weight["difference"], 0);
        }
    }
}

// A number, and what it is multiplied with and divided by.
double value(const std::string& text)
{
    std::istringstream terms{text};
    double value = 0, term = 0;
    terms >> value;
    for (char sign = 0; terms >> sign >> term;) value = sign == '*' ? value * term : value / term;
    return value;
}

// 208 999.916 and 18 010.455 g/mol are the chains of SBR and NYLON6.
TEST(Examples, GiveTheNumbersThatTheirCommentsDerive)
{
    for (const auto& row : support::rows(R"(
polystyrene-blend: streams.BLEND: chain_averages.PS.dpn = 9000/0.43/104.152, chain_averages.PS.mn = 9000/0.43,
    chain_averages.PS.mw = 140000/3, chain_averages.PS.pdi = 14*0.43/2.7,
    true_composition.PS.mole_flow = 0.43/3
polystyrene-blend: streams.STD-30K: chain_averages.PS.mw = 30000, chain_averages.PS.pdi = 1
styrene-butadiene: streams.PRODUCT: chain_averages.SBR.dpn = 3401, chain_averages.SBR.mn = 208999.916,
    chain_averages.SBR.mw = 1.08*208999.916, chain_averages.STYRENE.dpn = 1,
    chain_averages.STYRENE.mw = 104.152, segment_fractions.SBR.STY-R.mole_fraction = 25/170.05,
    segment_fractions.SBR.STY-R.mass_fraction = 52076/208999.916, true_composition.SBR.mole_flow = 0.05,
    segment_composition.STY-R.mole_flow = 25, closures.segment.mole_flow = 884.661,
    segment_counts.SBR.BUTD-R = 2900, properties.SBR.molar_volume = 223886.976/3401,
    properties.SBR.glass_transition = 46090800/208999.916
nylon6-oligomers: streams.MELT: chain_averages.NYLON6.dpn = 159, chain_averages.NYLON6.mn = 18010.455,
    chain_averages.NYLON6.mw = 317/159*18010.455, chain_averages.LIN-3.mw = 357.495,
    segment_fractions.LIN-2.COOH-E.mass_fraction = 130.167/244.335,
    segment_composition.COOH-E.mole_flow = 0.0509, segment_composition.ACA-R.mole_flow = 8.0054,
    segment_counts.LIN-3.ACA-R = 1
nylon6-oligomers: streams.CHIPS: chain_averages.CYC-2.dpn = 2, chain_averages.CYC-2.pdi = 1
slurry-hdpe: reactors.FIRST: polymer_made.1.mw = 22415.146, polymer_made.2.mass_flow = 3366.48,
    polymer_made.total.pdi = 3.078625
slurry-hdpe: reactors.SECOND: polymer_made.1.mean_segment_weight = 28.75535, polymer_made.2.dpw = 31999,
    polymer_made.2.mn = 453352.64, polymer_made.total.mass_flow = 5700.5728, polymer_made.total.dpn = 80000/11
slurry-hdpe: streams.SLURRY-2: chain_averages.HDPE.pdi = 9.31624375
molecular-weights: streams.BY-NUMBER: chain_averages.PS.mn = 140000/3, chain_averages.PS.mw = 110e8/140000,
    chain_averages.PS.pdi = 330/196
molecular-weights: streams.BY-MASS: chain_averages.PS.mn = 9000/0.43, chain_averages.PS.mw = 140000/3
molecular-weights: streams.FIRST-LAST: chain_averages.PS.mn = 1000/0.02305, chain_averages.PS.mw = 86950,
    chain_averages.PS.pdi = 86.95*0.02305
molecular-weights: streams.CUTS: chain_averages.PS.mn = 47/0.0011505, chain_averages.PS.mw = 8628e3/47
molecular-weights: streams.BLEND: chain_averages.PS.mn = 9000/0.43, chain_averages.PS.mw = 140000/3,
    apparent_composition.STYRENE.mass_flow = 1000
molecular-weights: streams.EVA: segment_fractions.EVA.VA-R.mole_fraction = 0.0460408586,
    chain_averages.EVA.mn = 39870, chain_averages.EVA.dpn = 1297.596974
molecular-weights: streams.EVA-ROUNDED: chain_averages.EVA.mean_segment_weight = 30.723656
molecular-weights: reactors.MIXER: polymer_made.total.mass_flow = 1000, polymer_made.total.mn = 100000
interaction-parameters: parameters.CHI: binary_parameters.400.PS.PMMA = 0.03775,
    binary_parameters.400.PI.PS = 0.0928, binary_parameters.400.PI.PI = 0,
    binary_parameter_slopes.400.PS.PI = -0.1785, binary_parameter_derivatives.400.PS.PI = -0.1785/400
interaction-parameters: parameters.PS-PI-298: binary_parameters.298.15.PS.PI = 0.15377677
)")) {
        const auto cells = support::parts(row, ":");
        app::Diagnostics diagnostics;
        const auto e =
            evaluated(app::CaseDocument::from_file(examples / (cells[0] + ".toml")).read(diagnostics));
        for (const auto& entry : support::parts(cells.at(2), ",")) {
            const auto sides = support::parts(entry, "=");
            const auto path = cells[1] + "." + sides.at(0);
            const auto expected = value(sides.at(1));
            EXPECT_NEAR(number(e, path), expected, 1e-9 * std::abs(expected)) << path;
        }
    }
}

// The table in the comment of the example: by parameters and by moments of the stream. On the grid the
// composite has the averages of the sum of its sites.
TEST(Examples, FiveSitesHaveTheAveragesOfTheirTableAndTheGridAddsThemUp)
{
    const auto section = run_json("ziegler-natta-5-site.toml")["distributions"][0];
    const auto& grid = section["distribution_quadrature"];
    ASSERT_EQ(grid.size(), 6u);
    const double shares[] = {0.1, 0.2, 0.35, 0.25, 0.1};
    double area = 0, over = 0, times = 0;
    for (std::size_t j = 1; j < 6; ++j) {
        const double share = shares[j - 1];
        EXPECT_NEAR(grid[j]["area"].get<double>(), share, 1e-4 * share);
        area += grid[j]["area"].get<double>();
        over += share / grid[j]["pn"].get<double>();
        times += share * grid[j]["pw"].get<double>();
    }
    const std::pair<const char*, double> composite[] = {
        {"area", area}, {"pn", 1 / over}, {"pw", times}, {"pdi", times * over}};
    for (const auto& [key, value] : composite)
        EXPECT_NEAR(grid[0][key].get<double>(), value, 1e-12 * value) << key;

    for (const auto& row : section["distribution_curves"]) {
        double sum = 0;
        for (const char* site : {"site A", "site B", "site C", "site D", "site E"})
            sum += row[site].get<double>();
        ASSERT_NEAR(row["composite"].get<double>(), sum, 1e-12 * sum);
    }
    EXPECT_NEAR(section["distribution_curves"].back()["cumulative"].get<double>(), area, 1e-6);

    const double pn[] = {1 / 0.00226, 100, 250, 1000, 2500, 10000};
    const double pw[] = {4070, 200, 500, 2000, 5000, 20000};
    const auto& averages = section["distribution_averages"];
    const auto& checks = section["distribution_checks"];
    ASSERT_EQ(averages.size(), 6u);
    ASSERT_EQ(checks.size(), 6u);
    for (std::size_t i = 0; i < 6; ++i) {
        const auto& check = checks[(i + 5) % 6];  // the composite is checked last
        const auto expect_near = [](const Json& seen, double expected) {
            EXPECT_NEAR(seen.get<double>(), expected, 1e-12 * expected);
        };
        expect_near(averages[i]["pn"], pn[i]);
        expect_near(averages[i]["pw"], pw[i]);
        expect_near(averages[i]["mn"], pn[i] * 28.054);
        expect_near(check["pn_expected"], pn[i]);
        expect_near(check["pw_expected"], pw[i]);
        EXPECT_NEAR(grid[i]["pn_grid_error"].get<double>(), 100 * (grid[i]["pn"].get<double>() / pn[i] - 1),
                    1e-9);
    }
}

}  // namespace
