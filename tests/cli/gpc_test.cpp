#include "cli/program.h"

namespace {

using namespace cli_test;

const std::string one_site = R"(
[components]
P = { molecular_weight = 100 }
[distributions.D]
points = 400
longest_chain = 1e5
segment_weight = 100
sites = [{ tau = 0.01, amount = 1 }]
)";

Outcome run_with(const std::string& text, const File& measured, cli::RunOptions options = {},
                 Format format = Format::json)
{
    const File case_file{text};
    options.gpc = measured.path;
    return run(options, case_file.path, format);
}

Json distribution(const Outcome& seen)
{
    EXPECT_EQ(seen.status, 0) << seen.errors;
    return Json::parse(seen.out)["distributions"][0];
}

TEST(MeasuredCurve, AnExportedCompositeComesBackWithoutResidual)
{
    const File case_file{one_site};
    const File exported{"", "measured"};
    cli::RunOptions options;
    options.export_gpc = exported.path;
    ASSERT_EQ(run(options, case_file.path, Format::json).status, 0);
    const auto section = distribution(run_with(one_site, exported));
    const auto& comparison = section["gpc_comparison"][0];
    EXPECT_EQ(comparison["points"], 400);
    EXPECT_LT(comparison["largest_difference"].get<double>(), 1e-9);
    EXPECT_EQ(comparison["mn_measured"], comparison["mn_calculated"]);
    // Pw = 2/τ, but for what the grid leaves open.
    EXPECT_NEAR(comparison["mw_measured"].get<double>(), 20000, 100);
    EXPECT_EQ(section["gpc_notes"].get<std::string>().find("# composite of the distribution D, 100 g/mol"),
              0u);
    // The overlay lies on the curve of the composite.
    const auto& measured = section["gpc_curve"][200];
    const auto& calculated = section["distribution_curves"][200];
    EXPECT_NEAR(measured["overlay"].get<double>(), calculated["composite"].get<double>(), 1e-4);
}

TEST(MeasuredCurve, MayHaveNotesInAnyBytes)
{
    const File measured{"caf\xE9 \x1B[2J\x7F\nFlow rate, 1.0\nM S\n1000 1\n20000 3\n", "measur\xE9"};
    const auto seen = run_with(one_site, measured);
    EXPECT_EQ(seen.out.find('\x7F'), std::string::npos);
    const auto section = distribution(seen);
    EXPECT_EQ(section["gpc_notes"], "caf\uFFFD \x1B[2J\x7F\nFlow rate, 1.0\nM S");
    EXPECT_EQ(section["gpc_comparison"][0]["notes"], 3);
    const auto text = run_with(one_site, measured, {}, Format::text).out;
    EXPECT_NE(text.find("measur\\xE9 "), std::string::npos) << text;
    EXPECT_EQ(app::html_text("caf\xE9 \x1B\n<"), "caf\uFFFD \uFFFD\n&lt;");
}

// Signals 1 and 3 at 10 000 and 100 000 g/mol: one trapezoid of area 2 over one decade.
TEST(MeasuredCurve, ResidualComparesCurvesOfAreaOne)
{
    const app::CompositeCurve flat{"D", true, 100.0, {100, 1000}, {5, 5}};
    const auto c = app::compare(app::parse_measured_curve("10000 1\n100000 3\n", "m.txt"), flat);
    EXPECT_DOUBLE_EQ(c.measured[0], 0.5);
    EXPECT_DOUBLE_EQ(c.measured[1], 1.5);
    EXPECT_DOUBLE_EQ(c.calculated[0], 1);
    EXPECT_DOUBLE_EQ(c.residual, 0.5 / 1.5);
    EXPECT_DOUBLE_EQ(c.largest_difference, 0.5 / 1.5);
    EXPECT_DOUBLE_EQ(c.measured_averages.mw, 0.5 * (0.5 * 10000 + 1.5 * 100000));
}

TEST(MeasuredCurve, TakesTheExponentOfTheDistributionUnlessAnotherIsGiven)
{
    const File measured{"M S\n1000 1\n20000 3\n90000 1\n", "measured"};
    const auto mv = [&](std::optional<double> exponent) {
        cli::RunOptions options;
        options.measured.mark_houwink_exponent = exponent;
        const auto text = with(one_site, "points", "mark_houwink_exponent = 0.7\npoints");
        return distribution(run_with(text, measured, options))["gpc_comparison"][0].value("mv_measured", 0.0);
    };
    EXPECT_GT(mv({}), 0);
    EXPECT_EQ(mv({}), mv(0.7));
    EXPECT_NE(mv({}), mv(0.8));
}

TEST(MeasuredCurve, SaysWhatIsWrongWithItAndWhatACaseLacksForIt)
{
    const auto* const second =
        "[distributions.E]\npoints = 2\nlongest_chain = 9\nsites = [{ tau = 1, amount = 1 }]\n";
    const std::string two_numbers = "; expected two numbers, molecular weight and signal, separated by `,`\n";
    const struct {
        std::string text, measured, distribution, expected;
    } cases[] = {
        {one_site, "M,S\n1,2\n3;4\n", "", "/measured:3: \"3;4\"" + two_numbers},
        {one_site, "1,2\n3,nan\n", "", "/measured:2: \"3,nan\"; expected finite numbers"},
        {one_site, "0 2\n300 4\n", "", "/measured:1: \"0 2\"; expected a molecular weight greater than 0\n"},
        {one_site, "M S\n30 4\n", "",
         "/measured: 1 line with two numbers; expected at least 2: molecular weight and signal\n"},
        {one_site, "M S\n10 1\n30 1\n30 1\n40 1\n", "",
         "/measured:4: molecular weight 30 is followed by 30; expected molecular weights that all rise or "
         "all "
         "fall\n"},
        {one_site + second, "1000 1\n2000 1\n", "", "has 2 distributions; expected the name of one"},
        {one_site + second, "1000 1\n2000 1\n", "F", "has no distribution \"F\"; expected one of D, E"},
        {one_site + second, "1000 1\n2000 1\n", "E", "distributions.E has no segment weight"},
        {one_site, "1e9 1\n2e9 1\n", "",
         "the composite in the measured range, 1000000000 to 2000000000 g/mol, has area 0"},
        {one_site, "1e3 0\n2e3 0\n", "", "the signal has area 0 over log10 of molecular weight"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.expected);
        cli::RunOptions options;
        options.distribution = c.distribution;
        const auto seen = run_with(c.text, File{c.measured, "measured"}, options, Format::text);
        EXPECT_EQ(seen.status, cli::exit_case_error);
        EXPECT_EQ(seen.out, "");
        EXPECT_NE(seen.errors.find(c.expected), std::string::npos) << seen.errors;
    }
}

}  // namespace
