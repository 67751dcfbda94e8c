#include "app/evaluation/measured_curve.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>
#include <optional>
#include <stdexcept>

#include "app/io/file_contents.h"

namespace app {

namespace {

using Values = std::vector<double>;

constexpr std::string_view blanks = " \t\r,";

struct Pair {
    double molecular_weight;
    double signal;
};

// Takes a number from the front of the text.
std::optional<double> take_number(std::string_view& text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    if (text.starts_with('+')) text.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || !std::isfinite(value)) return {};
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return value;
}

// Two numbers with blanks or a comma between them, and nothing else.
std::optional<Pair> read_pair(std::string_view line)
{
    const auto weight = take_number(line);
    if (!weight || line.empty() || blanks.find(line.front()) == std::string_view::npos) return {};
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    if (line.starts_with(',')) line.remove_prefix(1);
    const auto signal = take_number(line);
    if (!signal || line.find_first_not_of(" \t\r") != std::string_view::npos) return {};
    return Pair{*weight, *signal};
}

[[noreturn]] void refuse(const std::string& file, std::size_t line, std::string_view seen,
                         std::string_view expected)
{
    throw std::runtime_error{fmt::format("{}:{}: \"{}\"; expected {}", file, line, seen, expected)};
}

std::vector<std::string_view> lines_of(std::string_view text)
{
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        auto line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
    }
    return lines;
}

// A detector writes in the order of elution: molecular weights may fall as well as rise.
void put_in_order(GpcCurve& curve, const std::string& file)
{
    auto& m = curve.molecular_weight;
    if (m.size() < 2)
        throw std::runtime_error{
            fmt::format("{}: {} with two numbers; expected at least 2: molecular weight and signal", file,
                        m.empty() ? "no line" : "1 line")};
    if (m.front() > m.back()) {
        std::ranges::reverse(m);
        std::ranges::reverse(curve.signal);
    }
    const auto fault = std::ranges::adjacent_find(m, std::greater_equal{});
    if (fault != m.end())
        throw std::runtime_error{fmt::format(
            "{}: molecular weights {} and {} stand side by side; expected all of them to rise or all to fall",
            file, *fault, *(fault + 1))};
}

// Trapezoids over log10(M) of values that fit(k) scales.
template <typename Function>
double integral(const Values& m, Function value)
{
    double sum = 0;
    for (std::size_t k = 0; k + 1 < m.size(); ++k)
        sum += 0.5 * (value(k) + value(k + 1)) * std::log10(m[k + 1] / m[k]);
    return sum;
}

// ln(10)·x·w(x), straight between grid points over log(x), nothing beyond them.
double calculated(const DistributionResults& distribution, double x)
{
    const auto& grid = distribution.lengths;
    // The last digit of x = M/M0 must not push the ends of an exported curve off the grid.
    constexpr double rounding = 1e-12;
    if (x < grid.front() * (1 - rounding) || x > grid.back() * (1 + rounding)) return 0;
    const auto above = std::ranges::upper_bound(grid.begin() + 1, grid.end() - 1, x);
    const auto k = static_cast<std::size_t>(above - grid.begin());
    const auto at = [&](std::size_t i) { return grid[i] * distribution.height(distribution.composite(), i); };
    const double share = std::clamp(std::log(x / grid[k - 1]) / std::log(grid[k] / grid[k - 1]), 0.0, 1.0);
    return std::numbers::ln10 * (at(k - 1) + share * (at(k) - at(k - 1)));
}

void scale_to_area_one(const Values& m, Values& values, const std::string& what)
{
    const double area = integral(m, [&](std::size_t k) { return values[k]; });
    if (!(area > 0) || !std::isfinite(area))
        throw std::runtime_error{
            fmt::format("{} has area {} over log10 of molecular weight; expected more than 0", what, area)};
    for (auto& value : values) value /= area;
}

void add_averages(const Values& m, const Values& values, double& mn, double& mw)
{
    mn = 1 / integral(m, [&](std::size_t k) { return values[k] / m[k]; });
    mw = integral(m, [&](std::size_t k) { return values[k] * m[k]; });
}

void add_residual(GpcComparison& c)
{
    const auto difference = [&](std::size_t k) { return c.measured[k] - c.calculated[k]; };
    const double largest = *std::ranges::max_element(c.measured);
    const double range = std::log10(c.molecular_weight.back() / c.molecular_weight.front());
    const double squares =
        integral(c.molecular_weight, [&](std::size_t k) { return difference(k) * difference(k); });
    c.residual = std::sqrt(squares / range) / largest;
    for (std::size_t k = 0; k < c.measured.size(); ++k)
        c.largest_difference = std::max(c.largest_difference, std::abs(difference(k)) / largest);
}

double segment_weight(const DistributionResults& distribution)
{
    if (!distribution.segment_weight)
        throw std::runtime_error{fmt::format(
            "distributions.{} has no segment weight to turn chain lengths into molecular weights; expected a "
            "segment_weight, or a stream with polymer",
            distribution.name)};
    return *distribution.segment_weight;
}

}  // namespace

GpcCurve parse_gpc(std::string_view text, const std::string& file)
{
    GpcCurve curve;
    std::size_t number = 0;
    for (const auto line : lines_of(text)) {
        ++number;
        if (line.find_first_not_of(" \t") == std::string_view::npos) continue;
        const auto pair = read_pair(line);
        if (!pair && curve.size() > 0) refuse(file, number, line, "two numbers, molecular weight and signal");
        if (!pair) {
            curve.notes.emplace_back(line);
            continue;
        }
        if (!(pair->molecular_weight > 0)) refuse(file, number, line, "a molecular weight greater than 0");
        curve.molecular_weight.push_back(pair->molecular_weight);
        curve.signal.push_back(pair->signal);
    }
    put_in_order(curve, file);
    return curve;
}

GpcCurve read_gpc(const std::filesystem::path& file)
{
    return parse_gpc(file_contents(file), file.string());
}

GpcComparison compare(const GpcCurve& measured, const std::string& file,
                      const DistributionResults& distribution)
{
    const double m0 = segment_weight(distribution);
    GpcComparison c;
    c.file = file;
    c.notes = measured.notes;
    c.molecular_weight = measured.molecular_weight;
    c.measured = measured.signal;
    for (const double m : c.molecular_weight) {
        c.chain_length.push_back(m / m0);
        c.calculated.push_back(calculated(distribution, m / m0));
    }
    scale_to_area_one(c.molecular_weight, c.measured, file + ": the signal");
    scale_to_area_one(c.molecular_weight, c.calculated,
                      fmt::format("distributions.{}: the composite in the measured range, {} to {} g/mol,",
                                  distribution.name, c.molecular_weight.front(), c.molecular_weight.back()));
    for (std::size_t k = 0; k < c.measured.size(); ++k)
        c.overlay.push_back(c.measured[k] / std::numbers::ln10 /
                            (distribution.is_gpc ? 1 : c.chain_length[k]));
    add_averages(c.molecular_weight, c.measured, c.mn_measured, c.mw_measured);
    add_averages(c.molecular_weight, c.calculated, c.mn_calculated, c.mw_calculated);
    add_residual(c);
    return c;
}

std::string format_gpc(const DistributionResults& distribution)
{
    const double m0 = segment_weight(distribution);
    auto text =
        fmt::format("# composite of the distribution {}, {} g/mol per segment\nmolecular_weight,signal\n",
                    distribution.name, m0);
    for (std::size_t k = 0; k < distribution.lengths.size(); ++k)
        text += fmt::format("{},{}\n", distribution.lengths[k] * m0,
                            calculated(distribution, distribution.lengths[k]));
    return text;
}

}  // namespace app
