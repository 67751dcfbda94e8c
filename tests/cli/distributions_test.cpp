#include "cli/distributions.h"

#include <numeric>

#include "cli/case_reader.h"
#include "cli/evaluation.h"
#include "cli/numbers.h"
#include "program.h"

namespace {

using namespace cli_test;

// Two components, of which distributions need none.
const std::string head = "[components]\nP = { molecular_weight = 100 }\nQ = { molecular_weight = 50 }\n";

std::vector<std::string> diagnose(const std::string& text)
{
    cli::Diagnostics diagnostics;
    cli::parse_case(head + text, "c.toml", diagnostics);
    return diagnostics.lines("c.toml");
}

cli::Evaluation evaluated(const std::string& text)
{
    cli::Diagnostics diagnostics;
    auto input = cli::parse_case(head + text, "c.toml", diagnostics);
    EXPECT_TRUE(diagnostics.empty()) << diagnostics.lines("c.toml").front();
    return cli::evaluate_case(std::move(input));
}

cli::DistributionResults distribution(const std::string& text)
{
    return evaluated("[distributions.D]\npoints = 200\nlongest_chain = 1e5\n" + text).distributions.front();
}

const cli::Curve& curve(const cli::DistributionResults& results, const std::string& name)
{
    for (const auto& c : results.curves)
        if (c.name == name) return c;
    throw std::out_of_range{name};
}

void expect_same(const std::vector<double>& seen, const std::vector<double>& expected)
{
    ASSERT_EQ(seen.size(), expected.size());
    for (std::size_t k = 0; k < seen.size(); ++k) ASSERT_NEAR(seen[k], expected[k], 1e-12 * expected[k]) << k;
}

TEST(FiveSiteExample, CompositeIsTheSumOfItsSites)
{
    const auto report = run_json("ziegler-natta-5-site.toml");
    const auto& section = report["distributions"][0];
    const auto& averages = section["distribution_averages"];
    ASSERT_EQ(averages.size(), 6u);
    double area = 0, over = 0, times = 0;
    for (std::size_t j = 1; j < 6; ++j) {
        const double a = averages[j]["area"];
        EXPECT_NEAR(a, averages[j]["amount"].get<double>(), 1e-4 * a);
        area += a;
        over += a / averages[j]["mn"].get<double>();
        times += a * averages[j]["mw"].get<double>();
    }
    const auto agrees = [&](const char* key, double expected) {
        EXPECT_NEAR(averages[0][key].get<double>(), expected, 1e-6 * expected) << key;
    };
    agrees("area", area);
    agrees("mn", 1 / over);
    agrees("mw", times);
    agrees("pdi", times * over);

    for (const auto& row : section["distribution_curves"]) {
        double sum = 0;
        for (const char site : {'A', 'B', 'C', 'D', 'E'})
            sum += row[std::string{"site "} + site].get<double>();
        ASSERT_NEAR(row["composite"].get<double>(), sum, 1e-12 * sum);
    }
    EXPECT_NEAR(section["distribution_curves"].back()["cumulative"].get<double>(), area, 1e-6);
}

// The table in the comment of the example: by parameters and by moments of the stream. The composite has the
// averages of the sum of its sites to six digits.
TEST(FiveSiteExample, HoldsItsCurvesAgainstSitesParametersAndMoments)
{
    const auto checks = run_json("ziegler-natta-5-site.toml")["distributions"][0]["distribution_checks"];
    const double pn[] = {100, 250, 1000, 2500, 10000, 1 / 0.00226};
    const double pw[] = {200, 500, 2000, 5000, 20000, 4070};
    ASSERT_EQ(checks.size(), 13u);
    EXPECT_EQ(checks[0]["source"], "sum of the sites");
    EXPECT_NEAR(checks[0]["pn_difference"].get<double>(), 0, 5e-7);
    EXPECT_NEAR(checks[0]["pw_difference"].get<double>(), 0, 5e-7);
    for (std::size_t i = 0; i < 12; ++i) {
        const auto& check = checks[i + 1];
        EXPECT_EQ(check["source"], i < 6 ? "site parameters" : "stream moments");
        EXPECT_NEAR(check["pn_expected"].get<double>(), pn[i % 6], 1e-9 * pn[i % 6]);
        EXPECT_NEAR(check["pw_expected"].get<double>(), pw[i % 6], 1e-9 * pw[i % 6]);
        EXPECT_EQ(check["agrees"], "yes");
    }
}

TEST(Distribution, IncrementsAverageByTheirAmounts)
{
    const auto once =
        distribution("sites = [{ tau = 0.01, amount = 3 }, { tau = 0.001, beta = 0.002, amount = 6 }]");
    const auto thrice = distribution(
        "increments = [[{ tau = 0.01, amount = 1 }, { tau = 0.001, beta = 0.002, amount = 2 }],"
        "[{ amount = 1 }, { amount = 2 }], [{ amount = 1 }, { amount = 2 }]]");
    expect_same(thrice.composite().values, once.composite().values);
    EXPECT_EQ(curve(thrice, "site 2").amount, 6);
    EXPECT_EQ(thrice.composite().amount, 9);

    const auto changing =
        distribution("increments = [[{ tau = 0.01, amount = 1 }], [{ tau = 0.001, amount = 3 }]]");
    const auto side_by_side =
        distribution("sites = [{ tau = 0.01, amount = 1 }, { tau = 0.001, amount = 3 }]");
    expect_same(changing.composite().values, side_by_side.composite().values);
}

TEST(Distribution, SectionsMixByWhatTheyMake)
{
    const auto mixed = distribution(
        "[[distributions.D.sections]]\nname = \"R1\"\nsites = [{ name = \"A\", tau = 0.01, amount = 1 }]\n"
        "[[distributions.D.sections]]\nname = \"R2\"\nsites = [{ name = \"A\", tau = 0.001, amount = 3 }]\n");
    ASSERT_EQ(mixed.curves.size(), 5u);
    const auto& first = curve(mixed, "section R1");
    const auto& second = curve(mixed, "section R2");
    EXPECT_EQ(curve(mixed, "R2: site A").values, second.values);
    std::vector<double> expected;
    for (std::size_t k = 0; k < first.values.size(); ++k)
        expected.push_back(0.25 * first.values[k] + 0.75 * second.values[k]);
    expect_same(mixed.composite().values, expected);
    for (const auto& check : mixed.checks) EXPECT_TRUE(check.agrees()) << check.curve;
}

TEST(Distribution, GpcFormHasTheAveragesOfTheStandardForm)
{
    const std::string sites = "sites = [{ tau = 0.004, beta = 0.004, amount = 2 }]\n";
    const auto standard = distribution(sites);
    const auto gpc = distribution(sites + "form = \"gpc\"\n");
    EXPECT_NEAR(gpc.composite().averages.pn, standard.composite().averages.pn, 1e-9);
    EXPECT_NEAR(gpc.composite().averages.pw, standard.composite().averages.pw, 1e-9);
    expect_same(gpc.cumulative, standard.cumulative);
    EXPECT_NEAR(gpc.composite().values[100], gpc.lengths[100] * standard.composite().values[100], 1e-12);
    // Coupling of all chains: Pn = 1/(τ + β/2), Pw = (2τ + 3β)/(τ + β)².
    EXPECT_DOUBLE_EQ(standard.checks.back().pn, 1 / 0.006);
    EXPECT_DOUBLE_EQ(standard.checks.back().pw, 0.02 / 0.000064);
}

TEST(Distribution, SaysWhatTheGridCutsOffAndThatASiteMadeNothing)
{
    const auto e = evaluated(
        "[distributions.D]\npoints = 50\nlongest_chain = 1000\n"
        "sites = [{ tau = 0.001, amount = 1 }, { tau = 0.1, amount = 0 }]\n");
    EXPECT_TRUE(e.errors.empty());
    ASSERT_EQ(e.notes.size(), 2u);
    EXPECT_EQ(e.notes.front().find("c.toml: distributions.D: site 1 has Pn "), 0u) << e.notes.front();
    const auto& idle = curve(e.distributions.front(), "site 2").averages;
    EXPECT_EQ(idle.area, 0);
    EXPECT_EQ(idle.pn, 0);
    EXPECT_EQ(e.distributions.front().checks.size(), 2u);  // neither the idle site nor a sum of one
}

TEST(Parameters, ExampleGivesThePublishedValues)
{
    const auto report = run_json("interaction-parameters.toml");
    const auto value = [&](const char* set, const char* table, double temperature, const char* i,
                           const char* j) {
        return row(report, set, table, {{"temperature", temperature}, {"component", i}})[j].get<double>();
    };
    EXPECT_NEAR(value("CHI", "binary_parameters", 400, "PS", "PMMA"), 0.03775, 1e-15);
    EXPECT_NEAR(value("CHI", "binary_parameters", 400, "PI", "PS"), 0.0928, 1e-15);
    EXPECT_EQ(value("CHI", "binary_parameters", 400, "PI", "PMMA"), 0);
    EXPECT_EQ(value("CHI", "binary_parameters", 400, "PI", "PI"), 0);
    EXPECT_NEAR(value("CHI", "binary_parameter_slopes", 400, "PS", "PI"), -0.1785, 1e-15);
    EXPECT_NEAR(value("CHI", "binary_parameter_derivatives", 400, "PS", "PI"), -0.1785 / 400, 1e-17);
    EXPECT_NEAR(value("PS-PI-298", "binary_parameters", 298.15, "PS", "PI"), 0.15377677, 1e-15);
    EXPECT_EQ(row(report, "CHI", "binary_coefficients", {{"component", "PI"}, {"partner", "PS"}})["origin"],
              "completed");
}

TEST(Parameters, CompletesByTheSymmetryOfThePositionAndEvaluatesEachForm)
{
    struct Case {
        const char* name;
        const char* set;
        double forward, backward, slope;  // at 300 K of P, Q; of Q, P; T·dK/dT of P, Q
    };
    const Case cases[] = {
        {"antisymmetric up to position 1",
         "leading_positions = 1\nleading_symmetry = \"antisymmetric\"\n"
         "pairs = [{ components = [\"P\", \"Q\"], values = [2, 3, 0, 0, 0, 600] }]",
         2 + 3 / 0.5, -2 + 3 / 0.5, -6},
        {"both orders given stay as they are",
         "pairs = [{ components = [\"P\", \"Q\"], values = [2, 0, 0, 0, 0, 300] },"
         "{ components = [\"Q\", \"P\"], values = [5, 0, 0, 0, 0, 300] }]",
         2, 5, 0},
        {"linear, at 298.15 K",
         "form = \"linear\"\npairs = [{ components = [\"Q\", \"P\"], values = [1, 298.15] }]", 301, 301, 300},
        {"reciprocal, reference at the last position",
         "form = \"reciprocal\"\nreference_position = 4\n"
         "pairs = [{ components = [\"P\", \"Q\"], values = [1, 2, 3, 600] }]",
         1 + 1 + 6, 8, 1 - 6},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const auto e = evaluated("[parameters.S]\ncomponents = [\"P\", \"Q\"]\ntemperatures = [300]\n" +
                                 std::string{c.set});
        const auto number = [&](const std::string& key) {
            for (const auto& n : cli::numbers(e.report))
                if (n.key() == "parameters.S." + key) return std::get<double>(n.value);
            return std::numeric_limits<double>::quiet_NaN();
        };
        EXPECT_DOUBLE_EQ(number("binary_parameters.300.P.Q"), c.forward);
        EXPECT_DOUBLE_EQ(number("binary_parameters.300.Q.P"), c.backward);
        EXPECT_DOUBLE_EQ(number("binary_parameter_slopes.300.P.Q"), c.slope);
    }
}

TEST(CurveDiagnostics, NamePlaceKeyValueAndExpectation)
{
    const std::string grid = "[distributions.D]\npoints = 9\nlongest_chain = 99\n";
    const std::string set = "[parameters.S]\ncomponents = [\"P\", \"Q\"]\ntemperatures = [300]\n";
    struct Fault {
        std::string text;
        const char* line;
    };
    const Fault faults[] = {
        {"[distributions.D]\npoints = 1\nlongest_chain = 99\nsites = [{ tau = 1, amount = 1 }]",
         "5:1: distributions.D.points is 1; expected a whole number from 2 to 100000"},
        {"[distributions.D]\npoints = 9\nlongest_chain = 1.5\nsites = [{ tau = 1, amount = 1 }]",
         "6:1: distributions.D.longest_chain is 1.5; expected 2 or greater"},
        {grid, "4:16: distributions.D has neither sites nor increments; expected one of them"},
        {grid + "form = \"gcp\"\nsites = [{ tau = 1, amount = 1 }]",
         "7:1: distributions.D.form is \"gcp\"; did you mean \"gpc\"?"},
        {grid + "sites = []", "7:1: distributions.D.sites is empty; expected at least one site"},
        {grid + "sites = [{ tau = 1, amount = 0 }]",
         "4:16: distributions.D makes 0 in total; expected more than the zero bound, 1e-15"},
        {grid + "sites = [{ tau = 0, amount = 1 }]",
         "7:10: distributions.D.sites[1]: tau + beta is 0; expected greater than 0"},
        {grid + "sites = [{ amount = 1 }]",
         "7:10: distributions.D.sites[1].tau is missing; expected a finite number, 0 or greater"},
        {grid + "sites = [{ name = \"A\", tau = 1, amount = 1 }, { name = \"A\", tau = 1, amount = 1 }]",
         "7:47: distributions.D.sites names \"A\" twice"},
        {grid + "increments = [[{ tau = 1, amount = 1 }], [{ amount = 1 }, { tau = 1, amount = 1 }]]",
         "7:42: distributions.D.increments[2] has 2 sites; the increment before it has 1"},
        {grid + "stream = \"S\"\nsites = [{ tau = 1, amount = 1 }]",
         "7:1: distributions.D.stream names \"S\", which is not a stream"},
        {set + "pairs = [{ components = [\"P\", \"R\"], values = [0, 0, 0, 0, 0, 300] }]",
         "7:31: parameters.S.pairs names \"R\", which is not in parameters.S.components; expected one of P, "
         "Q"},
        {set + "pairs = [{ components = [\"P\", \"P\"], values = [0, 0, 0, 0, 0, 300] }]",
         "7:31: parameters.S.pairs pairs \"P\" with itself"},
        {set + "pairs = [{ components = [\"P\", \"Q\"], values = [0, 0] }]",
         "7:37: parameters.S.pairs[1].values has 2 values; expected 6, one for each position"},
        {set + "pairs = [{ components = [\"P\", \"Q\"], values = [0, 0, 0, 0, 0, 0] }]",
         "7:26: parameters.S.pairs: the reference temperature of P, Q at position 6 is 0; expected greater "
         "than 0"},
        {set + "positions = 4",
         "7:1: parameters.S.positions is 4; expected another number than 2 and 4, which stand for the linear "
         "and the "
         "reciprocal form"},
        {set + "form = \"reciprocal\"\nreference_position = 2",
         "8:1: parameters.S.reference_position is 2; expected 0 or a position behind the 3 coefficients"},
        {"[parameters.S]\ncomponents = [\"P\", \"X\"]\ntemperatures = [0]",
         "5:20: parameters.S.components names \"X\", which is not a component; expected one of P, Q"},
    };
    for (const auto& fault : faults) {
        SCOPED_TRACE(fault.text);
        const auto lines = diagnose(fault.text);
        ASSERT_FALSE(lines.empty());
        EXPECT_EQ(lines.front(), std::string{"c.toml:"} + fault.line);
    }
}

}  // namespace
