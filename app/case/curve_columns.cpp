#include "app/case/curve_columns.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <stdexcept>
#include <utility>

namespace app {

namespace {

constexpr std::string_view blanks = " \t";
constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

using Numbers = std::pair<double, double>;

std::string_view trimmed(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

std::optional<double> number(std::string_view field, bool has_decimal_comma)
{
    std::string text{trimmed(field)};
    if (text.starts_with('+')) text.erase(0, 1);
    if (has_decimal_comma) std::ranges::replace(text, ',', '.');
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc{} || rest != end || !std::isfinite(value)) return {};
    return value;
}

// The two numbers around the first separator; none when either field is no number.
std::optional<Numbers> read_pair(std::string_view line, char separator)
{
    line = trimmed(line);
    const auto at = separator == ' ' ? line.find_first_of(blanks) : line.find(separator);
    if (at == std::string_view::npos) return {};
    const auto first = number(line.substr(0, at), separator != ',');
    const auto second = number(line.substr(at + 1), separator != ',');
    if (!first || !second) return {};
    return Numbers{*first, *second};
}

std::vector<std::string_view> lines_of(std::string_view text)
{
    std::vector<std::string_view> lines;
    if (text.starts_with(byte_order_mark)) text.remove_prefix(byte_order_mark.size());
    while (!text.empty()) {
        auto line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
    }
    return lines;
}

// Sets the separator if the line has two numbers by one. A comma is tried before blanks: `1000, 5` are two
// whole numbers.
std::optional<Numbers> read_first_pair(std::string_view line, char& separator)
{
    for (const char candidate : {';', ',', ' '})
        if (const auto found = read_pair(line, candidate)) {
            separator = candidate;
            return found;
        }
    return {};
}

}  // namespace

CurveColumns read_columns(std::string_view text, const std::string& file)
{
    CurveColumns columns;
    char separator = 0;
    std::size_t line_number = 0;
    for (const auto line : lines_of(text)) {
        ++line_number;
        if (trimmed(line).empty()) continue;
        const auto found = separator == 0 ? read_first_pair(line, separator) : read_pair(line, separator);
        if (found)
            columns.pairs.push_back({line_number, line, found->first, found->second});
        else if (columns.pairs.empty())
            columns.notes.emplace_back(line);
        else
            refuse_line(file, line_number, line,
                        fmt::format("two numbers, molecular weight and signal, separated by {}",
                                    separator == ' ' ? "blanks" : fmt::format("`{}`", separator)));
    }
    return columns;
}

void refuse_line(const std::string& file, std::size_t line, std::string_view seen, std::string_view expected)
{
    throw std::runtime_error{fmt::format("{}:{}: \"{}\"; expected {}", file, line, seen, expected)};
}

}  // namespace app
