#include "app/case/measured_curve.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <stdexcept>

#include "app/io/file_contents.h"

namespace app {

namespace {

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
    const auto molecular_weight = take_number(line);
    if (!molecular_weight || line.empty() || blanks.find(line.front()) == std::string_view::npos) return {};
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    if (line.starts_with(',')) line.remove_prefix(1);
    const auto signal = take_number(line);
    if (!signal || line.find_first_not_of(" \t\r") != std::string_view::npos) return {};
    return Pair{*molecular_weight, *signal};
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
void put_in_order(MeasuredCurve& curve, const std::string& file)
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
            "{}: molecular weight {} is followed by {}; expected molecular weights that all rise or all fall",
            file, *fault, *(fault + 1))};
}

}  // namespace

MeasuredCurve parse_measured_curve(std::string_view text, const std::string& file)
{
    MeasuredCurve curve;
    curve.file = file;
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

MeasuredCurve read_measured_curve(const std::filesystem::path& file)
{
    return parse_measured_curve(file_contents(file), file.string());
}

}  // namespace app
