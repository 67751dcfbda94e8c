#include <cmath>

#include "case/interface.h"
#include "fuzz/cases.h"
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

const std::string feed = R"(streams."FEED 1".)";
const std::string sites = R"(distributions."back\\slash \"quoted\"".)";

TEST(Case, NamesItsNumbersInTheOrderOfTheFileAndFindsThemByTheseNames)
{
    const std::pair<std::string, double> expected[] = {
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
    ASSERT_EQ(all.size(), std::size(expected));
    for (std::size_t i = 0; i < all.size(); ++i) {
        const auto& [key, given] = expected[i];
        EXPECT_EQ(all[i], key);
        EXPECT_EQ(get(input, key), given) << key;
        // A whole number may take any value and come back, without losing its place.
        for (const double value : {1e300, -0.75, HUGE_VAL, given}) {
            EXPECT_EQ(set(input, key, value), POLYPROPS_OK) << key;
            EXPECT_EQ(get(input, key), value) << key;
            EXPECT_EQ(keys(input), all);
        }
        EXPECT_EQ(polyprops_case_status(input.get()), POLYPROPS_OK) << key;
    }
    EXPECT_EQ(text(run(input), POLYPROPS_JSON), text(run(from_text(blend)), POLYPROPS_JSON));
}

TEST(Case, LeavesEverythingAsItIsForAKeyWithoutNumber)
{
    const auto input = from_text(blend);
    const auto flow = feed + "attributes.\"PS/1\".SFLOW";
    const std::vector<std::string> unknown{"",
                                           ".",
                                           "components",
                                           "distributions",
                                           "components.PS.molecular_weight",
                                           "components.STY-R.class",
                                           "components.STY-R.molecular_weight.x",
                                           "components.\"PS/1",
                                           "polymers.polymers[1]",
                                           flow + "[2]",
                                           flow + "[0]",
                                           flow + "[1"};
    for (const auto& key : unknown) {
        double value = 0.0625;
        EXPECT_EQ(polyprops_case_get(input.get(), key.c_str(), &value), POLYPROPS_NOT_FOUND) << key;
        EXPECT_EQ(value, 0.0625);
        EXPECT_EQ(set(input, key, 7), POLYPROPS_NOT_FOUND) << key;
        const auto failure = diagnostics(input);
        ASSERT_EQ(failure.size(), 1u);
        EXPECT_TRUE(failure[0].starts_with("c.toml:0:0 [" + key + "] 0 the key \"")) << failure[0];
    }
    EXPECT_EQ(polyprops_case_status(input.get()), POLYPROPS_OK);
    EXPECT_EQ(polyprops_case_get(input.get(), nullptr, nullptr), POLYPROPS_NOT_FOUND);
    EXPECT_EQ(polyprops_case_set(input.get(), nullptr, 1), POLYPROPS_NOT_FOUND);
    EXPECT_EQ(text(run(input), POLYPROPS_CSV), text(run(from_text(blend)), POLYPROPS_CSV));
}

// The case and its run have the same diagnostics, and the first begins so.
void expect_unreadable(const CasePointer& input, const std::string& line)
{
    SCOPED_TRACE(line);
    EXPECT_EQ(polyprops_case_status(input.get()), POLYPROPS_CASE_ERROR);
    const auto seen = diagnostics(input);
    ASSERT_FALSE(seen.empty());
    EXPECT_TRUE(seen[0].starts_with(line)) << seen[0];
    const auto failed = run(input);
    EXPECT_EQ(polyprops_run_status(failed.get()), POLYPROPS_CASE_ERROR);
    EXPECT_EQ(diagnostics(failed), seen);
    EXPECT_EQ(polyprops_run_number_count(failed.get()), 0u);
}

TEST(Case, ReportsANumberThatMakesItInvalidUntilAnotherMendsIt)
{
    const struct {
        std::string key;
        double value;
        const char* place;
        const char* words;
    } rows[] = {
        {"components.STY-R.molecular_weight", -1, "5:30", "is -1; expected a finite number greater than 0"},
        {"settings.zero_bound", NAN, "3:1", "is nan; expected a finite number greater than 0"},
        {sites + "points", 20.5, "15:1", "is 20.5; expected a whole number from 2 to "},
    };
    const auto input = from_text(blend);
    for (const auto& [key, value, place, words] : rows) {
        const double sound = get(input, key);
        EXPECT_EQ(set(input, key, value), POLYPROPS_OK);
        expect_unreadable(input, std::string{"c.toml:"} + place + " [" + key + "] 0 " + key + " " + words);
        EXPECT_EQ(diagnostics(input).size(), 1u);
        EXPECT_EQ(set(input, key, sound), POLYPROPS_OK);
        EXPECT_EQ(polyprops_case_status(input.get()), POLYPROPS_OK);
        EXPECT_EQ(polyprops_run_status(run(input).get()), POLYPROPS_OK);
    }
}

TEST(Case, KeepsTheReasonWhyItCannotBeRead)
{
    const auto folder = support::scratch().string();
    const std::pair<CasePointer, std::string> rows[] = {
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
    for (const auto& [input, line] : rows) expect_unreadable(input, line);
}

TEST(Case, AnswersForAHandleThatIsNull)
{
    double value = 7;
    std::size_t rows = 7, columns = 7;
    const double* values = nullptr;
    polyprops_diagnostic d{};
    for (const int status :
         {polyprops_case_status(nullptr), polyprops_case_diagnostic(nullptr, 0, &d),
          polyprops_case_get(nullptr, "a", &value), polyprops_case_set(nullptr, "a", 1),
          polyprops_case_compare(nullptr, "a", "b"), polyprops_case_measured_option(nullptr, "window", "1:2"),
          polyprops_run_status(nullptr), polyprops_run_diagnostic(nullptr, 0, &d),
          polyprops_run_number(nullptr, "a", &value),
          polyprops_run_array(nullptr, "a", &values, &rows, &columns)})
        EXPECT_EQ(status, POLYPROPS_OUT_OF_MEMORY);
    for (const auto count : {polyprops_case_diagnostic_count(nullptr), polyprops_case_key_count(nullptr),
                             polyprops_run_diagnostic_count(nullptr), polyprops_run_number_count(nullptr),
                             polyprops_run_array_count(nullptr)})
        EXPECT_EQ(count, 0u);
    EXPECT_EQ(polyprops_case_run(nullptr), nullptr);
    for (const char* none : {polyprops_case_key(nullptr, 0), polyprops_run_number_key(nullptr, 0),
                             polyprops_run_array_key(nullptr, 0), polyprops_run_json(nullptr),
                             polyprops_run_text(nullptr, POLYPROPS_CSV, &rows)})
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
