#include "app/report/output_files.h"

#include "app/io/file_contents.h"
#include "app/io/visible_text.h"
#include "cli/program.h"
#include "cli/selfcheck_command.h"

namespace {

using namespace cli_test;

class OutputDirectory : public testing::Test {
protected:
    void SetUp() override { std::filesystem::remove_all(path); }
    void TearDown() override { std::filesystem::remove_all(path); }

    Lines names() const
    {
        Lines found;
        for (const auto& entry : std::filesystem::directory_iterator{path})
            found.push_back(entry.path().filename().string());
        std::ranges::sort(found);
        return found;
    }

    std::filesystem::path path = support::scratch() / "polyprops_out";
};

std::vector<app::OutputFile> files_of(const Evaluation& e)
{
    return app::output_files("n", e.input, e.report, e.results.library_output);
}

std::size_t count(const std::string& text, const std::string& part)
{
    std::size_t found = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++found;
    return found;
}

TEST_F(OutputDirectory, HoldsEveryFormOfTheResults)
{
    cli::RunOptions options;
    options.out = path / "made" / "on the way";
    const auto seen = run(options, examples / "ziegler-natta-5-site.toml", Format::json);
    ASSERT_EQ(seen.status, 0) << seen.errors;
    path = *options.out;
    const std::string stem = "ziegler-natta-5-site.";
    EXPECT_EQ(names(), (Lines{stem + "PE.csv", stem + "csv", stem + "html", stem + "json", stem + "rpt",
                              stem + "sum"}));
    EXPECT_EQ(app::file_contents(path / (stem + "json")), seen.out);
    const auto curves = app::file_contents(path / (stem + "PE.csv"));
    EXPECT_EQ(curves.find("chain_length,molecular_weight,cumulative,composite,site A,"), 0u);
    EXPECT_EQ(count(curves, "\n"), 2001u);
    const auto report = app::file_contents(path / (stem + "rpt"));
    EXPECT_EQ(report.find("Polyethylene from five site types"), 0u);
    EXPECT_EQ(count(report, "*** POLYMER DISTRIBUTIONS ***"), 1u);
    EXPECT_NE(report.find("Pn =   450.6      Pw =   4084."), std::string::npos);
    // YCSD, XCSD and one section of YCSDS; seven results of five sites.
    const auto summary = app::file_contents(path / (stem + "sum"));
    EXPECT_EQ(count(summary, "\nreal "), 3 * 2000 + 7 * 5u);
    EXPECT_EQ(count(summary, "header \"POLYRES\" \"PRODUCT\""), 1u);
}

TEST_F(OutputDirectory, IsAsItWasWhenOneFileCannotBeWritten)
{
    std::filesystem::create_directories(path / "case.html");
    std::ofstream{path / "case.rpt"} << "before";
    const std::vector<app::OutputFile> files{{"case.rpt", "after"}, {"case.html", "<p>"}};
    EXPECT_THROW(app::write_files(path, files), std::runtime_error);
    EXPECT_EQ(app::file_contents(path / "case.rpt"), "before");
    EXPECT_EQ(names(), (Lines{"case.html", "case.rpt"}));
}

TEST_F(OutputDirectory, KeepsDistributionsApart)
{
    const std::string curve = "points = 2\nlongest_chain = 9\nsites = [{ tau = 1, amount = 1 }]\n";
    std::string text;
    for (const auto& name : Lines{"\"A 1\"", "A_1", "A_1_2", "fit", "b-" + std::string(200, 'c')})
        text += "[distributions." + name + "]\n" + curve;
    const auto files = files_of(evaluated(text));
    Lines names;
    for (std::size_t i = 5; i < files.size(); ++i) names.push_back(files[i].name);
    EXPECT_EQ(names, (Lines{"n.A_1.csv", "n.A_1_2.csv", "n.A_1_2_2.csv", "n.fit_2.csv",
                            "n.b-" + std::string(98, 'c') + ".csv"}));
}

// The second site of A and the first of `A: site x` would have the same curve name.
TEST(Columns, StayApartWhenNamesCollide)
{
    const std::string site = "tau = 1, amount = 1 }";
    const auto e = evaluated(
        "[distributions.D]\npoints = 2\nlongest_chain = 9\n"
        "sections = [{ name = \"A\", sites = [{ name = \"x: site y\", " +
        site + "] }, { name = \"A: site x\", sites = [{ name = \"y\", " + site + "] }]\n");
    const auto row = json(e)["distributions"][0]["distribution_curves"][0];
    EXPECT_TRUE(row.contains("A: site x: site y"));
    EXPECT_TRUE(row.contains("A: site x: site y_2"));
}

TEST(Csv, ProtectsTextsThatSpreadsheetsWouldCompute)
{
    for (const char* text : {"=1+1", "+1", "-1", "@A1"}) {
        EXPECT_EQ(app::csv_field(text), text);
        EXPECT_EQ(app::csv_field(text, app::CsvTexts::guarded), std::string{"'"} + text);
    }
    EXPECT_EQ(app::csv_field("=a,\"b\"\r\nc", app::CsvTexts::guarded), "\"'=a,\"\"b\"\"\r\nc\"");
    const auto e =
        evaluated("[components]\nP = { molecular_weight = 1 }\n[streams.\"=S\"]\nflows = { P = 1 }\n");
    EXPECT_NE(app::format_csv(e.report, app::CsvTexts::guarded).find("\nstream,'=S,"), std::string::npos);
}

TEST(Pages, HoldAsManyLinesAsTheCaseSays)
{
    const auto e = evaluated(
        "title = \"Two\\n\\r\\flines\\u001B\"\n[settings]\nlines_per_page = 5\n"
        "[components]\nP = { molecular_weight = 1 }\n[parameters.S]\ncomponents = [\"P\"]\ntemperatures = "
        "[300]\n");
    const auto report = files_of(e).front().content;
    EXPECT_EQ(report.find("Two   lines\\u001B "), 0u);
    std::istringstream pages{report};
    for (std::string page; std::getline(pages, page, '\f');) EXPECT_LE(count(page, "\n"), 5 + 2u) << page;
    EXPECT_GT(count(report, "\f"), 1u);
}

TEST(Html, EscapesEveryText)
{
    const auto e = evaluated(
        "title = \"</title><script>alert(1)</script>&\\\"\"\n[distributions.\"<b>\"]\npoints = "
        "2\nlongest_chain = 9\nsites = [{ name = \"</script>\", tau = 1, "
        "amount = 1 }]\n");
    const auto html = app::format_html(e.report);
    EXPECT_EQ(html.find("<script>alert"), std::string::npos);
    EXPECT_EQ(html.find("<b>"), std::string::npos);
    EXPECT_NE(html.find("&lt;/title&gt;&lt;script&gt;alert(1)&lt;/script&gt;&amp;&quot;"), std::string::npos);
    EXPECT_EQ(count(html, "</script>"), 3u);  // data, chart library, charts
    const auto data = html.find("id=\"report\">") + 12;
    const auto json = Json::parse(html.substr(data, html.find("</script>", data) - data));
    EXPECT_EQ(json["distributions"][0]["name"], "<b>");
    EXPECT_EQ(html.find("{{"), std::string::npos);
}

TEST(Selfcheck, NamesEveryAnswerThatIsNotTheKnownOne)
{
    const std::string built_in{cli::built_in_case};
    const struct {
        std::string text;
        std::size_t good, failed;
        const char* shown;
    } rows[] = {
        {built_in, 9, 0, "Everything agrees."},
        {with(built_in, "BLEND", "OTHER"), 6, 3, "FAILED  streams.BLEND.chain_averages.PS.mn = absent"},
        {with(built_in, "tau = 0.1", "tau = 0.2"), 6, 3, "composite.pn = 5, expected 10 (1/tau)"},
        {"[components]\n[plants]\n", 0, 3, "FAILED  built-in:2:"},
        {"[components", 0, 1, "FAILED  built-in:1:"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.shown);
        const support::Capture out;
        EXPECT_EQ(cli::selfcheck(out.file, row.text) == cli::exit_success, row.failed == 0);
        const auto seen = out.text();
        EXPECT_EQ(count(seen, "\nok  "), row.good) << seen;
        EXPECT_EQ(count(seen, "\nFAILED"), row.failed) << seen;
        EXPECT_NE(seen.find(row.shown), std::string::npos) << seen;
    }
}

TEST(Commands, SayInWordsThatMemoryIsShort)
{
    const support::Capture errors;
    EXPECT_EQ(cli::guarded([]() -> int { throw std::bad_alloc{}; }, errors.file), cli::exit_case_error);
    EXPECT_EQ(errors.text(), "polyprops: not enough memory\n");
}

TEST(Texts, ShowWhatTerminalsAndPagesMustNotReceive)
{
    const struct {
        std::string text, visible, readable;
        bool is_refused;
    } rows[] = {
        {"a\u00E9\u20AC\U0001F600", "a\u00E9\u20AC\U0001F600", "a\u00E9\u20AC\U0001F600", false},
        {"a\r\n\tb", "a\\u000D\\u000A\\u0009b", "a\r\n\tb", true},
        {"\x1B\x7F", "\\u001B\\u007F", "\uFFFD\uFFFD", true},
        {"\u0080\u009F\u00A0", "\\u0080\\u009F\u00A0", "\uFFFD\uFFFD\u00A0", true},
        {"\u2028\u2029", "\\u2028\\u2029", "\uFFFD\uFFFD", true},
        {"\u202A\u202E\u202F", "\\u202A\\u202E\u202F", "\u202A\u202E\u202F", false},
        {"\u2066\u2069\u206A", "\\u2066\\u2069\u206A", "\u2066\u2069\u206A", false},
        {"\xC0\xAF", "\\xC0\\xAF", "\uFFFD\uFFFD", true},                                // too long
        {"\xED\xA0\x80", "\\xED\\xA0\\x80", "\uFFFD\uFFFD\uFFFD", true},                 // a surrogate
        {"\xF4\x90\x80\x80", "\\xF4\\x90\\x80\\x80", "\uFFFD\uFFFD\uFFFD\uFFFD", true},  // past the last
        {"\xFF\xE2\x82", "\\xFF\\xE2\\x82", "\uFFFD\uFFFD\uFFFD", true},                 // cut off
    };
    for (const auto& row : rows) {
        EXPECT_EQ(app::visible(row.text), row.visible);
        EXPECT_EQ(app::readable(row.text), row.readable);
        EXPECT_EQ(app::has_control_characters(row.text), row.is_refused) << row.visible;
    }
}

}  // namespace
