// The paragraph check as the program shows it: messages with their places, tables of what was built, and runs
// that go on without the entries in error.
#include "app/evaluation/input_results.h"
#include "app/io/file_contents.h"
#include "cli/check_command.h"
#include "cli/program.h"

namespace {

using namespace cli_test;

Outcome check(const std::filesystem::path& file, Format format)
{
    return support::capture([](const auto&... arguments) { return cli::check(arguments...); }, file, format);
}

TEST(Check, BadInputIsAnsweredWithEveryMessageOnce)
{
    // Paths as a user in the root of the project sees them.
    const auto root = examples.parent_path().string() + "/";
    std::string seen;
    for (const char* file : {"bad-input/no-sentences.toml", "bad-input/no-polymer.toml",
                             "bad-input/no-segment.toml", "bad-input.toml"}) {
        auto [status, out, errors] = check(examples / file, Format::text);
        EXPECT_EQ(status, cli::exit_case_error) << file;
        EXPECT_EQ(out, "") << file;
        for (auto at = errors.find(root); at != std::string::npos; at = errors.find(root))
            errors.erase(at, root.size());
        seen += errors;
    }
    EXPECT_EQ(seen, support::stored("cli/bad_input.txt"));
    const auto json = check(examples / "bad-input.toml", Format::json);
    EXPECT_EQ(json.status, cli::exit_case_error);
    EXPECT_GT(Json::parse(json.out)["messages"].size(), 0u) << json.out;
}

TEST(Check, HasNothingToSayOfTheOtherExamples)
{
    for (const auto& file : std::filesystem::directory_iterator{examples}) {
        if (file.path().extension() != ".toml" || file.path().stem() == "bad-input") continue;
        SCOPED_TRACE(file.path());
        const auto [status, out, errors] = check(file.path(), Format::text);
        EXPECT_EQ(status, cli::exit_success);
        EXPECT_EQ(errors, "");
        EXPECT_EQ(run_json(file.path())["warnings"], Json::array());
        EXPECT_EQ(out.find("\nPolymers\n") == out.npos, file.path().stem() == "interaction-parameters")
            << out;
    }
}

const std::string catalyzed = R"(title = "Catalyzed"
[components]
CAT = { molecular_weight = 190 }
INI = { molecular_weight = 242 }
B-E = { class = "segment", molecular_weight = 50 }
A-R = { class = "segment", molecular_weight = 100 }
O = { class = "oligomer", molecular_weight = 150 }
P = { class = "polymer", molecular_weight = 100 }
[polymers]
segments = [{ id = "A-R", type = "repeat" }, { id = "B-E", type = "end" }]
polymers = ["P"]
oligomers = [
    { id = "O", segments = { A-R = 7 } },
    { segments = { B-E = 2 } },
    { id = "O", segments = { A-R = 1.5 } },
]
catalysts = [{ id = "CAT", value = 0.25 }]
initiators = ["INI"]
sites = { count = 2, integers = [11, 12, 13], real = 1.5 }
distributions = [
    { polymer = "P", type = 4, integers = [1, 2, 3], real = 0.5 },
    { polymer = "P", type = 2, integers = [4, 5, 6] },
]
attributes = [
    { component = "P", names = ["ZMOM", "SFLOW"] },
    { component = "CAT", names = ["CPSFLOW", "CVSFLOW"] },
]
[[catalyst_scaling]]
component = "CAT"
attribute = "CVSFLOW"
first = 2.0
[streams.S]
flows = { CAT = 1, P = 1 }
attributes.P = { ZMOM = 0.5, SFLOW = [0.5, 0.5] }
attributes.CAT = { CPSFLOW = [1, 2] }
)";

TEST(Check, ShowsWhatWasBuiltInEveryForm)
{
    const File file{catalyzed};
    const auto [status, out, errors] = check(file.path, Format::json);
    ASSERT_EQ(status, cli::exit_success) << errors;
    auto input = Json::parse(out)["input"];
    EXPECT_EQ(input["attribute_layout"][6], Json::parse(R"({"group": 7, "start": 19, "length": 3})"));
    input.erase("attribute_layout");
    EXPECT_EQ(input, Json::parse(R"({
        "segments": [{"segment": "B-E", "type_name": "end", "type": 1, "position": 1},
                     {"segment": "A-R", "type_name": "repeat", "type": 2, "position": 2}],
        "polymers": [{"component": "P", "position": 1}],
        "oligomers": [{"component": "O", "segment": "B-E", "count": 2.0},
                      {"component": "O", "segment": "A-R", "count": 1.5}],
        "catalysts": [{"component": "CAT", "value": 0.25}],
        "initiators": [{"component": "INI", "position": 1}],
        "sites": [{"count": 2, "integer_1": 11, "integer_2": 12, "integer_3": 13, "real": 1.5}],
        "attributes": [{"component": "CAT", "attribute": "CPSFLOW", "values": 2},
                       {"component": "CAT", "attribute": "CVSFLOW", "values": 2},
                       {"component": "P", "attribute": "ZMOM", "values": 1},
                       {"component": "P", "attribute": "SFLOW", "values": 2}],
        "distributions": [
            {"component": "P", "type": 2, "integer_1": 4, "integer_2": 5, "integer_3": 6, "real": 0.0},
            {"component": "P", "type": 4, "integer_1": 1, "integer_2": 2, "integer_3": 3, "real": 0.5}],
        "catalyst_scaling": [
            {"component": "CAT", "attribute": "CVSFLOW", "element": 1, "first": 2.0, "second": 0.0},
            {"component": "CAT", "attribute": "CVSFLOW", "element": 2, "first": 2.0, "second": 0.0}]})"));

    const auto text = check(file.path, Format::text).out;
    EXPECT_NE(text.find("Oligomers by their segments per molecule\n"
                        "  Component  Segment  Count\n"
                        "  O          B-E          2\n"
                        "  O          A-R        1.5\n"),
              std::string::npos)
        << text;
    const auto csv = check(file.path, Format::csv).out;
    EXPECT_EQ(csv.substr(0, csv.find('\n')), "table,entry,component,segment,attribute,quantity,value,unit");
    for (const char* line : {"\noligomers,2,O,A-R,,count,1.5,\n", "\nattributes,2,CAT,,CVSFLOW,values,2,\n",
                             "\ndistributions,1,P,,,integer_3,6,\n"})
        EXPECT_NE(csv.find(line), std::string::npos) << line;
}

// Place and number of each message of a case.
Lines places(const std::string& text)
{
    Lines places;
    for (const auto& [source, hint, message] : app::evaluate_input(parsed(text)).messages)
        places.push_back("c.toml:" + std::to_string(source.line) + ":" + std::to_string(source.column) +
                         ": " + std::to_string(message.number));
    return places;
}

TEST(Check, FindsTheEntryThatAMessageMeansAmongThoseOfOneId)
{
    expect_each(R"(
# Each repeat, not the first.
["P"] -> ["P", "X", "P", "X", "P"] => 11:18: 4 => 11:23: 5 => 11:28: 4 => 11:33: 5
# An unknown oligomer once for each of its segments, at its ID.
{ id = "O", segments = { A-R = 1.5 } } -> { id = "U", segments = { A-R = 1, B-E = 1 } }, { segments = { A-R =
    1 } }, { id = "U", segments = { A-R = 1 } }
    => 15:7: 7
    => 15:7: 7
    => 15:7: 7
    => 15:82: 7
# A segment under the oligomer that names it.
{ segments = { B-E = 2 } } -> { segments = { U = 2 } }, { id = "O", segments = [{ id = "CAT", count = 1 }, {
    id = "U", count = 1 }] }
    => 14:20: 8
    => 14:57: 9
    => 14:84: 8
# The attribute list that misses the attribute.
"SFLOW"] } -> "SFLOW"] }, { component = "P", names = ["ZMOM"] }, { component = "P", names = ["SFLOW"] }
    => 25:55: 25
    => 25:94: 24
# One unknown ID in three lists.
id = "CAT", value = 0.25 } -> id = "CAT" }, { id = "CATALYST" } & "INI"] -> "INI", "CATALYST"]
    => 17:32: 10
    => 18:22: 10
# The second of two scalings.
first = 2.0 -> first = 2.0\n[[catalyst_scaling]]\ncomponent = "CAT"\nattribute = "ZMOM" => 34:1: 1
)",
                catalyzed, places);
}

TEST(Check, PrintsMessagesUpToTheLevelOfTheCase)
{
    expect_each(R"(
["P"] -> ["P", "X"]
["P"] -> ["P", "X"] & attribute = "CVSFLOW" -> attribute = "ZMOM" => 32:1: 1
["P"] -> ["P", "X"] & attribute = "CVSFLOW" -> attribute = "ZMOM" & message_level = 1 -> message_level = 0
)",
                with(catalyzed, "[polymers]", "[settings]\nmessage_level = 1\n[polymers]"), places);
}

TEST(Run, GoesOnWithoutTheEntriesInError)
{
    const File file{
        with(with(catalyzed, "{ id = \"B-E\", type = \"end\" }", "{ id = \"B-X\", type = \"end\" }"),
             "attributes.P = { ZMOM = 0.5, SFLOW = [0.5, 0.5] }",
             "attributes.P = { ZMOM = 0.5, SFLOW = { A-R = 4, B-E = 1 } }")};
    const auto [status, out, errors] = run(file.path, Format::json);
    EXPECT_EQ(status, cli::exit_case_error);
    const auto name = file.path.string();
    EXPECT_EQ(errors.substr(0, errors.find('\n')),
              name + ":10:48: POLSEM message 6, severity 2; did you mean \"B-E\"?");
    EXPECT_NE(
        errors.find(name + ":34:49: streams.S.attributes.P.SFLOW names \"B-E\", which is not a segment; "
                           "did you mean \"A-R\"? (dropped)\n"),
        std::string::npos)
        << errors;
    const auto json = Json::parse(out);
    EXPECT_EQ(json["messages"].size(), 2u);
    EXPECT_EQ(json["messages"][0]["line"], 10);
    EXPECT_EQ(json["streams"][0]["chain_averages"][1]["dpn"], 8);
}

TEST(Run, GoesOnWithoutAParagraphThatIsIgnored)
{
    const auto [status, out, errors] = run(examples / "bad-input/no-segment.toml", Format::csv);
    EXPECT_EQ(status, cli::exit_case_error);
    EXPECT_NE(errors.find(":15:1: streams.PRODUCT.attributes.PS.ZMOM: PS carries no attributes (dropped)\n"),
              errors.npos)
        << errors;
    EXPECT_NE(out.find("stream,PRODUCT,chain_averages,,PS,,mn,104.152,g/mol\n"), out.npos) << out;
    EXPECT_EQ(out.find("segment_fractions"), out.npos);
}

}  // namespace
