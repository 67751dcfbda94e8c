#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <span>
#include <thread>

#include "case/interface.h"

namespace {

using namespace case_test;
using Json = nlohmann::json;

struct Array {
    std::span<const double> values;
    std::size_t rows = 0;
    std::size_t columns = 0;
};

Array array(const RunPointer& handle, const std::string& key)
{
    const double* values = nullptr;
    Array found;
    EXPECT_EQ(polyprops_run_array(handle.get(), key.c_str(), &values, &found.rows, &found.columns),
              POLYPROPS_OK)
        << key;
    found.values = {values, found.rows * found.columns};
    return found;
}

std::vector<std::string> array_keys(const RunPointer& handle)
{
    std::vector<std::string> all;
    for (std::size_t i = 0; i < polyprops_run_array_count(handle.get()); ++i)
        all.emplace_back(polyprops_run_array_key(handle.get(), i));
    EXPECT_EQ(polyprops_run_array_key(handle.get(), all.size()), nullptr);
    return all;
}

TEST(Run, GivesEveryInputMessageInTheWordsOfTheProgramAndPrintsNothing)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    std::string seen;
    for (const char* name :
         {"bad-input/no-sentences", "bad-input/no-polymer", "bad-input/no-segment", "bad-input"}) {
        const auto failed = run(example(name));
        EXPECT_EQ(polyprops_run_status(failed.get()), POLYPROPS_CASE_ERROR);
        polyprops_diagnostic d{};
        for (std::size_t i = 0; polyprops_run_diagnostic(failed.get(), i, &d) == POLYPROPS_OK; ++i) {
            const std::string words = d.text;
            const bool is_error = words.ends_with("PS carries no attributes (dropped)");
            EXPECT_EQ(d.severity, is_error ? POLYPROPS_ERROR : POLYPROPS_MESSAGE) << words;
            if (is_error) continue;
            seen += std::string{"examples/"} + name + ".toml:" + std::to_string(d.line) + ":" +
                    std::to_string(d.column) + ": " + words + "\n";
        }
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(seen, support::stored("cli/bad_input.txt"));
}

TEST(Run, AnswersInJsonForAFileWhoseNameIsNotUtf8)
{
    const auto text = support::content(examples / "bad-input.toml");
    const auto failed = run(from_text(text, "a\xff.toml"));
    EXPECT_EQ(Json::parse(polyprops_run_json(failed.get()))["messages"][0]["file"], "a\uFFFD.toml");
    EXPECT_EQ(diagnostics(failed)[0].substr(0, 7), "a\xff.toml");
}

TEST(Run, KeepsResultsThatAreNotFiniteAndNamesThem)
{
    const auto failed = run(from_text(R"([components]
A = { molecular_weight = 1 }
B = { molecular_weight = 1 }
[parameters.P]
components = ["A", "B"]
positions = 6
reference_position = 6
pairs = [{ components = ["A", "B"], values = [1e308, 1e308, 0, 0, 0, 300] }]
temperatures = [300])"));
    EXPECT_EQ(polyprops_run_status(failed.get()), POLYPROPS_CASE_ERROR);
    EXPECT_EQ(diagnostics(failed)[0],
              "c.toml:4:13 [parameters.P] 0 parameters.P: B of 300 is inf; expected a finite result");
    EXPECT_EQ(number(failed, "parameters.P.binary_parameters.300.A.B"), HUGE_VAL);
    EXPECT_EQ(array(failed, "parameters.P.binary_parameters.300").values[2], HUGE_VAL);
}

TEST(Run, ComparesWithAMeasuredCurveOrSaysWhyItCannot)
{
    const auto folder = support::scratch();
    const auto path = [&](const char* name, const char* content) {
        std::ofstream{folder / name} << content;
        return (folder / name).string();
    };
    const auto good = path("good.csv", "run 17\n1000,1\n100000,3\n1000000,0.5\n");
    const auto broken = path("broken.csv", "1000,1\n2000;3\n");
    const auto absent = (folder / "absent.csv").string();
    const auto input = example("ziegler-natta-5-site");
    const struct {
        const char* path;
        const char* distribution;
        int status;
        std::string line;
    } rows[] = {
        {broken.c_str(), "PE", POLYPROPS_CASE_ERROR,
         ".toml:0:0 [] 0 " + broken + ":2: \"2000;3\"; expected two numbers"},
        {absent.c_str(), nullptr, POLYPROPS_CASE_ERROR,
         absent + ":0:0 [] 0 cannot be read: No such file or directory"},
        {good.c_str(), "PP", POLYPROPS_CASE_ERROR,
         ".toml:0:0 [] 0 " + examples.string() + "/ziegler-natta-5-site.toml has no distribution \"PP\""},
        {good.c_str(), nullptr, POLYPROPS_OK, ""},
        {good.c_str(), "PE", POLYPROPS_OK, ""},
        {nullptr, nullptr, POLYPROPS_OK, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(polyprops_case_compare(input.get(), row.path, row.distribution), row.status);
        const auto seen = diagnostics(input);
        const bool is_sound = row.line.empty();
        ASSERT_EQ(seen.size(), is_sound ? 0u : 1u);
        if (!is_sound) {
            EXPECT_NE(seen[0].find(row.line), std::string::npos) << seen[0];
        }
        const auto compared = run(input);
        EXPECT_EQ(polyprops_run_status(compared.get()), POLYPROPS_OK);
        double residual = -1;
        const auto key = "distributions.PE.gpc_comparison." + good + ".residual";
        EXPECT_EQ(polyprops_run_number(compared.get(), key.c_str(), &residual),
                  is_sound && row.path ? POLYPROPS_OK : POLYPROPS_NOT_FOUND);
        EXPECT_EQ(residual > 0, is_sound && row.path);
        if (is_sound && row.path) {
            EXPECT_EQ(array(compared, "distributions.PE.gpc_curve.molecular_weight").values[1], 100000);
        }
    }
}

TEST(Run, ReadsMeasuredCurvesAsItsOptionsSay)
{
    const auto path = (support::scratch() / "logarithms.csv").string();
    std::ofstream{path} << "2;-1\n3;1\n5;3\n6;0,5\n";
    const auto input = example("ziegler-natta-5-site");
    const auto option = [&](const char* key, const char* value) {
        return polyprops_case_measured_option(input.get(), key, value);
    };
    const auto compare = [&] { return polyprops_case_compare(input.get(), path.c_str(), nullptr); };
    const struct {
        const char* key;
        const char* value;
        int status;
        const char* line;
    } rows[] = {
        {"windows", "1:2", POLYPROPS_NOT_FOUND,
         ".toml:0:0 [windows] 0 there is no option \"windows\"; did you mean \"window\"?"},
        {"window", "2:1", POLYPROPS_CASE_ERROR,
         ".toml:0:0 [window] 0 window: \"2:1\"; expected two molecular weights in g/mol, the lower first"},
        {"exponent", nullptr, POLYPROPS_CASE_ERROR,
         ".toml:0:0 [exponent] 0 exponent: \"\"; expected a number greater than 0, 2 at most"},
        {"column", "log10m", POLYPROPS_OK, nullptr},
        {"window", "500:1e6", POLYPROPS_OK, nullptr},
        {"exponent", "0.7", POLYPROPS_OK, nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value ? row.value : "NULL");
        EXPECT_EQ(option(row.key, row.value), row.status);
        const auto seen = diagnostics(input);
        ASSERT_EQ(seen.size(), row.line ? 1u : 0u);
        if (row.line) {
            EXPECT_TRUE(seen[0].ends_with(row.line)) << seen[0];
        }
    }
    EXPECT_EQ(compare(), POLYPROPS_OK);
    const auto compared = run(input);
    EXPECT_EQ(array(compared, "distributions.PE.gpc_curve.molecular_weight").rows, 3u);
    EXPECT_GT(number(compared, "distributions.PE.gpc_comparison." + path + ".mv_measured"), 1000);
    EXPECT_EQ(option(nullptr, nullptr), POLYPROPS_OK);
    EXPECT_EQ(compare(), POLYPROPS_CASE_ERROR);
    EXPECT_NE(diagnostics(input)[0].find("--gpc-column m or --gpc-column log10m"), std::string::npos);
    EXPECT_EQ(text(run(input), POLYPROPS_JSON), text(compared, POLYPROPS_JSON));
}

TEST(Run, OutlivesTheCaseThatItCameFrom)
{
    const char* mw = "streams.BLEND.chain_averages.PS.mw";
    auto input = example("polystyrene-blend");
    const auto before = run(input);
    ASSERT_EQ(polyprops_case_set(input.get(), "streams.BLEND.attributes.PS.SMOM", 2 * 12906.0340833404),
              POLYPROPS_OK);
    const auto after = run(input);
    ASSERT_EQ(polyprops_case_set(input.get(), "components.PS.molecular_weight", -1), POLYPROPS_OK);
    input.reset();
    EXPECT_NEAR(number(before, mw), 140000 / 3.0, 1e-6);
    EXPECT_NEAR(number(after, mw), 280000 / 3.0, 1e-6);
    EXPECT_EQ(text(before, POLYPROPS_JSON), text(run(example("polystyrene-blend")), POLYPROPS_JSON));
    EXPECT_NE(text(before, POLYPROPS_REPORT_FILE), text(after, POLYPROPS_REPORT_FILE));
    EXPECT_EQ(polyprops_run_text(before.get(), 17, nullptr), nullptr);
    double value = 5;
    EXPECT_EQ(polyprops_run_number(before.get(), "streams.BLEND.chain_averages.PS", &value),
              POLYPROPS_NOT_FOUND);
    EXPECT_EQ(polyprops_run_number(before.get(), nullptr, &value), POLYPROPS_NOT_FOUND);
    EXPECT_EQ(value, 5);
}

TEST(Run, ArraysOfADistributionAreTheCurvesOfItsJson)
{
    const auto results = run(example("ziegler-natta-5-site"));
    const auto rows =
        Json::parse(polyprops_run_json(results.get()))["distributions"][0]["distribution_curves"];
    const auto keys = array_keys(results);
    ASSERT_EQ(keys.size(), 15u) << "lengths, weights, cumulative; composite and five sites in two forms";
    const std::string lead = "distributions.PE.distribution_curves.";
    for (const auto& key : keys) {
        ASSERT_EQ(key.substr(0, lead.size()), lead);
        const auto seen = array(results, key);
        ASSERT_EQ(seen.rows, rows.size());
        EXPECT_EQ(seen.columns, 1u);
        for (std::size_t k = 0; k < rows.size(); ++k)
            expect_same(seen.values[k], rows[k][key.substr(lead.size())].get<double>(), key);
    }
    EXPECT_EQ(array(results, lead + "composite").values.data(),
              array(results, lead + "composite").values.data());
}

TEST(Run, ArraysOfBinaryParametersAreMatricesByColumn)
{
    const auto results = run(example("interaction-parameters"));
    const std::map<std::string, std::vector<std::string>> components = {{"CHI", {"PS", "PMMA", "PI"}},
                                                                        {"PS-PI-298", {"PS", "PI"}}};
    std::size_t matrices = 0;
    for (const auto& key : array_keys(results)) {
        const auto seen = array(results, key);
        const auto name = key.substr(11, key.find('.', 11) - 11);
        const auto& ids = components.at(name);
        ASSERT_EQ(seen.rows, key.ends_with("coefficients") ? (ids.size() == 3 ? 6u : 5u) : ids.size());
        if (key.ends_with("coefficients")) {
            EXPECT_EQ(seen.columns, ids.size() * ids.size()) << key;
            continue;
        }
        ASSERT_EQ(seen.columns, ids.size());
        if (key.ends_with("pair_has_data")) continue;
        ++matrices;
        const auto data = array(results, "parameters." + name + ".pair_has_data");
        for (std::size_t i = 0; i < ids.size(); ++i)
            for (std::size_t j = 0; j < ids.size(); ++j) {
                const auto at = i + j * ids.size();
                const auto single = key + "." + ids[i] + "." + ids[j];
                double absent = 0;
                if (data.values[at] == 1)
                    expect_same(seen.values[at], number(results, single), key);
                else
                    EXPECT_EQ(polyprops_run_number(results.get(), single.c_str(), &absent),
                              POLYPROPS_NOT_FOUND);
            }
    }
    EXPECT_EQ(matrices, 3 * 7 + 2 * 2u);
    // Pair PS, PMMA: second of the columns that begin with the first component, fourth with the second.
    const auto coefficients = array(results, "parameters.CHI.binary_coefficients");
    for (const std::size_t pair : {1 * 3 + 0, 0 * 3 + 1})
        EXPECT_EQ((std::vector<double>{coefficients.values[6 * pair], coefficients.values[6 * pair + 1],
                                       coefficients.values[6 * pair + 5]}),
                  (std::vector<double>{0.028, 3.9, 1}));
}

// Cases with other components, blocks and messages follow each other; each gives what it gave at first.
TEST(Run, HundredsInOneProcessGiveTheSameAsTheFirst)
{
    std::vector<CasePointer> cases;
    for (const auto& folder : {examples, examples / "bad-input"})
        for (const auto& file : case_files(folder)) cases.push_back(from_file(file));
    cases.push_back(from_text("not = TOML ="));
    cases.push_back(from_file("absent.toml"));
    const auto all_texts = [](const RunPointer& results) {
        std::string all;
        for (int format = POLYPROPS_JSON; format <= POLYPROPS_SUMMARY_FILE; ++format)
            all += text(results, format);
        return all;
    };
    std::vector<std::pair<std::string, std::vector<std::string>>> first;
    for (const auto& input : cases) {
        const auto results = run(input);
        first.emplace_back(all_texts(results), diagnostics(results));
    }
    for (std::size_t i = 0; i < 300; ++i) {
        const auto at = i * 7 % cases.size();
        const auto results = run(cases[at]);
        ASSERT_EQ(diagnostics(results), first[at].second) << i;
        if (i % 5 == 0) {
            ASSERT_EQ(all_texts(results), first[at].first) << i;
        }
    }
}

TEST(Run, ThreadsGetTheNumbersOfTheirOwnCases)
{
    const auto work = [](const char* name, const char* key, const char* result, double expected) {
        const auto input = example(name);
        double start = 0;
        polyprops_case_get(input.get(), key, &start);
        int right = 0;
        for (int i = 1; i <= 100; ++i) {
            polyprops_case_set(input.get(), key, start * i);
            const auto results = run(input);
            double value = 0;
            polyprops_run_number(results.get(), result, &value);
            right += std::abs(value / (expected * i) - 1) < 1e-9;
        }
        return right;
    };
    int blend = 0, nylon = 0;
    std::thread one{[&] {
        blend = work("polystyrene-blend", "streams.BLEND.attributes.PS.SMOM",
                     "streams.BLEND.chain_averages.PS.mw", 140000 / 3.0);
    }};
    std::thread other{[&] {
        nylon = work("nylon6-oligomers", "components.H2O.molecular_weight",
                     "streams.MELT.chain_averages.H2O.mn", 18.015);
    }};
    one.join();
    other.join();
    EXPECT_EQ(blend, 100);
    EXPECT_EQ(nylon, 100);
}

}  // namespace
