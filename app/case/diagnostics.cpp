#include "app/case/diagnostics.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cctype>
#include <numeric>

#include "app/io/visible_text.h"

namespace app {

namespace {

// More names than these help nobody.
constexpr std::size_t longest_listing = 12;

bool same_letter(char a, char b)
{
    return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
}

// Edit distance: insertions, removals and replacements that make one text from the other.
std::size_t distance(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t replaced = diagonal + (same_letter(a[i], b[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

}  // namespace

std::string line(const Diagnostic& diagnostic, std::string_view file)
{
    const auto& [source, text, severity, own_file] = diagnostic;
    const auto shown_file = visible(own_file.empty() ? file : std::string_view{own_file});
    const auto shown_text = visible(text, severity == Severity::message);
    if (source.line == 0) return fmt::format("{}: {}", shown_file, shown_text);
    return fmt::format("{}:{}:{}: {}", shown_file, source.line, source.column, shown_text);
}

void Diagnostics::add(SourcePosition source, std::string_view text)
{
    found_.push_back({std::move(source), visible(text)});
}

std::vector<Diagnostic> Diagnostics::sorted() const
{
    auto sorted = found_;
    std::ranges::stable_sort(sorted, {}, &Diagnostic::source);
    return sorted;
}

std::vector<std::string> Diagnostics::lines(std::string_view file) const
{
    std::vector<std::string> lines;
    for (const auto& diagnostic : sorted()) lines.push_back(line(diagnostic, file));
    return lines;
}

std::string_view nearest(std::string_view seen, const std::vector<std::string_view>& candidates)
{
    std::string_view best;
    std::size_t best_distance = seen.size() / 3 + 2;
    for (const auto candidate : candidates) {
        const auto d = distance(seen, candidate);
        // A short name must not turn into another one of which it holds no letter.
        if (d < best_distance && d < candidate.size()) {
            best = candidate;
            best_distance = d;
        }
    }
    return best;
}

std::string suggestion(std::string_view seen, const std::vector<std::string_view>& candidates)
{
    if (const auto near = nearest(seen, candidates); !near.empty())
        return fmt::format("; did you mean \"{}\"?", near);
    if (candidates.empty() || candidates.size() > longest_listing) return {};
    return fmt::format("; expected one of {}", fmt::join(candidates, ", "));
}

}  // namespace app
