#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "cli/case_reader.h"
#include "cli/load.h"
#include "cli/program.h"
#include "cli/report.h"
#include "support/scratch.h"

namespace {

using namespace cli_test;
using cli::Format;

TEST(Examples, GiveTheAveragesThatTheirCommentsDerive)
{
    struct Row {
        const char* example;
        const char* stream;
        const char* component;
        double dpn, mn, mw, pdi;
    };
    const Row rows[] = {
        {"polystyrene-blend.toml", "BLEND", "PS", 200.9585, 20930.23, 46666.67, 2.229630},
        {"polystyrene-blend.toml", "STD-30K", "PS", 288.0406, 30000, 30000, 1},
        {"styrene-butadiene.toml", "PRODUCT", "SBR", 3401, 208999.916, 225719.909, 1.08},
        {"styrene-butadiene.toml", "PRODUCT", "STYRENE", 1, 104.152, 104.152, 1},
        {"nylon6-oligomers.toml", "MELT", "NYLON6", 159, 18010.455, 35907.636, 1.993711},
        {"nylon6-oligomers.toml", "MELT", "LIN-3", 3, 357.495, 357.495, 1},
        {"nylon6-oligomers.toml", "CHIPS", "CYC-2", 2, 226.320, 226.320, 1},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.component);
        const auto seen = row(run_json(r.example), r.stream, "chain_averages", {{"component", r.component}});
        const auto agrees = [&](const char* key, double expected) {
            EXPECT_NEAR(seen[key].get<double>(), expected, 1e-6 * expected) << key;
        };
        agrees("dpn", r.dpn);
        agrees("mn", r.mn);
        agrees("mw", r.mw);
        agrees("pdi", r.pdi);
    }
}

TEST(Examples, GiveSegmentFractionsByTheSegmentsOwnNames)
{
    const auto rubber = run_json("styrene-butadiene.toml");
    const auto styrene =
        row(rubber, "PRODUCT", "segment_fractions", {{"component", "SBR"}, {"segment", "STY-R"}});
    EXPECT_NEAR(styrene["mole_fraction"].get<double>(), 25 / 170.05, 1e-12);
    EXPECT_NEAR(styrene["mass_fraction"].get<double>(), 0.2491676, 1e-7);
    const auto nylon = run_json("nylon6-oligomers.toml");
    const auto end = row(nylon, "MELT", "segment_fractions", {{"component", "LIN-2"}, {"segment", "COOH-E"}});
    EXPECT_NEAR(end["mass_fraction"].get<double>(), 130.167 / 244.335, 1e-12);
}

TEST(Run, TextShowsUnitsAndLeavesOutWhatDoesNotFlow)
{
    const auto [status, out, errors] = run(examples / "styrene-butadiene.toml", Format::text);
    EXPECT_EQ(status, 0) << errors;
    EXPECT_NE(
        out.find("  Component  Class         Mole flow   DPN  Mean segment weight       Mn       Mw   PDI\n"
                 "                              kmol/h     -                g/mol    g/mol    g/mol     -\n"),
        std::string::npos)
        << out;
    const auto feed = out.substr(0, out.find("Stream PRODUCT"));
    EXPECT_EQ(feed.find("SBR"), std::string::npos);
    EXPECT_EQ(feed.find("Segment fractions"), std::string::npos);
}

// Numbers in the tables of a report.
std::size_t count_numbers(const Json& json)
{
    if (!json.is_structured()) return json.is_number_float() ? 1 : 0;
    std::size_t numbers = 0;
    for (const auto& element : json) numbers += count_numbers(element);
    return numbers;
}

TEST(Run, CsvHoldsTheNumbersOfJson)
{
    const std::map<std::string, std::string> items{
        {"closures", "basis"}, {"chain_weights", "average"}, {"polymer_made", "site"}};
    for (const char* example : {"nylon6-oligomers.toml", "slurry-hdpe.toml"}) {
        const auto json = run_json(example);
        std::istringstream csv{run(examples / example, Format::csv).out};
        std::string line;
        std::getline(csv, line);
        EXPECT_EQ(line, "section,name,table,item,component,segment,quantity,value,unit");
        std::size_t numbers = 0;
        while (std::getline(csv, line)) {
            std::istringstream fields{line};
            std::string section, name, table, item, component, segment, quantity, value, unit;
            for (auto* field :
                 {&section, &name, &table, &item, &component, &segment, &quantity, &value, &unit})
                std::getline(fields, *field, ',');
            auto texts = Json::object();
            if (!item.empty()) texts[items.at(table)] = item;
            if (!component.empty()) texts["component"] = component;
            if (!segment.empty()) texts["segment"] = segment;
            EXPECT_EQ(row(json, name, table, texts)[quantity].get<double>(), std::stod(value)) << line;
            EXPECT_EQ(json["units"][table][quantity], unit) << line;
            ++numbers;
        }
        EXPECT_EQ(numbers, count_numbers(json));
        EXPECT_EQ(json["schema_version"], 1);
    }
}

TEST(Run, ACaseInErrorOrWithoutFileExitsWithOneAndPrintsNoResults)
{
    const auto bad = support::scratch() / "polyprops_bad_case.toml";
    std::ofstream{bad} << "title = 5\n[components]\n[streams]\n";
    for (const auto& file : {bad, examples / "no-such-file.toml", examples}) {
        SCOPED_TRACE(file);
        const auto [status, out, errors] = run(file, Format::text);
        EXPECT_EQ(status, cli::exit_case_error);
        EXPECT_EQ(out, "");
        EXPECT_NE(errors.find(file.string()), std::string::npos) << errors;
    }
    std::filesystem::remove(bad);
}

// Values by segment ID and by position meet in the order of the components, not in that of the paragraph.
TEST(Run, SegmentValuesByNameGoToTheirSegments)
{
    const std::string text = R"(
[components]
A-R = { class = "segment", molecular_weight = 100 }
B-R = { class = "segment", molecular_weight = 50 }
P = { class = "polymer", molecular_weight = 100, pdi = 3 }
[settings]
pdi_from = "parameters"
[polymers]
segments = [{ id = "B-R", type = "repeat" }, { id = "A-R", type = "repeat" }]
polymers = ["P"]
attributes = [{ component = "P", names = ["ZMOM", "SMOM", "SFLOW"] }]
[streams]
NAMED = { flows = { P = 1 }, attributes.P = { ZMOM = 0.5, SMOM = 50, SFLOW = { B-R = 3, A-R = 1 } } }
LISTED = { flows = { P = 1 }, attributes.P = { ZMOM = 0.5, SMOM = 50, SFLOW = [1, 3] } }
)";
    cli::Diagnostics diagnostics;
    const auto input = cli::parse_case(text, "c.toml", diagnostics);
    ASSERT_TRUE(diagnostics.empty()) << diagnostics.lines("c.toml").front();
    const auto checked = cli::check_input(input);
    EXPECT_TRUE(checked.messages.empty());
    EXPECT_TRUE(cli::add_streams(input, checked).empty());
    for (const auto& stream : cli::evaluate(input, *checked.host).streams) {
        SCOPED_TRACE(stream.stream);
        EXPECT_EQ(stream.shares.at(0).segment, "A-R");
        EXPECT_EQ(stream.shares.at(0).mole_fraction, 0.25);
        EXPECT_EQ(stream.shares.at(0).mass_fraction, 0.4);
        EXPECT_EQ(stream.averages.at(0).dpn, 8);
        EXPECT_EQ(stream.averages.at(0).mean_segment_weight, 62.5);
        EXPECT_EQ(stream.averages.at(0).pdi, 3);
    }
}

TEST(Report, NamesEveryNumberThatIsNotFinite)
{
    cli::Results results;
    results.streams.push_back(
        {"S", {{"P", cli::ComponentClass::polymer, 1, 2, 3, 4, 5, 6}}, {}, {}, {}, {}, {}});
    const cli::Case input{};
    EXPECT_TRUE(cli::not_finite(cli::make_report(input, {}, results)).empty());
    results.streams[0].averages[0].pdi = std::numeric_limits<double>::infinity();
    EXPECT_EQ(cli::not_finite(cli::make_report(input, {}, results)),
              std::vector<std::string>{"streams.S: pdi of P is inf; expected a finite result"});
}

}  // namespace
