#include <cmath>
#include <limits>

#include "case/interface.h"
#include "fuzz/interface_cases.h"
#include "fuzz/key_cases.h"
#include "support/kept_seeds.h"

namespace {

using namespace case_test;

// One polymer, a stream and a distribution, whose order in the file is not that of the alphabet.
constexpr const char* blend = R"(
[settings]
zero_bound = 1e-15
[components]
STY-R = { class = "segment", molecular_weight = 100 }
"PS/1" = { class = "polymer", molecular_weight = 104.5 }
[polymers]
segments = [{ id = "STY-R", type = "repeat" }]
polymers = ["PS/1"]
attributes = [{ component = "PS/1", names = ["ZMOM", "FMOM", "SMOM", "SFLOW"] }]
[streams."FEED 1"]
flows = { "PS/1" = 28 }
attributes."PS/1" = { ZMOM = 2, FMOM = 28, SMOM = 784, SFLOW = [28] }
[distributions."back\\slash \"quoted\""]
points = 20
longest_chain = 1e3
sites = [{ tau = 0.1, amount = 1 }, { tau = 0.01, amount = 3 }]
)";

std::vector<std::string> keys(const CasePointer& input)
{
    std::vector<std::string> all;
    for (std::size_t i = 0; i < polyprops_case_key_count(input.get()); ++i)
        all.emplace_back(polyprops_case_key(input.get(), i));
    EXPECT_EQ(polyprops_case_key(input.get(), all.size()), nullptr);
    return all;
}

double get(const CasePointer& input, const std::string& key)
{
    double value = 0.0625;
    EXPECT_EQ(polyprops_case_get(input.get(), key.c_str(), &value), POLYPROPS_OK) << key;
    return value;
}

int set(const CasePointer& input, const std::string& key, double value)
{
    return polyprops_case_set(input.get(), key.c_str(), value);
}

TEST(Case, NamesItsNumbersInTheOrderOfTheFileAndFindsThemByTheseNames)
{
    const std::string feed = "streams.\"FEED 1\".";
    const std::string sites = "distributions.\"back\\\\slash \\\"quoted\\\"\".";
    const std::vector<std::pair<std::string, double>> expected = {
        {"settings.zero_bound", 1e-15},
        {"components.STY-R.molecular_weight", 100},
        {"components.\"PS/1\".molecular_weight", 104.5},
        {feed + "flows.\"PS/1\"", 28},
        {feed + "attributes.\"PS/1\".ZMOM", 2},
        {feed + "attributes.\"PS/1\".FMOM", 28},
        {feed + "attributes.\"PS/1\".SMOM", 784},
        {feed + "attributes.\"PS/1\".SFLOW[1]", 28},
        {sites + "points", 20},
        {sites + "longest_chain", 1000},
        {sites + "sites[1].tau", 0.1},
        {sites + "sites[1].amount", 1},
        {sites + "sites[2].tau", 0.01},
        {sites + "sites[2].amount", 3},
    };
    const auto input = from_text(blend);
    EXPECT_EQ(diagnostics(input), std::vector<std::string>{});
    const auto all = keys(input);
    ASSERT_EQ(all.size(), expected.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        EXPECT_EQ(all[i], expected[i].first);
        EXPECT_EQ(get(input, all[i]), expected[i].second) << all[i];
        // A whole number may take any value and come back, without losing its place.
        for (const double value :
             {1e300, -0.75, std::numeric_limits<double>::infinity(), expected[i].second}) {
            EXPECT_EQ(set(input, all[i], value), POLYPROPS_OK) << all[i];
            EXPECT_EQ(get(input, all[i]), value) << all[i];
            EXPECT_EQ(keys(input), all);
        }
        EXPECT_EQ(polyprops_case_status(input.get()), POLYPROPS_OK) << all[i];
    }
    EXPECT_EQ(text(run(input), POLYPROPS_JSON), text(run(from_text(blend)), POLYPROPS_JSON));
}

TEST(Case, LeavesEverythingAsItIsForAKeyWithoutNumber)
{
    const auto input = from_text(blend);
    for (const char* key : {"", ".", "components", "components.PS.molecular_weight", "components.STY-R.class",
                            "distributions", "components.STY-R.molecular_weight.x", "components.\"PS/1",
                            "streams.\"FEED 1\".attributes.\"PS/1\".SFLOW[2]",
                            "streams.\"FEED 1\".attributes.\"PS/1\".SFLOW[0]",
                            "streams.\"FEED 1\".attributes.\"PS/1\".SFLOW[1", "polymers.polymers[1]"}) {
        double value = 0.0625;
        EXPECT_EQ(polyprops_case_get(input.get(), key, &value), POLYPROPS_NOT_FOUND) << key;
        EXPECT_EQ(value, 0.0625);
        EXPECT_EQ(set(input, key, 7), POLYPROPS_NOT_FOUND) << key;
        const auto failure = diagnostics(input);
        ASSERT_EQ(failure.size(), 1u);
        EXPECT_EQ(failure[0].find("c.toml:0:0 [" + std::string{key} + "] 0 the key \""), 0u) << failure[0];
    }
    EXPECT_EQ(polyprops_case_status(input.get()), POLYPROPS_OK);
    EXPECT_EQ(polyprops_case_get(input.get(), nullptr, nullptr), POLYPROPS_NOT_FOUND);
    EXPECT_EQ(polyprops_case_set(input.get(), nullptr, 1), POLYPROPS_NOT_FOUND);
    EXPECT_EQ(text(run(input), POLYPROPS_CSV), text(run(from_text(blend)), POLYPROPS_CSV));
}

TEST(Case, ReportsANumberThatMakesItInvalidUntilAnotherMendsIt)
{
    const struct {
        const char* key;
        double value;
        const char* line;
    } rows[] = {
        {"components.STY-R.molecular_weight", -1,
         "c.toml:5:30 [components.STY-R.molecular_weight] 0 components.STY-R.molecular_weight is -1; "
         "expected a "
         "finite number greater than 0"},
        {"settings.zero_bound", std::nan(""),
         "c.toml:3:1 [settings.zero_bound] 0 settings.zero_bound is nan; expected a finite number greater "
         "than 0"},
        {"distributions.\"back\\\\slash \\\"quoted\\\"\".points", 20.5,
         "c.toml:15:1 [distributions.\"back\\\\slash \\\"quoted\\\"\".points] 0 "
         "distributions.\"back\\\\slash "
         "\\\"quoted\\\"\".points is 20.5; expected a whole number from 2 to "},
    };
    const auto input = from_text(blend);
    for (const auto& row : rows) {
        const double sound = get(input, row.key);
        EXPECT_EQ(set(input, row.key, row.value), POLYPROPS_OK);
        EXPECT_EQ(polyprops_case_status(input.get()), POLYPROPS_CASE_ERROR);
        const auto seen = diagnostics(input);
        ASSERT_EQ(seen.size(), 1u);
        EXPECT_EQ(seen[0].substr(0, std::string{row.line}.size()), row.line);
        const auto failed = run(input);
        EXPECT_EQ(polyprops_run_status(failed.get()), POLYPROPS_CASE_ERROR);
        EXPECT_EQ(diagnostics(failed), seen);
        EXPECT_EQ(polyprops_run_number_count(failed.get()), 0u);
        EXPECT_EQ(set(input, row.key, sound), POLYPROPS_OK);
        EXPECT_EQ(polyprops_case_status(input.get()), POLYPROPS_OK);
        EXPECT_EQ(polyprops_run_status(run(input).get()), POLYPROPS_OK);
    }
}

TEST(Case, KeepsTheReasonWhyItCannotBeRead)
{
    const auto folder = support::scratch().string();
    const struct {
        CasePointer input;
        std::string line;
    } rows[] = {
        {from_text("a = 1\nb = = 2\n"),
         "c.toml:2:5 [] 0 Error while parsing value: could not determine value type"},
        {from_text("[components]\nA = { molecular_weight = 1 }\n[stream]\n"),
         "c.toml:1:1 [streams] 0 streams is missing; expected a table with at least one stream"},
        {from_text("\xff\xfe"), "c.toml:1:1 [] 0 "},
        {from_text("", nullptr), ":1:1 [components] 0 components is missing; expected "},
        {CasePointer{polyprops_case_from_text(nullptr, 5, "n")},
         "n:1:1 [components] 0 components is missing; expected "},
        {from_file(folder), folder + ":0:0 [] 0 cannot be read: it is a directory"},
        {from_file("absent.toml"), "absent.toml:0:0 [] 0 cannot be read: No such file or directory"},
        {CasePointer{polyprops_case_from_file(nullptr)}, ":0:0 [] 0 cannot be read: "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(polyprops_case_status(row.input.get()), POLYPROPS_CASE_ERROR);
        const auto seen = diagnostics(row.input);
        ASSERT_FALSE(seen.empty());
        EXPECT_EQ(seen[0].substr(0, row.line.size()), row.line);
        const auto failed = run(row.input);
        EXPECT_EQ(polyprops_run_status(failed.get()), POLYPROPS_CASE_ERROR);
        EXPECT_EQ(diagnostics(failed), seen);
    }
}

TEST(Case, AnswersForAHandleThatIsNull)
{
    double value = 7;
    std::size_t rows = 7, columns = 7;
    const double* values = nullptr;
    polyprops_diagnostic d{};
    const int statuses[] = {
        polyprops_case_status(nullptr),
        polyprops_case_diagnostic(nullptr, 0, &d),
        polyprops_case_get(nullptr, "a", &value),
        polyprops_case_set(nullptr, "a", 1),
        polyprops_case_compare(nullptr, "a", "b"),
        polyprops_case_measured_option(nullptr, "window", "1:2"),
        polyprops_run_status(nullptr),
        polyprops_run_diagnostic(nullptr, 0, &d),
        polyprops_run_number(nullptr, "a", &value),
        polyprops_run_array(nullptr, "a", &values, &rows, &columns),
    };
    for (const int status : statuses) EXPECT_EQ(status, POLYPROPS_OUT_OF_MEMORY);
    for (const auto count : {polyprops_case_diagnostic_count(nullptr), polyprops_case_key_count(nullptr),
                             polyprops_run_diagnostic_count(nullptr), polyprops_run_number_count(nullptr),
                             polyprops_run_array_count(nullptr)})
        EXPECT_EQ(count, 0u);
    for (const void* none : {static_cast<const void*>(polyprops_case_key(nullptr, 0)),
                             static_cast<const void*>(polyprops_case_run(nullptr)),
                             static_cast<const void*>(polyprops_run_number_key(nullptr, 0)),
                             static_cast<const void*>(polyprops_run_array_key(nullptr, 0)),
                             static_cast<const void*>(polyprops_run_text(nullptr, POLYPROPS_CSV, &rows)),
                             static_cast<const void*>(polyprops_run_json(nullptr))})
        EXPECT_EQ(none, nullptr);
    EXPECT_EQ(value, 7);
    EXPECT_EQ(rows, 7u);
    polyprops_case_free(nullptr);
    polyprops_run_free(nullptr);
}

TEST(KeptSeeds, RunThroughTheirTargets)
{
    support::replay("key", polyprops_fuzz::check_keys);
    support::replay("interface", polyprops_fuzz::check_calls);
}

}  // namespace
