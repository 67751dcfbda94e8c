#include "app/fit/deconvolution.h"

#include <Eigen/Dense>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <stdexcept>

#include "app/fit/confidence.h"
#include "app/fit/nonnegative_least_squares.h"
#include "app/io/file_contents.h"
#include "cli/fit_command.h"
#include "cli/program.h"
#include "support/refusal.h"

namespace {

using namespace cli_test;

struct Site {
    double tau, beta, amount;
};

// Those of the example of Ziegler-Natta catalysis.
const std::vector<Site> five_sites{
    {0.01, 0, 0.1}, {0.004, 0, 0.2}, {0.001, 0, 0.35}, {0.0004, 0, 0.25}, {0.0001, 0, 0.1}};

// The curve of sites in dw/dlog10(M): ln(10)·x·w(x), w(x) = s·x·e^(−s·x)·(τ + β·s·x/2).
app::MeasuredCurve curve_of(const std::vector<Site>& sites, int points, double shortest, double longest)
{
    app::MeasuredCurve curve;
    for (int k = 0; k < points; ++k) {
        const double x = shortest * std::pow(longest / shortest, k / (points - 1.0));
        double signal = 0;
        for (const auto& [tau, beta, amount] : sites) {
            const double s = tau + beta;
            signal += amount * std::numbers::ln10 * s * x * x * std::exp(-s * x) * (tau + beta * s * x / 2);
        }
        curve.molecular_weight.push_back(100 * x);
        curve.signal.push_back(signal);
    }
    return curve;
}

TEST(NonnegativeLeastSquares, SolvesHandCases)
{
    using Eigen::VectorXd;
    const Eigen::MatrixXd skew{{1.0, 1.0}, {1.0, 2.0}, {1.0, 3.0}}, twins{{1.0, 1.0}, {1.0, 1.0}};
    const struct {
        const char* name;
        Eigen::MatrixXd a;
        VectorXd b, x;
    } cases[] = {
        {"free solution is positive", skew, VectorXd{{3.0, 5.0, 7.0}}, VectorXd{{1.0, 2.0}}},
        // Free: intercept 8, slope −2. The intercept is the mean.
        {"slope at 0", skew, VectorXd{{6.0, 4.0, 2.0}}, VectorXd{{4.0, 0.0}}},
        // Free: intercept −1, slope 2. The slope is (1·1 + 2·3 + 3·5)/(1 + 4 + 9).
        {"intercept at 0", skew, VectorXd{{1.0, 3.0, 5.0}}, VectorXd{{0.0, 22.0 / 14}}},
        {"nothing helps", skew, VectorXd{{-1.0, -1.0, -1.0}}, VectorXd{{0.0, 0.0}}},
        {"one of many solutions", twins, VectorXd{{2.0, 2.0}}, VectorXd{{1.0, 1.0}}},
    };
    for (const auto& [name, a, b, x] : cases) {
        const VectorXd seen = app::nonnegative_least_squares(a, b);
        EXPECT_LT((a * (seen - x)).norm(), 1e-12) << name << ": " << seen;
        EXPECT_GE(seen.minCoeff(), 0) << name;
    }
}

// The first curve ends where 40 % of the last site is still to come: masses are those of whole sites.
TEST(Deconvolution, RecoversKnownSites)
{
    const struct {
        const char* name;
        std::vector<Site> sites;
        double longest;
        bool free_beta;
    } cases[] = {
        {"cut off", {{0.01, 0, 0.3}, {0.002, 0, 0.45}, {0.0004, 0, 0.25}}, 5000, false},
        {"close", five_sites, 1e6, false},
        {"combination", {{0.004, 0.004, 0.4}, {0.0005, 0, 0.6}}, 1e5, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const auto n = c.sites.size();
        const auto curve = curve_of(c.sites, 200, 10, c.longest);
        const auto r = app::fit(curve, 100, {n, n, c.free_beta});
        ASSERT_EQ(r.sites.size(), n);
        EXPECT_EQ(r.warnings, app::cut_ends(curve));
        EXPECT_EQ(r.warnings.empty(), c.longest > 5000);
        for (std::size_t j = 0; j < n; ++j) {
            const auto& [tau, beta, amount] = c.sites[j];
            EXPECT_NEAR(r.sites[j].tau.value, tau, 1e-4 * tau);
            EXPECT_NEAR(r.sites[j].beta.value, beta, 1e-4 * tau);
            EXPECT_NEAR(r.sites[j].amount.value, amount, 1e-4 * amount);
            EXPECT_NEAR(r.sites[j].averages.mn, 100 / (tau + beta / 2), 0.01 / tau);
            EXPECT_NEAR(r.sites[j].averages.pw, (2 * tau + 3 * beta) / std::pow(tau + beta, 2), 3e-4 / tau);
        }
    }
}

TEST(Deconvolution, WarnsOfSitesThatGainNothing)
{
    const auto one = curve_of({{0.001, 0, 1}}, 100, 10, 1e5);
    const auto same = app::fit(one, 100, {2, 2, false});
    ASSERT_EQ(same.warnings.size(), 1u);
    EXPECT_EQ(same.sites.size(), 1u);
    const auto range = app::fit(one, 100, {1, 3, false});
    ASSERT_EQ(range.warnings.size(), 1u);
    EXPECT_EQ(range.warnings[0].find("--sites 2: "), 0u) << range.warnings[0];
    EXPECT_EQ(range.residuals.size(), 3u);
}

TEST(Deconvolution, RefusesCurvesThatSayTooLittle)
{
    auto dark = curve_of({{0.001, 0, 1}}, 100, 10, 1e5);
    dark.signal.assign(dark.size(), 0);
    const char* const few =
        ": 6 points; expected at least 7: --sites 2 needs 3 points for each site, and 3 more than its 4 "
        "parameters";
    const auto of = [](int points) { return curve_of({{0.001, 0, 1}}, points, 10, 1e5); };
    const struct {
        app::MeasuredCurve curve;
        app::FitOptions options;
        const char* expected;
    } cases[] = {
        {dark, {1, 1, false}, ": the signal is 0 everywhere; expected more than 0"},
        {of(6), {1, 2, false}, few},
        {of(14), {5, 5, false}, ": 14 points; expected at least 15: "},
        {of(8), {2, 2, true}, ": 8 points; expected at least 9: "},
    };
    for (const auto& c : cases) {
        const auto seen = support::refusal<std::runtime_error>([&] { app::fit(c.curve, 100, c.options); });
        EXPECT_TRUE(seen.starts_with(c.expected)) << c.expected << " or rather\n" << seen;
    }
}

// The least sum of squared residuals of one site with this share of g1, over any s and mass.
double least_squares(const Eigen::VectorXd& lengths, const Eigen::VectorXd& signal, double share)
{
    double least = signal.squaredNorm();
    for (double log_rate = std::log(1e-4); log_rate < std::log(1e-2); log_rate += 1e-4) {
        const Eigen::MatrixXd parts = app::site_parts({lengths, true}, Eigen::VectorXd{{log_rate}});
        const Eigen::VectorXd curve = (1 - share) * parts.col(0) + share * parts.col(1);
        const double mass = curve.dot(signal) / curve.squaredNorm();
        least = std::min(least, (signal - mass * curve).squaredNorm());
    }
    return least;
}

// Two near sites are broader than any one site; combination narrows a site.
TEST(Deconvolution, LimitsABetaOfZeroByTheSumOfSquares)
{
    const auto curve = curve_of({{0.0014, 0, 0.5}, {0.0018, 0, 0.5}}, 40, 10, 1e5);
    const auto r = app::fit(curve, 100, {1, 1, true});
    const auto [beta, low, high] = r.sites[0].beta;
    EXPECT_TRUE(beta == 0 && low == 0 && high > 0) << beta << " " << low << " " << high;
    const auto [amount, least, most] = r.sites[0].amount;
    EXPECT_TRUE(amount == 1 && least == 1 && most == 1) << least << ' ' << most;
    const Eigen::VectorXd lengths = Eigen::Map<const Eigen::VectorXd>{r.chain_length.data(), 40};
    const Eigen::VectorXd signal = Eigen::Map<const Eigen::VectorXd>{curve.signal.data(), 40};
    const double rate = r.sites[0].tau.value;
    // The rate of that share at the same Mn: β = s·b and τ = s·(1 − b/2).
    const double share = high / (rate + high / 2);
    const double at_zero = least_squares(lengths, signal, 0);
    const double allowed = std::pow(app::student_limit(38), 2) * at_zero / 38;
    EXPECT_NEAR(least_squares(lengths, signal, share) - at_zero, allowed, 0.05 * allowed);
}

TEST(Deconvolution, RefusesSegmentWeightsThatGiveNoChains)
{
    const auto curve = curve_of({{0.0014, 0, 1}}, 40, 10, 1e5);
    for (const double weight : {1e308, std::nan(""), 1e-300})
        EXPECT_THROW(app::fit(curve, weight, {1, 1, false}), std::runtime_error) << weight;
}

// The error is 1 % of each signal at most.
TEST(Deconvolution, GivesLimitsOfBeta)
{
    auto curve = curve_of({{0.004, 0.004, 0.4}, {0.0005, 0, 0.6}}, 200, 10, 1e5);
    for (double k = 1; double& signal : curve.signal) {
        signal *= 1 + 0.01 * std::sin(37 * k * k);
        ++k;
    }
    const auto r = app::fit(curve, 100, {2, 2, true});
    ASSERT_EQ(r.sites.size(), 2u);
    const auto [beta, low, high] = r.sites[0].beta;
    EXPECT_TRUE(0.001 < low && low < 0.004 && 0.004 < high && high < 0.006 && beta < high)
        << low << " " << beta << " " << high;
    // Two sites of the same s cannot be told apart.
    using Eigen::VectorXd;
    const app::SiteModel model{VectorXd::LinSpaced(50, 100, 5000), true};
    const VectorXd same{{std::log(0.001), std::log(0.001)}}, masses{{0.3, 0.2, 0.3, 0.2}};
    const auto blind = app::estimate_sites(model, VectorXd::Ones(50), {same, masses, 1});
    EXPECT_FALSE(blind.is_determined);
    for (const auto& limited : blind.beta) {
        EXPECT_DOUBLE_EQ(limited.value, 0.0004);
        EXPECT_TRUE(limited.low == 0 && limited.high == 1) << limited.low << " " << limited.high;
    }
}

// Two-sided 95 % points of Student's distribution from tables.
TEST(Deconvolution, WidensLimitsForFewPoints)
{
    const std::pair<double, double> table[] = {{3, 3.182}, {10, 2.228}, {30, 2.042}, {120, 1.980}};
    for (const auto& [freedom, limit] : table) EXPECT_NEAR(app::student_limit(freedom), limit, 0.008 * limit);
}

Outcome fit(cli::FitCommandOptions options, const std::filesystem::path& file, Format format)
{
    const auto command = [&](const auto& path, Format form, std::FILE* out, std::FILE* errors) {
        options.file = path;
        options.format = form;
        return cli::fit(options, out, errors);
    };
    return support::capture(command, file, format);
}

TEST(FitCommand, RecoversTheSitesOfAnExportedComposite)
{
    const File combination{
        "[components]\nP = { molecular_weight = 100 }\n[distributions.D]\npoints = 200\n"
        "longest_chain = 20000\nsegment_weight = 100\nsites = [{ tau = 1e-3, beta = 2e-3, amount = 1 }]\n",
        "beta.toml"};
    const std::pair<std::filesystem::path, std::vector<Site>> cases[] = {
        {examples / "ziegler-natta-5-site.toml", five_sites}, {combination.path, {{1e-3, 2e-3, 1}}}};
    for (const auto& [file, sites] : cases) {
        SCOPED_TRACE(file);
        const File exported{"", "exported"};
        cli::RunOptions run_options;
        run_options.export_gpc = exported.path;
        ASSERT_EQ(run(run_options, file, Format::json).status, 0);
        cli::FitCommandOptions options;
        options.gpc = exported.path;
        const bool is_free = sites[0].beta > 0;
        options.fit = {sites.size(), sites.size(), is_free};
        const auto seen = fit(options, file, Format::json);
        EXPECT_EQ(std::pair(seen.status, seen.errors), std::pair(0, std::string{}));
        const auto section = Json::parse(seen.out)["fits"][0];
        ASSERT_EQ(section["fit_sites"].size(), sites.size());
        for (std::size_t j = 0; j < sites.size(); ++j) {
            const auto found = [&](const char* key) { return section["fit_sites"][j][key].get<double>(); };
            EXPECT_NEAR(found("tau"), sites[j].tau, (is_free ? 0.01 : 1e-4) * sites[j].tau);
            EXPECT_NEAR(found("mass_fraction"), sites[j].amount, 1e-4 * sites[j].amount);
            if (!is_free) continue;
            EXPECT_NEAR(found("beta"), sites[j].beta, 1e-5);
            EXPECT_LE(found("beta_low"), found("beta_high"));
        }
        EXPECT_EQ(section["sites"].get<std::string>().find(", beta = 0.0") != std::string::npos, is_free);
    }
}

// The sites that made the curve of the example are within their limits, and those printed are those of the
// case.
TEST(FitCommand, PrintsTheSitesOfTheExample)
{
    cli::FitCommandOptions options;
    options.gpc = examples / "gpc-deconvolution" / "curve.csv";
    options.fit = {1, 5, false};
    const auto file = examples / "gpc-deconvolution.toml";
    const auto seen = fit(options, file, Format::json);
    ASSERT_EQ(seen.status, 0) << seen.errors;
    EXPECT_NE(seen.errors.find("curve.csv: --sites 4: site 4 gains nothing"), std::string::npos);
    const auto json = Json::parse(seen.out);
    ASSERT_EQ(json["warnings"].size(), 1u);
    EXPECT_EQ(json["warnings"][0]["file"], options.gpc.string());
    EXPECT_EQ(seen.errors,
              options.gpc.string() + ": " + json["warnings"][0]["text"].get<std::string>() + "\n");
    options.strictness = cli::Strictness::strict;
    EXPECT_EQ(fit(options, file, Format::json).status, cli::exit_case_error);
    const auto& sites = json["fits"][0]["fit_sites"];
    ASSERT_EQ(sites.size(), 3u);
    const double tau[] = {0.008, 0.0015, 0.0003};
    for (std::size_t j = 0; j < 3; ++j) {
        EXPECT_LT(sites[j]["tau_low"].get<double>(), tau[j]);
        EXPECT_GT(sites[j]["tau_high"].get<double>(), tau[j]);
        EXPECT_NEAR(sites[j]["tau"].get<double>(), tau[j], 0.02 * tau[j]);
    }
    for (const auto& text : {app::file_contents(file), fit(options, file, Format::text).out})
        EXPECT_NE(text.find(json["fits"][0]["sites"].get<std::string>()), std::string::npos);
}

TEST(FitCommand, TakesWhatTheCaseSaysAndNamesWhatItLacks)
{
    const std::string components = "[components]\nP = { molecular_weight = 100 }\n";
    const auto stream = components + "[streams.S]\nflows = { P = 1 }\n";
    const auto distribution =
        components + "[distributions.D]\npoints = 9\nlongest_chain = 99\nmark_houwink_exponent = 0.7\n" +
        "segment_weight = 100\nsites = [{ tau = 0.01, amount = 1 }]\n";
    const struct {
        std::string text;
        std::optional<double> segment_weight;
        const char* name;
        const char* expected;  // of the errors; empty: has Mv
    } cases[] = {
        {distribution, {}, "", ""},
        {distribution, 100, "", ""},
        {stream,
         {},
         "",
         "has no distribution to take the segment weight from; expected the option "
         "--segment-weight\n"},
        {stream, 100, "E", "has no distribution"},
        {distribution, 100, "E", "has no distribution \"E\"; expected one of D\n"},
    };
    const File measured{"M S\n1e3 1\n2e3 3\n4e3 6\n8e3 5\n2e4 1\n", "measured"};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.expected);
        const File file{c.text};
        cli::FitCommandOptions options;
        options.gpc = measured.path;
        options.segment_weight = c.segment_weight;
        options.distribution = c.name;
        const auto seen = fit(options, file.path, Format::json);
        const bool is_sound = *c.expected == 0;
        EXPECT_EQ(seen.status, is_sound ? cli::exit_success : cli::exit_case_error);
        EXPECT_NE(seen.errors.find(c.expected), std::string::npos) << seen.errors;
        const bool has_mv = is_sound && Json::parse(seen.out)["fits"][0]["fit_averages"][0].contains("mv");
        EXPECT_EQ(has_mv, is_sound);
    }
}

}  // namespace
