#include "cli/measured_options.h"

#include <fmt/format.h>

#include <cmath>

#include "cli/program.h"

namespace {

using namespace cli_test;

// What becomes of the text of a file, with options after "with": "M signal, M signal, … ." or an error.
std::string outcome(const std::string& input)
{
    const auto given = input.find("with --");
    CLI::App program;
    std::string file;
    app::MeasuredCurveOptions options;
    cli::add_measured_options(program, program.add_option("--gpc", file), options);
    try {
        program.parse("--gpc m.txt " + (given == std::string::npos ? "" : input.substr(given + 5)));
        const auto curve = app::parse_measured_curve(input.substr(0, given), "m.txt", options);
        std::string text;
        for (std::size_t k = 0; k < curve.size(); ++k)
            text += fmt::format("{}{:.6g} {:.6g}", k ? ", " : "", curve.molecular_weight[k], curve.signal[k]);
        return text + ".";
    } catch (const std::exception& error) {
        return error.what();
    }
}

TEST(MeasuredCurve, IsReadAsItsOptionsSayOrNamesTheOptionOrLineThatIsWrong)
{
    for (const auto& row : support::rows(R"(
M;S\n1000,5;0,25\n2000;3\n => 1000.5 0.25, 2000 3.
M;S\n1000.5; 0.25\n2000;3\n => 1000.5 0.25, 2000 3.
1000,5\t0,25\n2000\t3\n => 1000.5 0.25, 2000 3.
1000 0,25\n2000,5 3\n => 1000 0.25, 2000.5 3.
1000,25\n2000.5,3\n => 1000 25, 2000.5 3.
M,S\n1000,0.5\n2000, 1.5\n\n4e3 ,0.25\n => 1000 0.5, 2000 1.5, 4000 0.25.
run 5 at 35 C\n# 1 2\nM\nM S\n1000 1\n2000 3\n => 1000 1, 2000 3.
log10(M),S\n3,1\n2,3\n => 100 3, 1000 1.
3 1\n4 3\n with --gpc-column log10m => 1000 1, 10000 3.
log M,S\n3,1\n4,3\n with --gpc-column m => 3 1, 4 3.
3 1\n100 3\n => 3 1, 100 3.
log time\n1000 1\n2000 3\n => 1000 1, 2000 3.
M S\n10 1\n20 3\n with --gpc-negative refuse => 10 1, 20 3.
M S\n10 -1\n20 3\n with --gpc-negative cut => 10 0, 20 3.
# A line through 100 and 10 000 g/mol, 1 and 3, is 2 at 1000; the ends are exactly 0.
M S\n10 4\n100 1\n1000 7\n10000 3\n100000 5\n with --gpc-window 100:10000 => 100 1, 1000 7, 10000 3.
M S\n10 4\n100 1\n1000 7\n10000 3\n100000 5\n with --gpc-baseline 100:10000 --gpc-window 100:10000 => 100 0,
    1000 5, 10000 0.
M S\n10 1\n1000 3\n100000 9\n with --gpc-baseline 100:1000 --gpc-window 50:1e9 => 1000 0, 100000 4.
# log10 M2 = log10(100)/2 + log10 M1·1.5/2: 10 000 becomes 10^(1 + 3); areas keep.
M S\n10000 3\n100000000 6\n with --gpc-window 5000:2e8 --gpc-calibration 1,0.5:0.01,1 => 10000 4, 1e+07 8.
3 1\n4 1\n => m.txt: the first column goes from 3 to 4, small for M in g/mol, and no heading names log10(M);
    expected the option --gpc-column m or --gpc-column log10m
2.0,0.1\n4,1\n8.2,0\n => m.txt: the first column goes from 2 to 8.2, small for M
M;S\n2;0.1\n7.2;1\n => m.txt: the first column goes from 2 to 7.2, small for M
ln M,S\n6,0.1\n15,1\n => m.txt: the first column goes from 6 to 15, small for M
3 1\n16 1\n with --gpc-column log10m => m.txt:2: "16 1"; expected log10 of a molecular weight, 15 at most
M S\n10 1\n20 -0.5\n => m.txt:3: the signal is -0.5; expected 0 or more
M S\n100 1\n10 2\n1 1\n with --gpc-baseline 10:100 => m.txt:4: the signal above the baseline is -2
M S\n10 1\n20 2\n with --gpc-baseline 5:20 => m.txt: --gpc-baseline: 5 g/mol is 5 g/mol below the curve;
    expected two molecular weights within its 2 points, 10 to 20 g/mol
M S\n10 1\n20 2\n with --gpc-baseline 10:20.5 => m.txt: --gpc-baseline: 20.5 g/mol is 0.5 g/mol above the
    curve
M S\n10 1\n20 2\n with --gpc-window 15:100 => m.txt: --gpc-window: 1 of 2 points are within 15 to 100 g/mol;
    expected at least 2 of the points from 10 to 20 g/mol
time M S\n5 1000 1\n6 2000 3\n => m.txt:2: "5 1000 1"; expected two numbers, molecular weight and signal; the
    line has 3 numbers
M,S\n1000,x\n2000,3\n => m.txt:2: "1000,x"; expected two numbers, molecular weight and signal, or
M S\n1000 1\n2000;3;4\n => m.txt:3: "2000;3;4"; expected two numbers
M,S\n1000,5,0,25\n2000,5,0,75\n => m.txt:2: "1000,5,0,25"; expected two numbers, molecular weight and signal;
    the line has 4 numbers, and decimal commas need `;`, tabs or blanks between columns
10OO,4.5\n2000,3\n3000,1\n => m.txt:1: "10OO,4.5"; expected two numbers, molecular weight and signal, or
,4.5\n2000,3\n3000,1\n => m.txt:1: ",4.5"; expected two numbers
M,S\n1000\n2000,3\n3000,1\n => m.txt:2: "1000"; expected two numbers
M S\n1e999 1\n2000 1\n => m.txt:2: "1e999 1"; expected finite numbers that are 0 or have a size from 2.3e-308
    to 1.7e308
M S\n1000 1\n1e16 1\n => m.txt:3: "1e16 1"; expected a molecular weight from 1e-15 to 1e15
M S\n1000 1\n2000 -1e101\n => m.txt:3: "2000 -1e101"; expected a signal of 1e100 at most
M S\n1000 1\n2000 1e-101\n3000 0\n with --gpc-window 2000:3000 => m.txt: the greatest signal is 1e-101;
    expected 1e-100 to 1e100
M S\n1000 1\n2000 3\n with --gpc-calibration 1e-300,0.7:1e300,0.7 => m.txt: --gpc-calibration: a molecular
    weight becomes
M S\n1000 1e-400\n => m.txt:2: "1000 1e-400"; expected finite numbers
M;S\n10;1\n20,2\n => m.txt:3: "20,2"; expected two numbers, molecular weight and signal, separated by `;`
M S\n10 1\n20\n => m.txt:3: "20"; expected two numbers, molecular weight and signal, separated by blanks
with --gpc-window 20:10 => --gpc-window: "20:10"; expected two molecular weights in g/mol, the lower first
with --gpc-window 0:10 => --gpc-window: "0:10"; expected two molecular weights
with --gpc-baseline 10:20:30 => --gpc-baseline: "10:20:30"; expected two molecular weights
with --gpc-calibration 1,0.7 => --gpc-calibration: "1,0.7"; expected K and a of the standards
with --gpc-calibration 0,0.7:1,0.7 => --gpc-calibration: "0,0.7:1,0.7"; expected K and a
with --gpc-calibration 1,0:1,0.7 => --gpc-calibration: "1,0:1,0.7"; expected K and a
with --gpc-calibration 1,0.7:0,0.7 => --gpc-calibration: "1,0.7:0,0.7"; expected K and a
with --gpc-calibration 1,0.7:1,2.1 => --gpc-calibration: "1,0.7:1,2.1"; expected K and a
with --gpc-window 1:inf => --gpc-window: "1:inf"; expected two molecular weights
with --gpc-column M => --gpc-column: "M"; expected m or log10m
with --gpc-negative no => --gpc-negative: "no"; expected refuse or cut
with --gpc-exponent 0 => --gpc-exponent: "0"; expected a number greater than 0, 2 at most
)")) {
        const auto sides = support::parts(support::unescaped(row), "=>");
        EXPECT_EQ(outcome(sides.front()).find(sides.back()), 0U) << row << "\n" << outcome(sides.front());
    }
    const std::pair<const char*, const char*> of_any_bytes[] = {
        {"\xEF\xBB\xBF"
         "1000 1\n2000 3\n",
         "1000 1, 2000 3."},
        {"M\r\n4000 0.25\r\n2000\t+1.5\r\n  1000   0.5  ", "1000 0.5, 2000 1.5, 4000 0.25."},
        {"a\x1B\xFF 1 2\n1000 1\n2000 2\n", "m.txt:1: \"a\\u001B\\xFF 1 2\"; expected two numbers"},
    };
    for (const auto& [text, expected] : of_any_bytes)
        EXPECT_EQ(outcome(text).find(expected), 0U) << outcome(text);
}

TEST(MeasuredCurve, OptionsAreAnErrorOfUsageWithoutACurve)
{
    for (const std::string option :
         {"--gpc-column m", "--gpc-negative cut", "--gpc-baseline 1:2", "--gpc-window 1:2",
          "--gpc-calibration 1,0.7:1,0.7", "--gpc-exponent 0.7"}) {
        CLI::App program;
        int status = -1;
        cli::add_run_command(program, status);
        try {
            program.parse("run absent.toml " + option);
            ADD_FAILURE() << option << " is accepted";
        } catch (const CLI::ParseError& error) {
            EXPECT_EQ(error.what(), option.substr(0, option.find(' ')) + " requires --gpc");
        }
        EXPECT_EQ(status, -1);
    }
}

// Signals 1, 3, 0 at 10, 100 and 1000 g/mol: trapezoids of one decade sum to 3.5, those of w·M to 305, of w/M
// to 0.08, of w·M² to 30 050, of w·M³ to 3 000 500; of w·√M to 30 + √10/2.
TEST(MeasuredCurve, HasTheAveragesOfItsTrapezoids)
{
    const auto a = app::averages_over_log10({10, 100, 1000}, {1, 3, 0}, 0.5);
    EXPECT_DOUBLE_EQ(a.mn, 3.5 / 0.08);
    EXPECT_DOUBLE_EQ(a.mw, 305 / 3.5);
    EXPECT_DOUBLE_EQ(a.mz, 30050 / 305.0);
    EXPECT_DOUBLE_EQ(a.mz1, 3000500 / 30050.0);
    EXPECT_DOUBLE_EQ(a.pdi, 305 * 0.08 / 3.5 / 3.5);
    EXPECT_DOUBLE_EQ(a.mv.value(), std::pow((30 + std::sqrt(10) / 2) / 3.5, 2));
}

}  // namespace
