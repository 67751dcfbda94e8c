#include "cli/selfcheck_command.h"

#include <fmt/format.h>
#include <gnu/libc-version.h>
#include <sys/utsname.h>
#include <CLI/Version.hpp>
#include <nlohmann/json.hpp>

#include <cmath>
#include <optional>
#include <thread>

#include "app/case/case_document.h"
#include "app/evaluation/evaluation.h"
#include "app/report/html/embedded.h"
#include "app/report/make_report.h"
#include "app/report/result_numbers.h"
#include "cli/exit_status.h"

namespace cli {

const std::string_view built_in_case = R"(
title = "Built-in case"

[components]
STY-R = { class = "segment", molecular_weight = 104.152 }
PS = { class = "polymer", molecular_weight = 104.152 }
STYRENE = { molecular_weight = 104.152 }

[polymers]
segments = [{ id = "STY-R", type = "repeat" }]
polymers = ["PS"]
attributes = [{ component = "PS", names = ["ZMOM", "FMOM", "SMOM", "SFLOW"] }]

[streams.BLEND]
flows = { PS = 28.80405561103 }
attributes.PS = { ZMOM = 0.143333333333333, FMOM = 28.80405561103, SMOM = 12906.0340833404, SFLOW = [28.80405561103] }

[distributions.SITE]
points = 2
longest_chain = 100
sites = [{ tau = 0.1, amount = 1 }]

[parameters.PAIR]
components = ["STYRENE", "PS"]
pairs = [{ components = ["STYRENE", "PS"], values = [1, 2, 4, 8, 16, 300] }]
leading_positions = 5
leading_symmetry = "antisymmetric"
temperatures = [300]
)";

namespace {

struct Answer {
    const char* key;
    double expected;
    const char* why;
};

std::vector<Answer> known_answers()
{
    return {
        {"streams.BLEND.chain_averages.PS.mn", 3000 / 0.143333333333333, "total mass over chains"},
        {"streams.BLEND.chain_averages.PS.mw", (10000 + 30000 + 100000) / 3.0, "mass-weighted mean"},
        {"streams.BLEND.segment_fractions.PS.STY-R.mass_fraction", 1, "the only segment"},
        {"distributions.SITE.distribution_averages.composite.pn", 10, "1/tau"},
        {"distributions.SITE.distribution_quadrature.composite.area",
         45 * (0.1 * std::exp(-1) + std::exp(-10)), "one trapezoid over 10, 100"},
        {"distributions.SITE.distribution_quadrature.composite.pw",
         4500 * (0.1 * std::exp(-1) + std::exp(-10)), "area times right-hand length"},
        {"parameters.PAIR.binary_parameters.300.STYRENE.PS", 27, "P1 + P2 + P4 + P5"},
        {"parameters.PAIR.binary_parameters.300.PS.STYRENE", -27, "the completed pair"},
        {"parameters.PAIR.binary_parameter_slopes.300.STYRENE.PS", 42, "-P2 + P3 + P4 + 2 P5"},
    };
}

std::optional<double> find(const std::vector<app::ResultNumber>& all, std::string_view key)
{
    for (const auto& n : all)
        if (n.key() == key) return std::get<double>(n.value);
    return {};
}

bool check(const Answer& answer, const std::vector<app::ResultNumber>& all, std::FILE* out)
{
    constexpr double rounding = 1e-9;
    const auto seen = find(all, answer.key);
    const bool agrees = seen && std::abs(*seen - answer.expected) <= rounding * std::abs(answer.expected);
    fmt::print(out, "{}  {} = {}, expected {} ({})\n", agrees ? "ok    " : "FAILED", answer.key,
               seen ? fmt::format("{}", *seen) : "absent", answer.expected, answer.why);
    return agrees;
}

bool check_all(std::FILE* out, std::string_view case_text)
{
    app::Diagnostics diagnostics;
    const auto input = app::CaseDocument{case_text, "built-in"}.read(diagnostics);
    for (const auto& line : diagnostics.lines("built-in")) fmt::print(out, "FAILED  {}\n", line);
    if (!diagnostics.empty()) return false;
    const auto report = app::make_report(input, app::evaluate(input));
    for (const auto& found : report.diagnostics)
        if (found.severity != app::Severity::warning)
            fmt::print(out, "FAILED  {}\n", line(found, report.file));
    bool is_good = !has_errors(report);
    const auto all = result_numbers(report);
    for (const auto& answer : known_answers()) is_good = check(answer, all, out) && is_good;
    return is_good;
}

// "Chart.js v3.9.1" of the licence comment at its top.
std::string_view chart_version()
{
    const auto at = app::embedded::chart_library.find(" v");
    const auto version = app::embedded::chart_library.substr(at + 2, 12);
    return version.substr(0, version.find('\n'));
}

void print_versions(std::FILE* out)
{
    utsname system{};
    ::uname(&system);
    fmt::print(out, "polyprops {}\n", POLYPROPS_VERSION);
    fmt::print(out, "compiler  {} {}, C++ {}, {} build\n", POLYPROPS_COMPILER, __VERSION__, __cplusplus,
               POLYPROPS_BUILD_TYPE);
    fmt::print(out, "libraries toml++ {}.{}.{}, CLI11 {}, fmt {}.{}.{}, JSON {}.{}.{}, Chart.js {}\n",
               TOML_LIB_MAJOR, TOML_LIB_MINOR, TOML_LIB_PATCH, CLI11_VERSION, FMT_VERSION / 10000,
               FMT_VERSION / 100 % 100, FMT_VERSION % 100, NLOHMANN_JSON_VERSION_MAJOR,
               NLOHMANN_JSON_VERSION_MINOR, NLOHMANN_JSON_VERSION_PATCH, chart_version());
    fmt::print(out, "system    {} {} {}, glibc {}, {} cores\n\n", system.sysname, system.release,
               system.machine, ::gnu_get_libc_version(), std::thread::hardware_concurrency());
}

}  // namespace

int selfcheck(std::FILE* out, std::string_view case_text)
{
    bool is_good = false;
    print_versions(out);
    try {
        is_good = check_all(out, case_text);
    } catch (const std::exception& error) {
        fmt::print(out, "FAILED  {}\n", error.what());
    }
    fmt::print(out, "\n{}\n",
               is_good ? "Everything agrees."
                       : "This build gives wrong answers. Please report it with all of the above.");
    return is_good ? exit_success : exit_case_error;
}

void add_selfcheck_command(CLI::App& program, int& status)
{
    program
        .add_subcommand("selfcheck", "Check this build against known answers; say what a bug report needs")
        ->callback([&status] { status = selfcheck(stdout); });
}

}  // namespace cli
