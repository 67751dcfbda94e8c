#include <thread>

#include "case/interface.h"

namespace {

using namespace case_test;

TEST(Run, GivesEveryInputMessageInTheWordsOfTheProgramAndPrintsNothing)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    std::string seen;
    for (const std::string name :
         {"bad-input/no-sentences", "bad-input/no-polymer", "bad-input/no-segment", "bad-input"}) {
        const auto failed = run(example(name));
        EXPECT_EQ(polyprops_run_status(failed.get()), POLYPROPS_CASE_ERROR);
        polyprops_diagnostic d{};
        for (std::size_t i = 0; polyprops_run_diagnostic(failed.get(), i, &d) == POLYPROPS_OK; ++i) {
            const bool is_error = std::string_view{d.text}.ends_with("PS carries no attributes (dropped)");
            EXPECT_EQ(d.severity, is_error ? POLYPROPS_ERROR : POLYPROPS_MESSAGE) << d.text;
            const auto place = std::to_string(d.line) + ":" + std::to_string(d.column);
            if (!is_error) seen += "examples/" + name + ".toml:" + place + ": " + d.text + "\n";
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

// A file in the folder of the process.
std::string written(const char* name, const char* content)
{
    const auto path = support::scratch() / name;
    std::ofstream{path} << content;
    return path.string();
}

// A call leaves the diagnostic that a row expects, or none.
void expect_answer(const CasePointer& input, int status, const std::string& line)
{
    EXPECT_EQ(status, line.empty() ? POLYPROPS_OK : POLYPROPS_CASE_ERROR);
    const auto seen = diagnostics(input);
    ASSERT_EQ(seen.size(), line.empty() ? 0u : 1u);
    for (const auto& text : seen) EXPECT_NE(text.find(line), std::string::npos) << text;
}

TEST(Run, ComparesWithAMeasuredCurveOrSaysWhyItCannot)
{
    const auto good = written("good.csv", "run 17\n1000,1\n100000,3\n1000000,0.5\n");
    const auto broken = written("broken.csv", "1000,1\n2000;3\n");
    const auto absent = (support::scratch() / "absent.csv").string();
    const auto input = example("ziegler-natta-5-site");
    const struct {
        const char* path;
        const char* distribution;
        std::string line;
    } rows[] = {
        {broken.c_str(), "PE", ".toml:0:0 [] 0 " + broken + ":2: \"2000;3\"; expected two numbers"},
        {absent.c_str(), nullptr, absent + ":0:0 [] 0 cannot be read: No such file or directory"},
        {good.c_str(), "PP",
         ".toml:0:0 [] 0 " + examples.string() + "/ziegler-natta-5-site.toml has no distribution \"PP\""},
        {good.c_str(), nullptr, ""},
        {good.c_str(), "PE", ""},
        {nullptr, nullptr, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        expect_answer(input, polyprops_case_compare(input.get(), row.path, row.distribution), row.line);
        const auto compared = run(input);
        EXPECT_EQ(polyprops_run_status(compared.get()), POLYPROPS_OK);
        const bool has_curve = row.line.empty() && row.path;
        double residual = -1;
        const auto key = "distributions.PE.gpc_comparison." + good + ".residual";
        EXPECT_EQ(polyprops_run_number(compared.get(), key.c_str(), &residual),
                  has_curve ? POLYPROPS_OK : POLYPROPS_NOT_FOUND);
        EXPECT_EQ(residual > 0, has_curve);
        if (!has_curve) continue;
        EXPECT_EQ(array(compared, "distributions.PE.gpc_curve.molecular_weight").values[1], 100000);
    }
}

TEST(Run, ReadsMeasuredCurvesAsItsOptionsSay)
{
    const auto path = written("logarithms.csv", "2;-1\n3;1\n5;3\n6;0,5\n");
    const auto input = example("ziegler-natta-5-site");
    const auto option = [&](const char* key, const char* value) {
        return polyprops_case_measured_option(input.get(), key, value);
    };
    const auto compare = [&] { return polyprops_case_compare(input.get(), path.c_str(), nullptr); };
    EXPECT_EQ(option("windows", "1:2"), POLYPROPS_NOT_FOUND);
    expect_answer(input, POLYPROPS_CASE_ERROR,
                  ".toml:0:0 [windows] 0 there is no option \"windows\"; did you mean \"window\"?");
    const struct {
        const char* key;
        const char* value;
        const char* line;
    } rows[] = {
        {"window", "2:1",
         ".toml:0:0 [window] 0 window: \"2:1\"; expected two molecular weights in g/mol, the lower first"},
        {"exponent", nullptr,
         ".toml:0:0 [exponent] 0 exponent: \"\"; expected a number greater than 0, 2 at most"},
        {"column", "log10m", ""},
        {"window", "500:1e6", ""},
        {"exponent", "0.7", ""},
    };
    for (const auto& [key, value, line] : rows) expect_answer(input, option(key, value), line);
    EXPECT_EQ(compare(), POLYPROPS_OK);
    const auto compared = run(input);
    EXPECT_EQ(array(compared, "distributions.PE.gpc_curve.molecular_weight").rows, 3u);
    EXPECT_GT(number(compared, "distributions.PE.gpc_comparison." + path + ".mv_measured"), 1000);
    EXPECT_EQ(option(nullptr, nullptr), POLYPROPS_OK);
    expect_answer(input, compare(), "--gpc-column m or --gpc-column log10m");
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
        const auto n = ids.size();
        if (key.ends_with("coefficients")) {
            EXPECT_EQ(std::pair(seen.rows, seen.columns), std::pair(n == 3 ? 6ul : 5ul, n * n)) << key;
            continue;
        }
        ASSERT_EQ(std::pair(seen.rows, seen.columns), std::pair(n, n)) << key;
        EXPECT_EQ(array(results, key).values.data(), seen.values.data()) << "asked again";
        if (key.ends_with("pair_has_data")) continue;
        ++matrices;
        const auto data = array(results, "parameters." + name + ".pair_has_data");
        for (std::size_t at = 0; at < n * n; ++at) {
            const auto single = key + "." + ids[at % n] + "." + ids[at / n];
            double value = 0;
            EXPECT_EQ(polyprops_run_number(results.get(), single.c_str(), &value),
                      data.values[at] == 1 ? POLYPROPS_OK : POLYPROPS_NOT_FOUND);
            if (data.values[at] == 1) expect_same(seen.values[at], value, key);
        }
    }
    EXPECT_EQ(matrices, 3 * 7 + 2 * 2u);
    // Pair PS, PMMA: second of the columns that begin with the first component, fourth with the second.
    const auto coefficients = array(results, "parameters.CHI.binary_coefficients");
    for (const std::size_t pair : {1 * 3 + 0, 0 * 3 + 1}) {
        const auto values = coefficients.values.subspan(6 * pair, 6);
        EXPECT_EQ((std::vector{values[0], values[1], values[5]}), (std::vector{0.028, 3.9, 1.0}));
    }
}

// Cases with other components, blocks and messages follow each other; each gives what it gave at first.
TEST(Run, HundredsInOneProcessGiveTheSameAsTheFirst)
{
    std::vector<CasePointer> cases;
    for (const auto& folder : {examples, examples / "bad-input"})
        for (const auto& file : case_files(folder)) cases.push_back(from_file(file));
    cases.push_back(from_text("not = TOML ="));
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
        ASSERT_EQ(i % 5 == 0 ? all_texts(results) : first[at].first, first[at].first) << i;
    }
}

TEST(Run, ThreadsGetTheNumbersOfTheirOwnCases)
{
    const auto work = [](const char* name, const char* key, const char* result, double expected) {
        const auto input = example(name);
        double start = 0;
        polyprops_case_get(input.get(), key, &start);
        for (int i = 1; i <= 100; ++i) {
            polyprops_case_set(input.get(), key, start * i);
            ASSERT_NEAR(number(run(input), result), expected * i, 1e-9 * expected * i);
        }
    };
    std::thread other{[&] {
        work("polystyrene-blend", "streams.BLEND.attributes.PS.SMOM", "streams.BLEND.chain_averages.PS.mw",
             140000 / 3.0);
    }};
    work("nylon6-oligomers", "components.H2O.molecular_weight", "streams.MELT.chain_averages.H2O.mn", 18.015);
    other.join();
}

}  // namespace
