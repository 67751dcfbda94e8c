#include "app/sweep/sweep_grid.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <set>
#include <stdexcept>

namespace app {

namespace {

constexpr std::size_t most_cases = 10'000'000;

[[noreturn]] void refuse(const std::string& text)
{
    throw std::invalid_argument{
        fmt::format("--set {}: expected KEY=a:b:n, n values from a to b, n from 1 (a alone) upwards", text)};
}

template <typename Value>
Value take(std::string_view& rest, bool is_last, const std::string& text)
{
    Value value{};
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value);
    rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
    if (error != std::errc{} || (is_last ? !rest.empty() : !rest.starts_with(':'))) refuse(text);
    if (!is_last) rest.remove_prefix(1);
    return value;
}

}  // namespace

double SweepRange::value(std::size_t k) const
{
    if (k == 0) return from;
    if (k + 1 == count) return to;
    return from + (to - from) * (static_cast<double>(k) / static_cast<double>(count - 1));
}

std::string SweepRange::text() const
{
    return fmt::format("{}={}:{}:{}", key, from, to, count);
}

SweepRange parse_range(const std::string& text)
{
    const auto equals = text.rfind('=');
    if (equals == std::string::npos || equals == 0) refuse(text);
    SweepRange range;
    range.key = text.substr(0, equals);
    std::string_view rest = std::string_view{text}.substr(equals + 1);
    range.from = take<double>(rest, false, text);
    range.to = take<double>(rest, false, text);
    range.count = take<std::size_t>(rest, true, text);
    if (range.count < 1 || !std::isfinite(range.to - range.from)) refuse(text);
    return range;
}

SweepGrid::SweepGrid(std::vector<SweepRange> ranges) : ranges_(std::move(ranges))
{
    std::set<std::string> keys;
    for (const auto& range : ranges_) {
        if (!keys.insert(range.key).second)
            throw std::invalid_argument{"--set names " + range.key + " twice"};
        if (range.count > most_cases / size_)
            throw std::invalid_argument{fmt::format("the sweep has more than {} cases", most_cases)};
        size_ *= range.count;
    }
}

std::vector<Override> SweepGrid::overrides(std::size_t number) const
{
    std::vector<Override> all(ranges_.size());
    for (std::size_t r = ranges_.size(); r-- > 0;) {
        all[r] = {ranges_[r].key, ranges_[r].value(number % ranges_[r].count)};
        number /= ranges_[r].count;
    }
    return all;
}

}  // namespace app
