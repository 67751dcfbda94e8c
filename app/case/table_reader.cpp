#include "app/case/table_reader.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <sstream>

#include "app/io/visible_text.h"

namespace app {

namespace {

SourcePosition place(const toml::source_region& region, const std::string& path)
{
    return {region.begin.line, region.begin.column, path};
}

}  // namespace

namespace {

// A name in quotes, its own quotes and backslashes escaped.
std::string quoted(std::string_view name)
{
    std::string text = "\"";
    for (const char c : name) {
        if (c == '"' || c == '\\') text += '\\';
        text += c;
    }
    return text + '"';
}

}  // namespace

std::string joined(const std::string& path, std::string_view key)
{
    const bool bare = !key.empty() && std::ranges::all_of(key, [](char c) {
        return std::isalnum(static_cast<unsigned char>(c)) || c == '-' || c == '_';
    });
    const std::string shown = bare ? std::string{key} : quoted(key);
    return path.empty() ? shown : path + "." + shown;
}

namespace {

std::string quoted_start(std::string text)
{
    constexpr std::size_t longest = 40;
    if (text.size() > longest) {
        auto end = longest - 3;
        while ((static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) --end;  // no part of a character
        text = text.substr(0, end) + "...";
    }
    return fmt::format("\"{}\"", text);
}

// The value as the file shows it, kept short.
std::string shown(const toml::node& node)
{
    if (node.is_table()) return "a table";
    if (node.is_array()) return "an array";
    if (const auto* number = node.as_floating_point()) return fmt::format("{}", number->get());
    if (const auto* text = node.as_string()) return quoted_start(text->get());
    std::ostringstream out;
    out.exceptions(std::ios::badbit);  // exhausted memory must not shorten the text
    node.visit([&](const auto& value) { out << value; });
    return out.str();
}

std::string_view expectation(Range range)
{
    if (range == Range::any) return "a finite number";
    return range == Range::positive ? "a finite number greater than 0" : "a finite number, 0 or greater";
}

std::string expectation(WholeRange range)
{
    const WholeRange any;
    if (range.least == any.least) return "a whole number";
    return fmt::format("a whole number from {} to {}", range.least, range.greatest);
}

bool fits(double value, Range range)
{
    if (!std::isfinite(value)) return false;
    return range == Range::any || (range == Range::positive ? value > 0 : value >= 0);
}

// A real without a position replaced a whole number of the file, and may be whole again.
std::optional<std::int64_t> whole_number_of(const toml::node& node)
{
    constexpr double largest_exact = 9007199254740992.0;
    if (const auto* value = node.as_integer()) return value->get();
    const auto* real = node.as_floating_point();
    const double value = real ? real->get() : 0.5;
    if (node.source().begin || std::trunc(value) != value || !(std::abs(value) < largest_exact)) return {};
    return static_cast<std::int64_t>(value);
}

void report(const Entry& entry, std::string_view expected, Diagnostics& diagnostics)
{
    diagnostics.add(entry.source,
                    fmt::format("{} is {}; expected {}", entry.path, shown(*entry.node), expected));
}

}  // namespace

std::optional<double> read_number(const Entry& entry, Range range, Diagnostics& diagnostics)
{
    auto value = entry.node->value_exact<double>();
    if (const auto whole = entry.node->value_exact<std::int64_t>()) value = static_cast<double>(*whole);
    if (value && fits(*value, range)) return value;
    report(entry, expectation(range), diagnostics);
    return {};
}

std::optional<std::int64_t> read_whole_number(const Entry& entry, WholeRange range, Diagnostics& diagnostics)
{
    const auto value = whole_number_of(*entry.node);
    if (value && *value >= range.least && *value <= range.greatest) return value;
    report(entry, expectation(range), diagnostics);
    return {};
}

namespace {

std::optional<std::string> read_title(const Entry& entry, Diagnostics& diagnostics)
{
    if (const auto* value = entry.node->as_string()) return value->get();
    report(entry, "a text in quotes", diagnostics);
    return {};
}

constexpr std::string_view one_line = "a text of one line without control characters";

}  // namespace

std::optional<std::string> read_text(const Entry& entry, Diagnostics& diagnostics)
{
    auto text = read_title(entry, diagnostics);
    if (!text || !has_control_characters(*text)) return text;
    report(entry, one_line, diagnostics);
    return {};
}

std::optional<TableReader> read_table(const Entry& entry, Diagnostics& diagnostics)
{
    if (const auto* table = entry.node->as_table())
        return TableReader{*table, entry.path, entry.source, diagnostics};
    report(entry, "a table", diagnostics);
    return {};
}

std::vector<Entry> read_array(const Entry& entry, Diagnostics& diagnostics, std::string_view content)
{
    const auto* array = entry.node->as_array();
    if (!array) {
        report(entry, "an array", diagnostics);
        return {};
    }
    if (array->empty() && !content.empty())
        diagnostics.add(entry.source, fmt::format("{} is empty; expected {}", entry.path, content));
    std::vector<Entry> elements;
    for (const auto& node : *array) {
        const auto path = fmt::format("{}[{}]", entry.path, elements.size() + 1);
        // An element that replaced one of the file has no position of its own.
        const auto& from = node.source().begin ? node.source() : entry.node->source();
        elements.push_back({{}, path, place(from, path), &node});
    }
    return elements;
}

TableReader::TableReader(const toml::table& table, std::string path, SourcePosition source,
                         Diagnostics& diagnostics)
    : table_(&table),
      path_(std::move(path)),
      source_(std::move(source)),
      diagnostics_(&diagnostics),
      reported_before_(diagnostics.size())
{
}

std::optional<Entry> TableReader::entry(std::string_view key)
{
    if (std::ranges::find(asked_, key) == asked_.end()) asked_.emplace_back(key);
    const auto found = table_->find(key);
    if (found == table_->end()) return {};
    const auto path = joined(path_, key);
    return Entry{std::string{key}, path, place(found->first.source(), path), &found->second};
}

std::optional<double> TableReader::number(std::string_view key, Range range)
{
    const auto found = entry(key);
    return found ? read_number(*found, range, *diagnostics_) : std::nullopt;
}

std::optional<std::int64_t> TableReader::whole_number(std::string_view key, WholeRange range)
{
    const auto found = entry(key);
    return found ? read_whole_number(*found, range, *diagnostics_) : std::nullopt;
}

std::optional<std::string> TableReader::text(std::string_view key)
{
    const auto found = entry(key);
    return found ? read_text(*found, *diagnostics_) : std::nullopt;
}

std::optional<std::string> TableReader::title(std::string_view key)
{
    const auto found = entry(key);
    return found ? read_title(*found, *diagnostics_) : std::nullopt;
}

std::optional<TableReader> TableReader::table(std::string_view key)
{
    const auto found = entry(key);
    return found ? read_table(*found, *diagnostics_) : std::nullopt;
}

std::vector<Entry> TableReader::array(std::string_view key, std::string_view content)
{
    const auto found = entry(key);
    return found ? read_array(*found, *diagnostics_, content) : std::vector<Entry>{};
}

void TableReader::missing(std::string_view key, std::string_view expected)
{
    if (table_->contains(key)) return;
    const auto path = joined(path_, key);
    diagnostics_->add({source_.line, source_.column, path},
                      fmt::format("{} is missing; expected {}", path, expected));
}

std::optional<double> TableReader::required_number(std::string_view key, Range range)
{
    const auto value = number(key, range);
    if (!value) missing(key, expectation(range));
    return value;
}

std::optional<std::int64_t> TableReader::required_whole_number(std::string_view key, WholeRange range)
{
    const auto value = whole_number(key, range);
    if (!value) missing(key, expectation(range));
    return value;
}

std::optional<std::string> TableReader::required_text(std::string_view key)
{
    auto value = text(key);
    if (!value) missing(key, "a text in quotes");
    return value;
}

std::vector<Entry> TableReader::required_array(std::string_view key, std::string_view content)
{
    missing(key, fmt::format("an array of {}", content));
    return array(key, content);
}

std::vector<Entry> TableReader::entries()
{
    std::vector<Entry> all;
    for (const auto& [key, node] : *table_) {
        const auto path = joined(path_, key.str());
        all.push_back({std::string{key.str()}, path, place(key.source(), path), &node});
    }
    std::ranges::stable_sort(all, {}, &Entry::source);
    for (const auto& found : all) {
        asked_.push_back(found.key);
        if (has_control_characters(found.key))
            diagnostics_->add(found.source,
                              fmt::format("the name {} is no {}", quoted(found.key), one_line.substr(2)));
    }
    return all;
}

bool TableReader::finish()
{
    const bool is_whole = diagnostics_->size() == reported_before_;
    finish_part();
    return is_whole;
}

void TableReader::finish_part()
{
    const std::vector<std::string_view> known(asked_.begin(), asked_.end());
    for (const auto& [key, node] : *table_) {
        if (std::ranges::find(known, key.str()) != known.end()) continue;
        diagnostics_->add(place(key.source(), joined(path_, key.str())),
                          fmt::format("unknown key \"{}\"{}", key.str(), suggestion(key.str(), known)));
    }
}

}  // namespace app
