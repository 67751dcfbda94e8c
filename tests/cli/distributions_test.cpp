#include "cli/program.h"

namespace {

using namespace cli_test;

// Two components, of which distributions need none.
const std::string head = "[components]\nP = { molecular_weight = 100 }\nQ = { molecular_weight = 50 }\n";

app::DistributionResults distribution(const std::string& text)
{
    return evaluated(head + "[distributions.D]\npoints = 200\nlongest_chain = 1e5\n" + text)
        .results.distributions.front();
}

const app::Curve& curve(const app::DistributionResults& results, const std::string& name)
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
    const auto e = evaluated(head +
                             "[distributions.D]\npoints = 50\nlongest_chain = 1000\n"
                             "sites = [{ tau = 0.001, amount = 1 }, { tau = 0.1, amount = 0 }]\n");
    EXPECT_FALSE(has_errors(e.report));
    const auto warnings = e.diagnostics();
    ASSERT_EQ(warnings.size(), 2u);
    EXPECT_EQ(warnings.front().find("c.toml:4:16: distributions.D: site 1 has Pn "), 0u) << warnings.front();
    const auto& idle = curve(e.results.distributions.front(), "site 2").averages;
    EXPECT_EQ(idle.area, 0);
    EXPECT_EQ(idle.pn, 0);
    EXPECT_EQ(e.results.distributions.front().checks.size(), 2u);  // neither the idle site nor a sum of one
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
        const auto e =
            evaluated(head + "[parameters.S]\ncomponents = [\"P\", \"Q\"]\ntemperatures = [300]\n" +
                      std::string{c.set});
        const std::string path = "parameters.S.binary_parameter";
        EXPECT_DOUBLE_EQ(number(e, path + "s.300.P.Q"), c.forward);
        EXPECT_DOUBLE_EQ(number(e, path + "s.300.Q.P"), c.backward);
        EXPECT_DOUBLE_EQ(number(e, path + "_slopes.300.P.Q"), c.slope);
    }
}

}  // namespace
