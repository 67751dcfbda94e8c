#include "cli/measured_options.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <functional>
#include <string>
#include <string_view>

#include "cli/command.h"

namespace cli {

namespace {

// Numbers with these separators between them; empty when the text is anything else.
std::vector<double> numbers(std::string_view text, std::string_view separators)
{
    std::vector<double> values;
    for (std::size_t i = 0; i <= separators.size(); ++i) {
        double value = 0;
        const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (error != std::errc{} || !std::isfinite(value)) return {};
        values.push_back(value);
        text.remove_prefix(static_cast<std::size_t>(rest - text.data()));
        if (i == separators.size()) break;
        if (!text.starts_with(separators[i])) return {};
        text.remove_prefix(1);
    }
    return text.empty() ? values : std::vector<double>{};
}

bool is_range(const std::vector<double>& v)
{
    return v.size() == 2 && v[0] > 0 && v[0] < v[1];
}

bool is_exponent(double a)
{
    return a > 0 && a <= 2;
}

bool is_calibration(const std::vector<double>& v)
{
    return v.size() == 4 && v[0] > 0 && is_exponent(v[1]) && v[2] > 0 && is_exponent(v[3]);
}

// Syntax and help of an option.
struct Form {
    const char* option;
    const char* separators;
    const char* type;
    const char* expected;
    const char* purpose;
};

void add_numbers(CLI::App& command, const Form& form, bool (*is_valid)(const std::vector<double>&),
                 const std::function<void(const std::vector<double>&)>& set)
{
    const auto read = [form, is_valid, set](const std::string& seen) {
        const auto values = numbers(seen, form.separators);
        if (!is_valid(values))
            throw CLI::ValidationError{form.option, fmt::format("\"{}\"; expected {}", seen, form.expected)};
        set(values);
    };
    command.add_option_function<std::string>(form.option, read, form.purpose)->type_name(form.type);
}

constexpr const char* range_expected = "two molecular weights in g/mol, the lower first";

}  // namespace

void add_measured_options(CLI::App& command, app::MeasuredCurveOptions& options)
{
    add_choice<app::WeightColumn>(command, "--gpc-column", options.column,
                                  {{"m", app::WeightColumn::m}, {"log10m", app::WeightColumn::log10m}},
                                  "COLUMN", "First column of the measured curve, M or log10(M)");
    add_choice<app::NegativeSignal>(
        command, "--gpc-negative", options.negative,
        {{"refuse", app::NegativeSignal::refuse}, {"cut", app::NegativeSignal::cut}}, "CHOICE",
        "Refuse a signal below zero (default) or count it as zero");
    add_numbers(command,
                {"--gpc-baseline", ":", "M1:M2", range_expected,
                 "Subtract the straight line through the signal at two molecular weights"},
                is_range, [&options](const auto& v) {
                    options.baseline = {v[0], v[1]};
                });
    add_numbers(
        command,
        {"--gpc-window", ":", "M1:M2", range_expected, "Use only points between two molecular weights"},
        is_range, [&options](const auto& v) {
            options.window = {v[0], v[1]};
        });
    add_numbers(command,
                {"--gpc-calibration", ",:,", "K1,a1:K2,a2",
                 "K and a of the standards, then of the polymer, with K greater than 0 and a within 0 to 2",
                 "Universal calibration, from the standards to the polymer"},
                is_calibration, [&options](const auto& v) {
                    options.calibration = {v[0], v[1], v[2], v[3]};
                });
    add_numbers(
        command,
        {"--gpc-exponent", "", "A", "a number greater than 0, 2 at most", "Mark-Houwink exponent for Mv"},
        [](const std::vector<double>& v) { return v.size() == 1 && is_exponent(v[0]); },
        [&options](const auto& v) { options.mark_houwink_exponent = v[0]; });
}

}  // namespace cli
