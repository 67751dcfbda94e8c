#include "cli/sweep_command.h"

#include <unistd.h>

#include <algorithm>
#include <csignal>

#include "app/io/file_contents.h"
#include "app/sweep/process_pool.h"
#include "app/sweep/sweep_grid.h"
#include "app/sweep/sweep_journal.h"
#include "cli/program.h"

namespace {

using namespace cli_test;

// An integer that a sweep makes a real; Mn = 100 × SFLOW / ZMOM.
const std::string swept = R"(
[components]
A-R = { class = "segment", molecular_weight = 100 }
P = { class = "polymer", molecular_weight = 100 }
[polymers]
segments = [{ id = "A-R", type = "repeat" }]
polymers = ["P"]
attributes = [{ component = "P", names = ["ZMOM", "SFLOW"] }]
[streams.S]
flows = { P = 12 }
attributes.P = { ZMOM = 1, SFLOW = [12] }
)";

class SweepFiles : public testing::Test {
protected:
    SweepFiles()
    {
        std::filesystem::remove_all(directory);
        std::filesystem::create_directories(directory);
        std::ofstream{options.file} << swept;
    }
    ~SweepFiles() override { std::filesystem::remove_all(directory); }

    Outcome sweep(Lines sets)
    {
        options.sets = std::move(sets);
        const support::Capture errors;
        const int status = cli::sweep(options, errors.file);
        return {status, "", errors.text()};
    }

    // A column of the result.
    Lines column(const std::string& name) const
    {
        std::istringstream lines{app::file_contents(options.out)};
        Lines cells;
        std::size_t at = 0;
        for (std::string line; std::getline(lines, line);) {
            const auto row = support::parts(line, ",");
            if (cells.empty()) at = std::ranges::find(row, name) - row.begin();
            cells.push_back(row.at(at));
        }
        cells.erase(cells.begin());
        return cells;
    }

    std::filesystem::path directory = support::scratch() / "polyprops_sweep";
    std::filesystem::path partial = directory / "s.csv.partial";
    app::SweepOptions options{directory / "case.toml", {}, directory / "s.csv", 3};
};

const std::string zmom = "streams.S.attributes.P.ZMOM", mn = "streams.S.chain_averages.P.mn";

TEST_F(SweepFiles, RunsEveryCombinationInOrder)
{
    const auto seen = sweep({zmom + "=1:2:3", "streams.S.attributes.P.SFLOW[1]=12:24:2"});
    ASSERT_EQ(seen.status, 0) << seen.errors;
    EXPECT_EQ(seen.errors, "");
    EXPECT_EQ(column("case"), (Lines{"1", "2", "3", "4", "5", "6"}));
    EXPECT_EQ(column(zmom), (Lines{"1", "1", "1.5", "1.5", "2", "2"}));
    EXPECT_EQ(column(mn), (Lines{"1200", "2400", "800", "1600", "600", "1200"}));
    EXPECT_EQ(column("error"), Lines(6));
    EXPECT_FALSE(std::filesystem::exists(partial));
}

TEST_F(SweepFiles, AFailingCaseHasItsErrorInItsRow)
{
    const auto seen = sweep({"components.P.molecular_weight=-1:1:3"});
    EXPECT_EQ(seen.status, cli::exit_case_error);
    EXPECT_EQ(seen.errors, "polyprops: 2 of 3 cases failed; their rows hold the error\n");
    const auto errors = column("error");
    EXPECT_EQ(column(mn), (Lines{"", "", "1200"}));
    EXPECT_NE(errors[0].find("components.P.molecular_weight is -1; expected a finite number greater than 0"),
              std::string::npos);
    EXPECT_EQ(errors[2], "");

    std::ofstream{options.file} << with(swept, "P = 12", "P = 0");
    EXPECT_EQ(sweep({"streams.S.flows.P=0:12:2"}).errors,
              "polyprops: 1 of 2 cases failed; their rows hold the error\n");
    EXPECT_NE(column("error")[1].find(" results have no column: the unchanged case lacks them"),
              std::string::npos);
}

TEST_F(SweepFiles, NeedsAnUnchangedCaseWithoutErrors)
{
    options.file = examples / "bad-input.toml";
    const auto seen = sweep({"streams.FEED.flows.WATER=1:2:2"});
    EXPECT_EQ(seen.status, cli::exit_case_error);
    EXPECT_NE(seen.errors.find("bad-input.toml:"), std::string::npos) << seen.errors;
    EXPECT_FALSE(std::filesystem::exists(options.out));
}

// A row, kept or new, is of the form that the sweep asks for.
TEST_F(SweepFiles, ProtectsErrorsThatSpreadsheetsWouldCompute)
{
    options.file = "=case.toml";
    std::ofstream{options.file} << swept;
    for (const auto& [texts, start] :
         {std::pair{app::CsvTexts::exact, "=case.toml:"}, {app::CsvTexts::guarded, "'=case.toml:"}}) {
        options.csv_texts = texts;
        EXPECT_EQ(sweep({"components.P.molecular_weight=-1:-1:1"}).status, cli::exit_case_error);
        EXPECT_TRUE(column("error")[0].starts_with(start)) << column("error")[0];
        EXPECT_EQ(column("components.P.molecular_weight"), Lines{"-1"});
    }
    std::filesystem::remove(options.file);
}

TEST_F(SweepFiles, GoesOnFromSoundRowsOnly)
{
    const Lines sets{zmom + "=1:4:4"};
    options.sets = sets;
    // The last step fails, as if the disk were full: all rows are kept.
    std::filesystem::create_directories(options.out);
    EXPECT_THROW(app::sweep(options, [](std::size_t, std::size_t) {}), std::runtime_error);
    std::filesystem::remove(options.out);
    std::vector<std::string> lines;
    std::istringstream journal{app::file_contents(partial)};
    for (std::string line; std::getline(journal, line);) lines.push_back(line + "\n");
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_EQ(sweep(sets).status, 0);
    const auto table = app::file_contents(options.out);

    std::string all, flipped = lines[2], head = lines[0];
    for (const auto& line : lines) all += line;
    flipped[flipped.size() - 3] ^= 1;
    head[2] ^= 1;
    const auto of = [&](const std::string& row) { return lines[0] + row; };
    const std::pair<const char*, std::string> rows[] = {
        {"nothing", ""},
        {"a torn head", lines[0].substr(0, 20)},
        {"a damaged head", head + lines[1]},
        {"zeros", std::string(4096, '\0')},
        {"zeros behind the head", of(std::string(4096, '\0'))},
        {"zeros behind rows", all + std::string(4096, '\0')},
        {"a torn row", of(lines[1] + lines[2].substr(0, 30))},
        {"a flipped bit", of(flipped + lines[3])},
        {"a row twice", all + lines[1]},
        {"a row without its checksum", of("2,2,forged\n")},
        {"another program's text", of("log: started\n\n\r\n") + lines[4]},
    };
    for (const auto& [name, text] : rows) {
        SCOPED_TRACE(name);
        std::filesystem::remove(options.out);
        std::ofstream{partial} << text;
        const auto seen = sweep(sets);
        EXPECT_EQ(seen.status, 0) << seen.errors;
        EXPECT_EQ(app::file_contents(options.out), table);
        EXPECT_FALSE(std::filesystem::exists(partial));
    }
}

TEST_F(SweepFiles, KeepsTheRowsOfItsGridForOneProcess)
{
    app::SweepJournal{options.out, "sweep", 3}.add(3, "3,kept");
    {
        const app::SweepJournal journal{options.out, "sweep", 3};
        EXPECT_EQ(journal.rows(), (std::map<std::size_t, std::string>{{3, "3,kept"}}));
        EXPECT_EXIT(
            try { app::SweepJournal(options.out, "sweep", 3); } catch (const std::runtime_error&) {
                ::_exit(7);
            },
            testing::ExitedWithCode(7), "")
            << "two sweeps at once";
    }
    EXPECT_TRUE(app::SweepJournal(options.out, "sweep", 2).rows().empty()) << "a case outside the grid";
}

TEST_F(SweepFiles, RefusesTheRowsOfAnotherSweepAndKeysThatLeadNowhere)
{
    {
        app::SweepJournal{options.out, "something else", 1}.add(1, "1,2");
    }
    const auto other = app::file_contents(partial);
    EXPECT_NE(sweep({zmom + "=1:4:4"}).errors.find("s.csv.partial: belongs to another sweep"),
              std::string::npos);
    EXPECT_EQ(app::file_contents(partial), other);
    const std::pair<std::string, std::string> rows[] = {
        {"streams.S.flows.Q", "; did you mean \"streams.S.flows.P\"?"},
        {"streams.S.attributes.P.SFLOW[2]", "; did you mean \"streams.S.attributes.P.SFLOW[1]\"?"},
        {"title", ""},
    };
    for (const auto& [key, suggestion] : rows) {
        const auto seen = sweep({key + "=1:4:4"});
        EXPECT_EQ(seen.status, cli::exit_usage);
        EXPECT_EQ(seen.errors,
                  "polyprops: the key \"" + key + "\" leads to no number of the case" + suggestion + "\n");
    }
}

TEST(SweepRange, ReadsKeyAndValues)
{
    const auto range = app::parse_range("a.\"b=c\"[2].d=-1e3:0.5:7");
    EXPECT_EQ(range.key, "a.\"b=c\"[2].d");
    EXPECT_EQ(range.value(0), -1000);
    EXPECT_EQ(range.value(6), 0.5);
    EXPECT_DOUBLE_EQ(range.value(3), -499.75);
    for (const auto* text :
         {"a=1:2", "a=1:2:0", "a=1:2:3:4", "=1:2:3", "a", "a=1:x:3", "a=1:inf:3", "a=1:2:2.5", "a=1:2:x"})
        EXPECT_THROW(app::parse_range(text), std::invalid_argument) << text;
    EXPECT_THROW(app::SweepGrid({{"a", 0, 1, 2}, {"a", 0, 1, 2}}), std::invalid_argument);
    EXPECT_THROW(app::SweepGrid({{"a", 0, 1, 1u << 31}, {"b", 0, 1, 1u << 31}}), std::invalid_argument);
}

// Task 5 ends early when it runs for the first time only.
TEST(ProcessPool, RunsTasksThatEndEarlyOnceMore)
{
    const auto directory = support::scratch() / "polyprops_pool";
    std::filesystem::create_directories(directory);
    const auto work = [&](std::size_t task) -> std::string {
        std::ofstream{directory / std::to_string(task), std::ios::app} << '.';
        const auto runs = std::filesystem::file_size(directory / std::to_string(task));
        if (task == 2 || (task == 5 && runs == 1)) std::raise(SIGKILL);
        if (task == 3) ::_exit(5);
        if (task == 4) throw std::bad_alloc{};
        return std::string(100000 * task, 'x');
    };
    std::map<std::size_t, std::string> seen;
    app::run_tasks({1, 2, 3, 4, 5}, {2, [] { return false; }}, work, [&](const app::TaskOutcome& outcome) {
        seen[outcome.task] = outcome.result ? std::to_string(outcome.result->size()) : outcome.why;
    });
    const std::map<std::size_t, std::string> expected{
        {1, "100000"},
        {2, "the process of the case was ended by a signal: Killed"},
        {3, "the process of the case ended with status 5"},
        {4, "the process of the case ran out of memory"},
        {5, "500000"}};
    EXPECT_EQ(seen, expected);
    for (const auto& [task, runs] : {std::pair{1, 1u}, {2, 2u}, {3, 2u}, {4, 2u}, {5, 2u}})
        EXPECT_EQ(std::filesystem::file_size(directory / std::to_string(task)), runs) << task;
    std::filesystem::remove_all(directory);
}

TEST(ProcessPool, StartsNothingOnceItIsStopped)
{
    std::size_t done = 0;
    app::run_tasks(
        {1, 2, 3, 4}, {1, [&] { return done == 2; }}, [](std::size_t) { return std::string{}; },
        [&](const app::TaskOutcome&) { ++done; });
    EXPECT_EQ(done, 2u);
}

}  // namespace
