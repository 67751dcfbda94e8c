#include "app/case/curve_columns.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <stdexcept>
#include <utility>

#include "app/io/visible_text.h"

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

// Infinite for a number that cannot be kept; none for a field that is no number.
std::optional<double> number(std::string_view field, bool has_decimal_comma)
{
    std::string text{trimmed(field)};
    if (text.starts_with('+')) text.erase(0, 1);
    if (has_decimal_comma) std::ranges::replace(text, ',', '.');
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, value);
    if (error == std::errc::invalid_argument || rest != end) return {};
    return error == std::errc{} ? value : std::numeric_limits<double>::infinity();
}

std::vector<std::string_view> words(std::string_view line, char separator)
{
    std::vector<std::string_view> all;
    line = trimmed(line);
    while (true) {
        const auto at = separator == ' ' ? line.find_first_of(blanks) : line.find(separator);
        all.push_back(trimmed(line.substr(0, at)));
        if (at == std::string_view::npos) return all;
        line = trimmed(line.substr(at + 1));
    }
}

// The fields of a line as numbers, none for a field that is no number.
std::vector<std::optional<double>> fields(std::string_view line, char separator)
{
    std::vector<std::optional<double>> all;
    for (const auto word : words(line, separator)) all.push_back(number(word, separator != ','));
    return all;
}

bool are_numbers(const std::vector<std::optional<double>>& all)
{
    return std::ranges::all_of(all, [](const auto& field) { return field.has_value(); });
}

std::optional<Numbers> read_pair(std::string_view line, char separator)
{
    const auto all = fields(line, separator);
    if (all.size() != 2 || !are_numbers(all)) return {};
    return Numbers{*all[0], *all[1]};
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

// A comma comes before blanks: `1000, 5` are two whole numbers.
constexpr std::array separators{';', ',', ' '};

// Sets the separator if the line has two numbers by one.
std::optional<Numbers> read_first_pair(std::string_view line, char& separator)
{
    for (const char candidate : separators)
        if (const auto found = read_pair(line, candidate)) {
            separator = candidate;
            return found;
        }
    return {};
}

// What a line with another number of columns lacks; empty for any other text.
std::string more_columns(std::string_view line)
{
    for (const char separator : separators) {
        const auto all = fields(line, separator);
        const auto count = all.size();
        if (count < 3 || !are_numbers(all)) continue;
        return fmt::format(
            "two numbers, molecular weight and signal; the line has {} numbers{}", count,
            separator == ',' ? ", and decimal commas need `;`, tabs or blanks between columns" : "");
    }
    return {};
}

std::string expected_columns(std::string_view line, char separator)
{
    if (auto more = more_columns(line); !more.empty()) return more;
    return fmt::format("two numbers, molecular weight and signal, separated by {}",
                       separator == ' ' ? "blanks" : fmt::format("`{}`", separator));
}

// `10OO`, `$900` or nothing, but not `Sample`.
bool looks_like_number(std::string_view word)
{
    const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
    const auto is_letter = [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return std::isalpha(byte) != 0 || byte >= 0x80U;
    };
    return std::ranges::any_of(word, is_digit) || std::ranges::none_of(word, is_letter);
}

// A faulty line of the curve: one number, two next to each other, or one and a word that is or looks like
// another. `Flow rate, 1.0` is none.
bool is_faulty_pair(std::string_view line, char separator)
{
    const auto all = fields(line, separator);
    if (all.size() == 1) return all[0].has_value();
    if (all.size() == 2 && (all[0] || all[1])) return all[0] || looks_like_number(words(line, separator)[0]);
    const auto both = [](const auto& a, const auto& b) { return a && b; };
    return std::ranges::adjacent_find(all, both) != all.end();
}

bool is_note(std::string_view line)
{
    return trimmed(line).starts_with('#') ||
           std::ranges::none_of(separators, [&](char c) { return is_faulty_pair(line, c); });
}

std::string expected_note(std::string_view line)
{
    if (auto more = more_columns(line); !more.empty()) return more;
    return "two numbers, molecular weight and signal, or a note, which begins with # or holds no such line";
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
        if (found && !(std::isfinite(found->first) && std::isfinite(found->second)))
            refuse_line(file, line_number, line,
                        "finite numbers that are 0 or have a size from 2.3e-308 to 1.7e308");
        if (found)
            columns.pairs.push_back({line_number, line, found->first, found->second});
        else if (!columns.pairs.empty())
            refuse_line(file, line_number, line, expected_columns(line, separator));
        else if (is_note(line))
            columns.notes.emplace_back(line);
        else
            refuse_line(file, line_number, line, expected_note(line));
    }
    return columns;
}

void refuse_line(const std::string& file, std::size_t line, std::string_view seen, std::string_view expected)
{
    constexpr std::size_t longest = 120;
    const auto shown = seen.size() > longest ? visible(seen.substr(0, longest)) + "..." : visible(seen);
    throw std::runtime_error{fmt::format("{}:{}: \"{}\"; expected {}", visible(file), line, shown, expected)};
}

}  // namespace app
