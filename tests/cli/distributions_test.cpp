#include <cmath>

#include "cli/program.h"

namespace {

using namespace cli_test;

// Two components, of which distributions need none.
const std::string head = "[components]\nP = { molecular_weight = 100 }\nQ = { molecular_weight = 50 }\n";

// m0 = 10 g/mol, Mn = 1000, Mw = 2000.
const std::string stream = R"([components]
S = { class = "segment", molecular_weight = 10 }
C = { class = "polymer", molecular_weight = 10 }
[polymers]
segments = [{ id = "S", type = "repeat" }]
polymers = ["C"]
attributes = [{ component = "C", names = ["ZMOM", "FMOM", "SMOM", "SFLOW"] }]
[streams.F]
flows = { C = 100 }
attributes.C = { ZMOM = 1, FMOM = 100, SMOM = 20000, SFLOW = [100] }
)";

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

// One site pauses in the second of three increments, the other in the third: the composite is that of what
// each made with its own parameters.
TEST(Distribution, IdleSiteKeepsItsShareOfTheWhole)
{
    const auto paused = distribution(
        "increments = [[{ tau = 0.01, amount = 1 }, { tau = 0.001, amount = 1 }],"
        "[{ amount = 2 }, { amount = 0 }], [{ amount = 0 }, { beta = 0.002, amount = 4 }]]");
    const auto side_by_side = distribution(
        "sites = [{ tau = 0.01, amount = 3 }, { tau = 0.001, amount = 1 },"
        "{ tau = 0.001, beta = 0.002, amount = 4 }]");
    expect_same(paused.composite().values, side_by_side.composite().values);
    expect_same(curve(paused, "site 1").values, curve(side_by_side, "site 1").values);
    EXPECT_NEAR(paused.composite().on_grid->area, 1, 1e-3);
    EXPECT_EQ(curve(paused, "site 2").amount, 5);
    EXPECT_DOUBLE_EQ(paused.composite().averages->pn, side_by_side.composite().averages->pn);
}

TEST(Distribution, EveryCurveIsItsPartOfTheComposite)
{
    const auto mixed = distribution(R"(segment_weight = 100
components = [{ name = "C", type = "schulz-zimm", mn = 30000, dispersity = 1.5, amount = 4 }]
sections = [{ name = "R1", sites = [{ name = "A", tau = 0.01, amount = 1 }] },
            { name = "R2", sites = [{ name = "A", tau = 0.001, amount = 3 }] }])");
    ASSERT_EQ(mixed.curves.size(), 6u);
    const auto& first = curve(mixed, "section R1");
    const auto& second = curve(mixed, "section R2");
    const auto& component = curve(mixed, "component C");
    EXPECT_EQ(curve(mixed, "R2: site A").values, second.values);
    std::vector<double> expected;
    for (std::size_t k = 0; k < first.values.size(); ++k)
        expected.push_back(first.values[k] + second.values[k] + component.values[k]);
    expect_same(mixed.composite().values, expected);
    EXPECT_NEAR(second.on_grid->area, 3.0 / 8, 1e-3);
    EXPECT_NEAR(component.on_grid->area, 0.5, 1e-3);
    // 1/Pn = (0.01 + 3·0.001 + 4/300)/8; Pw = (200 + 3·2000 + 4·450)/8
    EXPECT_NEAR(mixed.composite().averages->mn, 100 * 8 / (0.013 + 4.0 / 300), 1e-8);
    EXPECT_NEAR(mixed.composite().averages->mw, 100 * 1000, 1e-8);
    // dw/dlog10(M) integrates to the same share: ln(10)·x·w over log10(x).
    double area = 0;
    for (std::size_t k = 1; k < mixed.lengths.size(); ++k)
        area += 0.5 * (second.chromatogram[k - 1] + second.chromatogram[k]) *
                std::log10(mixed.lengths[k] / mixed.lengths[k - 1]);
    EXPECT_NEAR(area, 3.0 / 8, 1e-3);
}

TEST(Distribution, ComponentsHaveCurvesOfTheirAverages)
{
    const struct {
        std::string component;
        double pn, pw;
    } rows[] = {
        {"type = 'log-normal', dpn = 500, dispersity = 2", 500, 1000},
        {"type = 'schulz-zimm', dpn = 500, dispersity = 1.2", 500, 600},
        {"type = 'poisson', dpn = 100", 100, 100.99},
    };
    for (const auto& r : rows)
        for (const std::string form : {"weight-fraction", "gpc"}) {
            SCOPED_TRACE(r.component + form);
            const auto e =
                evaluated(head + "[distributions.D]\npoints = 20000\nlongest_chain = 2e4\nform = '" + form +
                          "'\ncomponents = [{ " + r.component + ", amount = 2 }]\n");
            const auto& composite = e.results.distributions.front().composite();
            EXPECT_NEAR(composite.averages->pn, r.pn, 1e-9 * r.pn);
            EXPECT_NEAR(composite.averages->pw, r.pw, 1e-9 * r.pw);
            EXPECT_NEAR(composite.on_grid->area, 1, 1e-4);
            EXPECT_NEAR(composite.on_grid->pn, r.pn, 1.1);  // lengths of right-hand ends, one segment apart
            EXPECT_NEAR(composite.on_grid->pw, r.pw, 1.1);
        }
}

TEST(Distribution, GpcFormHasTheAveragesOfTheStandardForm)
{
    const std::string sites = "sites = [{ tau = 0.004, beta = 0.004, amount = 2 }]\n";
    const auto standard = distribution(sites);
    const auto gpc = distribution(sites + "form = \"gpc\"\n");
    EXPECT_NEAR(gpc.composite().on_grid->pn, standard.composite().on_grid->pn, 1e-9);
    EXPECT_NEAR(gpc.composite().on_grid->pw, standard.composite().on_grid->pw, 1e-9);
    expect_same(gpc.cumulative, standard.cumulative);
    EXPECT_NEAR(gpc.composite().values[100], gpc.lengths[100] * standard.composite().values[100], 1e-12);
}

// Without components, too.
TEST(Distribution, IdleSiteHasEmptyCellsInEveryForm)
{
    const auto e = evaluated(
        "[distributions.D]\npoints = 50\nlongest_chain = 1000\nsegment_weight = 10\n"
        "sites = [{ tau = 0.01, amount = 1 }, { tau = 0.1, amount = 0 }]\n");
    EXPECT_EQ(e.diagnostics(), Lines{});
    EXPECT_EQ(number(e, "distributions.D.distribution_averages.composite.mn"), 1000);
    const auto row = json(e)["distributions"][0]["distribution_averages"][2];
    EXPECT_EQ(row["amount"], 0);
    EXPECT_TRUE(row["pn"].is_null());
    EXPECT_NE(app::format_csv(e.report).find("distribution_averages,site 2,,,pn,,1\n"), std::string::npos);
    EXPECT_NE(app::format_text(e.report).find("site 2          0    -    -"), std::string::npos)
        << app::format_text(e.report);
}

// Mass above 1000 segments: e^−1·2 = 73.6 % with tau = 0.001; below 1: 1 − e^−0.2·1.2 = 1.75 % with 0.2.
TEST(Distribution, WarnsOfMassOutsideTheGridShortChainsMomentsAndUnusedKeys)
{
    const auto good = stream +
                      "[distributions.D]\npoints = 50\nlongest_chain = 1000\nstream = \"F\"\n"
                      "sites = [{ tau = 0.01, amount = 1 }]\n";
    const auto seen = [](const std::string& text) { return evaluated(text).diagnostics(); };
    EXPECT_EQ(seen(good), Lines{});
    expect_each(R"(
tau = 0.01 -> tau = 0.001 & stream = "F"\n ->
    => 11:16: distributions.D: 73.6 % of the mass of composite is outside the grid, 5e-05 % below 1 and 73.6 %
       above 1000 segments; expected at most 1 %
    => 11:16: distributions.D: 73.6 % of the mass of site 1 is outside the grid, 5e-05 % below 1 and 73.6 %
       above 1000 segments; expected at most 1 %
stream = "F" -> mark_houwink_exponent = 0.7 => 11:16: distributions.D.mark_houwink_exponent is not used: there
    is no segment weight to give Mv in g/mol; expected a segment_weight, or a stream with polymer
tau = 0.01 -> tau = 0.01, beta = 1e-7
    => 14:1: distributions.D: Pn of composite is 99.9995 by its parameters and 100 by the moments of stream F;
       the relative difference is -5e-06, more than 1e-06
    => 14:1: distributions.D: Pw of composite is 199.999 by its parameters and 200 by the moments of stream F;
       the relative difference is -5e-06, more than 1e-06
sites -> segment_weight = 5\nsites
    => 14:1: distributions.D.segment_weight is 5 g/mol, but the mean segment weight of the polymer of stream F
       is 10 g/mol; they differ by 50 % of the larger; the distribution uses its segment_weight
# A step of the grid near 500 segments is 70 segments, the curve 1.6 wide, and a point is near its peak.
stream = "F" -> & sites = [{ tau = 0.01 -> components = [{ name = "N", type = "log-normal", dpn = 500,
    dispersity = 1.00001
    => 11:16: distributions.D: composite has an area of 14.3485 on the grid, but 1 in closed form; they differ
       by 1335 % of its mass, more than 10 %: the curve is narrower than the steps of the grid; expected more
       points or a smaller longest_chain
    => 11:16: distributions.D: component N has an area of 14.3485 on the grid, but 1 in closed form; they
       differ by 1335 % of its mass, more than 10 %: the curve is narrower than the steps of the grid;
       expected more points or a smaller longest_chain
sites -> components = [{ type = "poisson", mn = 10, amount = 1 }]\nsites => 15:15: distributions.D: component
    1 is left out: mn is 10; expected more than a segment weighs, 10 g/mol
)",
                good, seen);
}

// Whole lengths with tau = 0.0125 and beta = 0.0025: (1 + 0.015)/0.01375 = 73.8182, where 1/0.01375
// = 72.7273.
TEST(Distribution, NotesThatChainsAreShort)
{
    const auto results =
        distribution("sites = [{ tau = 0.01, amount = 1 }, { tau = 0.0125, beta = 0.0025, amount = 1 }]\n");
    ASSERT_EQ(results.notes.size(), 1u);
    EXPECT_EQ(results.notes[0],
              "tau of site 2 is 0.0125, greater than 0.01: averages take the chain length as continuous, Pn "
              "= 1/(tau + "
              "beta/2) = 72.7273; whole chain lengths give Pn = (1 + tau + beta)/(tau + beta/2) = 73.8182, "
              "which is 1 + "
              "1/tau for beta = 0");
}

// Mz = TMOM/SMOM·m0 = 300·10; Mv with a = 1 is Mw.
TEST(Streams, HaveMzOfTheirThirdMomentAndMvOfTheirExponent)
{
    auto text = with(stream, "polymer\", molecular_weight = 10",
                     "polymer\", molecular_weight = 10, mark_houwink_exponent = 1");
    text = with(with(text, "\"SFLOW", "\"TMOM\", \"SFLOW"), "SFLOW =", "TMOM = 6e6, SFLOW =");
    const auto e = evaluated(text);
    EXPECT_DOUBLE_EQ(number(e, "streams.F.chain_averages.C.mz"), 3000);
    EXPECT_NEAR(number(e, "streams.F.chain_averages.C.mv"), 2000, 1e-9);
    const auto without = evaluated(stream);
    const auto row = json(without)["streams"][0]["chain_averages"][0];
    EXPECT_TRUE(row["mz"].is_null());
    EXPECT_FALSE(row.contains("mv"));
}

TEST(Parameters, CompletesByTheSymmetryOfThePositionAndEvaluatesEachForm)
{
    const struct {
        std::string name, set;
        double forward, backward, slope;  // at 300 K of P, Q; of Q, P; T·dK/dT of P, Q
    } cases[] = {
        {"antisymmetric up to position 1",
         "leading_positions = 1\nleading_symmetry = 'antisymmetric'\n"
         "pairs = [{ components = ['P', 'Q'], values = [2, 3, 0, 0, 0, 600] }]",
         2 + 3 / 0.5, -2 + 3 / 0.5, -6},
        {"both orders given stay as they are",
         "pairs = [{ components = ['P', 'Q'], values = [2, 0, 0, 0, 0, 300] },"
         "{ components = ['Q', 'P'], values = [5, 0, 0, 0, 0, 300] }]",
         2, 5, 0},
        {"linear, at 298.15 K",
         "form = 'linear'\npairs = [{ components = ['Q', 'P'], values = [1, 298.15] }]", 301, 301, 300},
        {"reciprocal, reference at the last position",
         "form = 'reciprocal'\nreference_position = 4\n"
         "pairs = [{ components = ['P', 'Q'], values = [1, 2, 3, 600] }]",
         1 + 1 + 6, 8, 1 - 6},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const auto e =
            evaluated(head + "[parameters.S]\ncomponents = ['P', 'Q']\ntemperatures = [300]\n" + c.set);
        const std::string path = "parameters.S.binary_parameter";
        EXPECT_DOUBLE_EQ(number(e, path + "s.300.P.Q"), c.forward);
        EXPECT_DOUBLE_EQ(number(e, path + "s.300.Q.P"), c.backward);
        EXPECT_DOUBLE_EQ(number(e, path + "_slopes.300.P.Q"), c.slope);
    }
}

}  // namespace
