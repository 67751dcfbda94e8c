#include "app/report/output_files.h"

#include "app/io/file_contents.h"
#include "cli/program.h"
#include "cli/selfcheck_command.h"

namespace {

using namespace cli_test;

class OutputDirectory : public testing::Test {
protected:
    void SetUp() override { std::filesystem::remove_all(path); }
    void TearDown() override { std::filesystem::remove_all(path); }

    std::vector<std::string> names() const
    {
        std::vector<std::string> found;
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
    EXPECT_EQ(names(), (std::vector<std::string>{stem + "PE.csv", stem + "csv", stem + "html", stem + "json",
                                                 stem + "rpt", stem + "sum"}));
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
    EXPECT_EQ(names(), (std::vector<std::string>{"case.html", "case.rpt"}));
}

TEST_F(OutputDirectory, KeepsDistributionsApart)
{
    const std::string curve = "points = 2\nlongest_chain = 9\nsites = [{ tau = 1, amount = 1 }]\n";
    const auto files =
        files_of(evaluated("[components]\nP = { molecular_weight = 1 }\n[distributions.\"A 1\"]\n" + curve +
                           "[distributions.A_1]\n" + curve + "[distributions.A_1_2]\n" + curve +
                           "[distributions.fit]\n" + curve));
    Lines names;
    for (std::size_t i = 5; i < files.size(); ++i) names.push_back(files[i].name);
    EXPECT_EQ(names, (Lines{"n.A_1.csv", "n.A_1_2.csv", "n.A_1_2_2.csv", "n.fit_2.csv"}));
}

// The second site of A and the first of `A: site x` would have the same curve name.
TEST(Columns, StayApartWhenNamesCollide)
{
    const std::string site = "tau = 1, amount = 1 }";
    const auto e = evaluated(
        "[components]\nP = { molecular_weight = 1 }\n[distributions.D]\npoints = 2\nlongest_chain = 9\n"
        "sections = [{ name = \"A\", sites = [{ name = \"x: site y\", " +
        site + "] }, { name = \"A: site x\", sites = [{ name = \"y\", " + site + "] }]\n");
    const auto row = Json::parse(app::format_json(e.report))["distributions"][0]["distribution_curves"][0];
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
        "title = \"Two\\nlines\\u001B\"\n[settings]\nlines_per_page = 5\n"
        "[components]\nP = { molecular_weight = 1 }\n[parameters.S]\ncomponents = [\"P\"]\ntemperatures = "
        "[300]\n");
    const auto report = files_of(e).front().content;
    EXPECT_EQ(report.find("Two lines\\u001B "), 0u);
    std::istringstream pages{report};
    for (std::string page; std::getline(pages, page, '\f');) EXPECT_LE(count(page, "\n"), 5 + 2u) << page;
    EXPECT_GT(count(report, "\f"), 1u);
}

TEST(Html, EscapesEveryText)
{
    const auto e = evaluated(
        "title = \"</title><script>alert(1)</script>&\\\"\"\n[components]\nP = { molecular_weight = 1 }\n"
        "[distributions.\"<b>\"]\npoints = 2\nlongest_chain = 9\nsites = [{ name = \"</script>\", tau = 1, "
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

TEST(Selfcheck, AgreesWithKnownAnswers)
{
    const support::Capture out;
    EXPECT_EQ(cli::selfcheck(out.file), cli::exit_success) << out.text();
    EXPECT_GT(count(out.text(), "\nok  "), 5u);
    EXPECT_EQ(out.text().find("FAILED"), std::string::npos);
}

}  // namespace
