#include "cli/sweep_command.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

#include "app/io/file_contents.h"
#include "app/sweep/process_pool.h"
#include "app/sweep/sweep_grid.h"
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

    Outcome sweep() const
    {
        const support::Capture errors;
        const int status = cli::sweep(options, errors.file);
        return {status, "", errors.text()};
    }

    // Rows of the result by case number, cells by column.
    std::vector<std::map<std::string, std::string>> rows() const
    {
        std::istringstream lines{app::file_contents(options.out)};
        std::vector<std::map<std::string, std::string>> all;
        std::string header;
        std::getline(lines, header);
        for (std::string line; std::getline(lines, line);) {
            auto& row = all.emplace_back();
            std::istringstream names{header}, cells{line};
            for (std::string name; std::getline(names, name, ',');)
                std::getline(cells, row[name], name == "error" ? '\n' : ',');
        }
        return all;
    }

    std::filesystem::path directory = support::scratch() / "polyprops_sweep";
    std::filesystem::path partial = directory / "s.csv.partial";
    app::SweepOptions options{directory / "case.toml", {}, directory / "s.csv", 3};
};

TEST_F(SweepFiles, RunsEveryCombinationInOrder)
{
    options.sets = {"streams.S.attributes.P.ZMOM=1:2:3", "streams.S.attributes.P.SFLOW[1]=12:24:2"};
    const auto seen = sweep();
    ASSERT_EQ(seen.status, 0) << seen.errors;
    EXPECT_EQ(seen.errors, "");
    const double mn[] = {1200, 2400, 800, 1600, 600, 1200};
    const auto all = rows();
    ASSERT_EQ(all.size(), 6u);
    for (std::size_t i = 0; i < all.size(); ++i) {
        EXPECT_EQ(all[i].at("case"), std::to_string(i + 1));
        EXPECT_EQ(all[i].at("streams.S.attributes.P.ZMOM"),
                  (std::vector<std::string>{"1", "1.5", "2"})[i / 2]);
        EXPECT_DOUBLE_EQ(std::stod(all[i].at("streams.S.chain_averages.P.mn")), mn[i]);
        EXPECT_EQ(all[i].at("error"), "");
    }
    EXPECT_FALSE(std::filesystem::exists(partial));
}

TEST_F(SweepFiles, AFailingCaseHasItsErrorInItsRow)
{
    options.sets = {"components.P.molecular_weight=-1:1:3"};
    const auto seen = sweep();
    EXPECT_EQ(seen.status, cli::exit_case_error);
    EXPECT_EQ(seen.errors, "polyprops: 2 of 3 cases failed; their rows hold the error\n");
    const auto all = rows();
    ASSERT_EQ(all.size(), 3u);
    EXPECT_NE(all[0].at("error").find(
                  "components.P.molecular_weight is -1; expected a finite number greater than 0"),
              std::string::npos);
    EXPECT_EQ(all[0].at("streams.S.chain_averages.P.mn"), "");
    EXPECT_EQ(all[2].at("streams.S.chain_averages.P.mn"), "1200");
    EXPECT_EQ(all[2].at("error"), "");
}

TEST_F(SweepFiles, GoesOnWhereItWasInterrupted)
{
    options.sets = {"streams.S.attributes.P.ZMOM=1:4:4"};
    // The last step fails, as if the disk were full: all rows are kept.
    std::filesystem::create_directories(options.out);
    EXPECT_EQ(sweep().status, cli::exit_case_error);
    std::filesystem::remove(options.out);
    auto journal = app::file_contents(partial);
    const auto kept = journal.find("\n2,") + 1;
    // Only the row of case 2 is left, marked to be known again, and the torn row of another.
    const auto head = journal.substr(0, journal.find('\n', journal.find('\n') + 1) + 1);
    const auto row = journal.substr(kept, journal.find('\n', kept) - kept);
    std::ofstream{partial} << head << row << "kept before\n4,4,torn";
    const auto seen = sweep();
    EXPECT_EQ(seen.errors, "polyprops: 1 of 4 cases failed; their rows hold the error\n");
    const auto all = rows();
    ASSERT_EQ(all.size(), 4u);
    EXPECT_EQ(all[1].at("error"), "kept before");
    EXPECT_EQ(all[3].at("streams.S.chain_averages.P.mn"), "300");
    EXPECT_EQ(all[3].at("error"), "");
}

TEST_F(SweepFiles, AnInterruptionEndsItWithTheRowsThatItHas)
{
    options.sets = {"streams.S.attributes.P.ZMOM=1:2:100000"};
    const auto user = ::fork();
    if (user == 0) {  // waits for a row behind the two lines of the head
        while (std::ranges::count(support::content(partial), '\n') < 3) ::usleep(1000);
        ::kill(::getppid(), SIGINT);
        ::_exit(0);
    }
    const auto seen = sweep();
    ::waitpid(user, nullptr, 0);
    EXPECT_EQ(seen.status, cli::exit_interrupted);
    const auto kept = std::ranges::count(support::content(partial), '\n') - 2;
    EXPECT_EQ(seen.errors, "polyprops: interrupted after " + std::to_string(kept) +
                               " of 100000 cases; the same command goes on from there (" + partial.string() +
                               ")\n");
    EXPECT_FALSE(std::filesystem::exists(options.out));
}

TEST_F(SweepFiles, RefusesTheRowsOfAnotherSweepAndKeysThatLeadNowhere)
{
    std::ofstream{partial} << "# sweep of something else\n1,2\n";
    options.sets = {"streams.S.attributes.P.ZMOM=1:4:4"};
    EXPECT_NE(sweep().errors.find("s.csv.partial: belongs to another sweep"), std::string::npos);
    EXPECT_EQ(app::file_contents(partial), "# sweep of something else\n1,2\n");
    const std::pair<std::string, std::string> rows[] = {
        {"streams.S.flows.Q", "; did you mean \"streams.S.flows.P\"?"},
        {"streams.S.attributes.P.SFLOW[2]", "; did you mean \"streams.S.attributes.P.SFLOW[1]\"?"},
        {"title", ""},
    };
    for (const auto& [key, suggestion] : rows) {
        options.sets = {key + "=1:4:4"};
        const auto seen = sweep();
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
         {"a=1:2", "a=1:2:0", "a=1:2:3:4", "=1:2:3", "a", "a=1:x:3", "a=1:inf:3", "a=1:2:2.5"})
        EXPECT_THROW(app::parse_range(text), std::invalid_argument) << text;
    EXPECT_THROW(app::SweepGrid({{"a", 0, 1, 2}, {"a", 0, 1, 2}}), std::invalid_argument);
    EXPECT_THROW(app::SweepGrid({{"a", 0, 1, 1u << 31}, {"b", 0, 1, 1u << 31}}), std::invalid_argument);
}

TEST(ProcessPool, OutlivesTasksThatCrash)
{
    const auto work = [](std::size_t task) -> std::string {
        if (task == 2) std::raise(SIGKILL);
        if (task == 3) ::_exit(5);
        return std::string(100000 * task, 'x');
    };
    std::map<std::size_t, std::string> seen;
    app::run_tasks({1, 2, 3, 4}, {2, [] { return false; }}, work, [&](const app::TaskOutcome& outcome) {
        seen[outcome.task] = outcome.result ? std::to_string(outcome.result->size()) : outcome.why;
    });
    EXPECT_EQ(seen[1], "100000");
    EXPECT_EQ(seen[2], "the process of the case was ended by a signal: Killed");
    EXPECT_EQ(seen[3], "the process of the case ended with status 5");
    EXPECT_EQ(seen[4], "400000");
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
