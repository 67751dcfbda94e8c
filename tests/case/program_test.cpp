// The program and the C example against the interface, bit for bit.
#include <cstdlib>
#include <regex>
#include <sstream>

#include "case/interface.h"

namespace {

using namespace case_test;

// The fields of a CSV line, some of them in quotes.
std::vector<std::string> fields(const std::string& line)
{
    static const std::regex field{R"re((?:^|,)(?:"((?:[^"]|"")*)"|([^",]*)))re"}, quotes{R"("")"};
    std::vector<std::string> all;
    for (std::sregex_iterator at{line.begin(), line.end(), field}, end; at != end; ++at)
        all.push_back(std::regex_replace(at->str(1), quotes, "\"") + at->str(2));
    return all;
}

// Each line is a single number, or the next element of a curve.
void expect_numbers(const std::string& csv, const RunPointer& results)
{
    const auto curves = array_keys(results);
    std::map<std::string, std::size_t> elements;
    std::size_t single = 0;
    std::istringstream lines{csv};
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line)) {
        const auto f = fields(line);
        ASSERT_EQ(f.size(), 9u) << line;
        if (f[7].empty()) continue;  // a result without a value
        const double printed = std::strtod(f[7].c_str(), nullptr);
        const auto curve = f[0] + "s." + f[1] + "." + f[2] + "." + f[6];
        if (std::ranges::count(curves, curve) == 1) {
            const auto values = array(results, curve).values;
            ASSERT_LT(elements[curve], values.size());
            expect_same(values[elements[curve]++], printed, line);
            continue;
        }
        auto key = f[0] + "s";
        for (std::size_t i = 1; i < 7; ++i)
            if (!f[i].empty()) key += "." + f[i];
        expect_same(number(results, key), printed, line);
        ++single;
    }
    EXPECT_EQ(single, polyprops_run_number_count(results.get()));
    EXPECT_GT(single, 0u);
    for (const auto& [curve, count] : elements)
        EXPECT_EQ(std::pair(array(results, curve).rows, array(results, curve).columns),
                  std::pair(count, 1ul));
    const auto is_curve = [](const std::string& key) { return key.starts_with("distributions."); };
    EXPECT_EQ(elements.size(), std::ranges::count_if(curves, is_curve));
}

TEST(Program, PrintsAndWritesTheResultsOfTheInterface)
{
    const std::pair<const char*, int> printed[] = {
        {"json", POLYPROPS_JSON}, {"csv", POLYPROPS_CSV}, {"text", POLYPROPS_TEXT}};
    const std::pair<const char*, int> written[] = {{".json", POLYPROPS_JSON},
                                                   {".csv", POLYPROPS_CSV},
                                                   {".html", POLYPROPS_HTML},
                                                   {".rpt", POLYPROPS_REPORT_FILE},
                                                   {".sum", POLYPROPS_SUMMARY_FILE}};
    const auto folder = support::scratch() / "out";
    const auto files = case_files(examples);
    EXPECT_GE(files.size(), 7u);
    for (const auto& file : files) {
        SCOPED_TRACE(file);
        const auto results = run(from_file(file));
        const auto command =
            std::string{POLYPROPS_PROGRAM} + " run '" + file.string() + "' 2>/dev/null --format ";
        for (const auto& [name, format] : printed)
            EXPECT_EQ(output(command + name), text(results, format)) << name;
        expect_numbers(text(results, POLYPROPS_CSV), results);
        output(command + "csv --out '" + folder.string() + "'");
        for (const auto& [ending, format] : written)
            EXPECT_EQ(support::content(folder / (file.stem().string() + ending)), text(results, format))
                << ending;
    }
}

// Mw is proportional to the second moment, and 140 000 / 3 with that of the file.
TEST(Program, ExampleInCSweepsTheSecondMoment)
{
    const std::string program = POLYPROPS_C_EXAMPLE;
    std::istringstream lines{output(program + " '" + (examples / "polystyrene-blend.toml").string() + "'")};
    std::vector<double> mw;
    for (double value = 0; lines >> value;) mw.push_back(value);
    ASSERT_EQ(mw.size(), 1000u);
    EXPECT_NEAR(mw.front(), 140000 / 3.0, 1e-4);
    EXPECT_NEAR(mw.back(), 1.1 * 140000 / 3, 1e-4);
    EXPECT_EQ(output(program + " absent.toml 2>&1"),
              "absent.toml:0: cannot be read: No such file or directory\n");
}

}  // namespace
