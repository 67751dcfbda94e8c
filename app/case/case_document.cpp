#include "app/case/case_document.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <stdexcept>

#include "app/case/case_reader.h"
#include "app/case/nesting.h"
#include "app/io/file_contents.h"
#include "app/io/visible_text.h"

namespace app {

namespace {

[[noreturn]] void refuse(std::string_view key, std::string_view why)
{
    throw std::invalid_argument{fmt::format("the key \"{}\" {}", visible(key), visible(why))};
}

// Takes the key part by part: names, and numbers of array elements.
class KeyPath {
public:
    explicit KeyPath(std::string_view key) : key_(key), rest_(key) {}

    bool at_end() const { return rest_.empty(); }

    std::optional<std::size_t> take_element()
    {
        if (!rest_.starts_with('[')) return {};
        std::size_t number = 0;
        const auto close = rest_.find(']');
        const auto [end, error] = std::from_chars(rest_.data() + 1, rest_.data() + rest_.size(), number);
        if (close == std::string_view::npos || error != std::errc{} || end != rest_.data() + close ||
            number < 1)
            refuse(key_, "has no element number from 1 in its brackets");
        rest_.remove_prefix(close + 1);
        return number;
    }

    std::string_view take_name()
    {
        if (rest_.starts_with('.')) rest_.remove_prefix(1);
        if (rest_.starts_with('"')) return take_quoted();
        const auto name = rest_.substr(0, rest_.find_first_of(".["));
        if (name.empty()) refuse(key_, "has an empty part");
        rest_.remove_prefix(name.size());
        return name;
    }

private:
    std::string_view take_quoted()
    {
        auto close = rest_.find_first_of("\"\\", 1);
        while (close != std::string_view::npos && rest_[close] == '\\')
            close = rest_.find_first_of("\"\\", close + 2);
        if (close == std::string_view::npos) refuse(key_, "has an open quote");
        const auto name = rest_.substr(1, close - 1);
        rest_.remove_prefix(close + 1);
        return name.find('\\') == std::string_view::npos ? name : unescaped(name);
    }

    std::string_view unescaped(std::string_view name)
    {
        unescaped_.clear();
        for (std::size_t i = 0; i < name.size(); ++i) unescaped_ += name[i] == '\\' ? name[++i] : name[i];
        return unescaped_;
    }

    std::string_view key_;
    std::string_view rest_;
    std::string unescaped_;  // the last name with escaped characters
};

// A number written without a point may become one with it, in its place in its table or array. It stays one:
// to put an earlier value back takes no memory.
void assign(toml::node& parent, toml::node& seen, double value)
{
    constexpr double largest_exact = 9007199254740992.0;
    if (auto* real = seen.as_floating_point())
        *real = value;
    else if (std::trunc(value) == value && std::abs(value) < largest_exact)
        *seen.as_integer() = static_cast<std::int64_t>(value);
    else if (auto* array = parent.as_array())
        array->replace(std::ranges::find_if(*array, [&](const auto& node) { return &node == &seen; }), value);
    else
        for (auto&& [key, node] : *parent.as_table())
            if (&node == &seen) return void(parent.as_table()->insert_or_assign(key, value));
}

toml::node* child(toml::node& node, KeyPath& path)
{
    if (const auto element = path.take_element()) {
        auto* array = node.as_array();
        return array ? array->get(*element - 1) : nullptr;
    }
    auto* table = node.as_table();
    return table ? table->get(path.take_name()) : nullptr;
}

// Null when the key leads to no number.
toml::node* find_number(toml::table& root, const std::string& key, toml::node*& parent)
{
    KeyPath path{key};
    parent = &root;
    toml::node* node = &root;
    while (node && !path.at_end()) node = child(*(parent = node), path);
    return node && node->is_number() ? node : nullptr;
}

void collect(const toml::node& node, const std::string& key, std::vector<SourcePosition>& found)
{
    if (node.is_number()) {
        const auto at = node.source().begin;
        found.push_back({at.line, at.column, key});
    } else if (const auto* table = node.as_table()) {
        for (const auto& [name, value] : *table) collect(value, joined(key, name.str()), found);
    } else if (const auto* array = node.as_array()) {
        std::size_t number = 0;
        for (const auto& element : *array) collect(element, fmt::format("{}[{}]", key, ++number), found);
    }
}

// A text that no parser should see.
void check_size(std::string_view text, Diagnostics& diagnostics)
{
    if (text.size() > largest_input)
        diagnostics.add(no_position(), "the text has " + too_large(text.size()));
    else if (const auto at = nested_too_deep(text))
        diagnostics.add(*at,
                        fmt::format("tables and arrays are nested more than {0} deep; expected {0} at most",
                                    deepest_nesting));
}

}  // namespace

CaseDocument::CaseDocument(std::string_view text, std::string file) : file_(std::move(file))
{
    check_size(text, syntax_errors_);
    if (!syntax_errors_.empty()) return;
    try {
        root_ = toml::parse(text);
    } catch (const toml::parse_error& error) {
        const auto at = error.source().begin;
        syntax_errors_.add({at.line, at.column}, fmt::format("{}", error.description()));
    }
}

CaseDocument CaseDocument::from_file(const std::filesystem::path& file)
{
    return {input_file_contents(file), file.string()};
}

std::vector<std::string> CaseDocument::keys() const
{
    std::vector<SourcePosition> found;
    collect(root_, "", found);
    std::ranges::stable_sort(found);
    std::vector<std::string> keys;
    keys.reserve(found.size());
    for (auto& at : found) keys.push_back(std::move(at.key));
    return keys;
}

toml::node& CaseDocument::find(const std::string& key, toml::node*& parent) const
{
    if (auto* node = find_number(root_, key, parent)) return *node;
    const auto known = keys();
    const auto near = nearest(key, {known.begin(), known.end()});
    refuse(key, near.empty() ? "leads to no number of the case"
                             : fmt::format("leads to no number of the case; did you mean \"{}\"?", near));
}

double CaseDocument::number(const std::string& key) const
{
    toml::node* parent = nullptr;
    return *find(key, parent).value<double>();
}

void CaseDocument::set_number(const std::string& key, double value)
{
    toml::node* parent = nullptr;
    auto& node = find(key, parent);
    assign(*parent, node, value);
}

Case CaseDocument::read(Diagnostics& diagnostics) const
{
    diagnostics = syntax_errors_;
    if (diagnostics.empty()) return read_case(root_, file_, diagnostics);
    Case failed;
    failed.file = file_;
    return failed;
}

}  // namespace app
