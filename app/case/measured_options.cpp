#include "app/case/measured_options.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <cmath>
#include <stdexcept>

#include "app/io/visible_text.h"

namespace app {

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

bool is_exponent(double a)
{
    return a > 0 && a <= 2;
}

bool set_column(std::string_view text, MeasuredCurveOptions& options)
{
    if (text != "m" && text != "log10m") return false;
    options.column = text == "m" ? WeightColumn::m : WeightColumn::log10m;
    return true;
}

bool set_negative(std::string_view text, MeasuredCurveOptions& options)
{
    if (text != "refuse" && text != "cut") return false;
    options.negative = text == "cut" ? NegativeSignal::cut : NegativeSignal::refuse;
    return true;
}

bool set_range(std::string_view text, std::optional<WeightRange>& range)
{
    const auto v = numbers(text, ":");
    if (v.size() != 2 || !(v[0] > 0) || !(v[0] < v[1])) return false;
    range = {v[0], v[1]};
    return true;
}

bool set_baseline(std::string_view text, MeasuredCurveOptions& options)
{
    return set_range(text, options.baseline);
}

bool set_window(std::string_view text, MeasuredCurveOptions& options)
{
    return set_range(text, options.window);
}

bool set_calibration(std::string_view text, MeasuredCurveOptions& options)
{
    const auto v = numbers(text, ",:,");
    if (v.size() != 4 || !(v[0] > 0) || !is_exponent(v[1]) || !(v[2] > 0) || !is_exponent(v[3])) return false;
    options.calibration = {v[0], v[1], v[2], v[3]};
    return true;
}

bool set_exponent(std::string_view text, MeasuredCurveOptions& options)
{
    const auto v = numbers(text, "");
    if (v.empty() || !is_exponent(v[0])) return false;
    options.mark_houwink_exponent = v[0];
    return true;
}

constexpr const char* range_expected = "two molecular weights in g/mol, the lower first";

constexpr std::array<MeasuredOption, 6> all_options{{
    {"column", "m|log10m", "First column of the measured curve, M or log10(M)", "m or log10m", set_column},
    {"negative", "refuse|cut", "Refuse a signal below zero (default) or count it as zero", "refuse or cut",
     set_negative},
    {"baseline", "M1:M2", "Subtract the straight line through the signal at two molecular weights",
     range_expected, set_baseline},
    {"window", "M1:M2", "Use only points between two molecular weights", range_expected, set_window},
    {"calibration", "K1,a1:K2,a2", "Universal calibration, from the standards to the polymer",
     "K and a of the standards, then of the polymer, with K greater than 0 and a within 0 to 2",
     set_calibration},
    {"exponent", "A", "Mark-Houwink exponent for Mv (default: of the distribution)",
     "a number greater than 0, 2 at most", set_exponent},
}};

}  // namespace

std::span<const MeasuredOption> measured_options()
{
    return all_options;
}

void set(const MeasuredOption& option, std::string_view value, MeasuredCurveOptions& options)
{
    if (!option.set(value, options))
        throw std::invalid_argument{fmt::format("\"{}\"; expected {}", visible(value), option.expected)};
}

}  // namespace app
