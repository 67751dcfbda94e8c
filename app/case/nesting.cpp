// The parser and everything behind it recurse into values, so their depth is measured first, without
// recursion.
#include "app/case/nesting.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace app {

namespace {

constexpr std::string_view deepening = "[{.=";

class DepthScan {
public:
    explicit DepthScan(std::string_view text) : text_(text) {}

    std::optional<SourcePosition> run()
    {
        start_line();
        while (at_ < text_.size()) {
            const bool may_deepen = deepening.find(text_[at_]) != std::string_view::npos;
            take();
            if (may_deepen && level_.depth > deepest_nesting) return place();
        }
        return {};
    }

private:
    // Of the innermost open bracket, or of the line.
    struct Level {
        std::size_t depth = 0;
        bool is_key = true;  // before the `=`, where points separate parts
    };

    void take()
    {
        const char c = text_[at_];
        if (c == '"' || c == '\'') return skip_string(c);
        if (c == '#') return void(at_ = std::min(text_.find('\n', at_), text_.size()));
        skip_character();
        switch (c) {
            case '\n':
                if (open_.empty()) start_line();
                break;
            case '[':
            case '{':
                open(c);
                break;
            case ']':
            case '}':
                close();
                break;
            case '.':
                if (level_.is_key) ++level_.depth;
                break;
            case '=':
                level_.is_key = false;
                break;
            case ',':
                if (!open_.empty()) level_ = inner_;
                break;
            default:
                break;
        }
    }

    // A header `[a.b]` sets the depth of the lines below it.
    void start_line()
    {
        const auto first = std::min(text_.find_first_not_of(" \t", at_), text_.size());
        is_header_ = first < text_.size() && text_[first] == '[';
        if (is_header_) header_depth_ = 0;
        level_ = {is_header_ ? 0 : header_depth_ + 1, true};
    }

    void open(char bracket)
    {
        open_.emplace_back(level_, inner_);
        const bool is_name = is_header_ && open_.size() <= 2 && level_.is_key;
        inner_ = {level_.depth + 1, is_name || bracket == '{'};
        level_ = inner_;
    }

    void close()
    {
        if (open_.empty()) return;
        if (is_header_) header_depth_ = std::max(header_depth_, level_.depth);
        std::tie(level_, inner_) = open_.back();
        open_.pop_back();
        if (is_header_ && open_.empty()) is_header_ = false;
    }

    // Text of several lines ends with three of its quotes.
    void skip_string(char quote)
    {
        const std::string three(3, quote);
        const bool is_long = text_.substr(at_).starts_with(three);
        const auto end = is_long ? three : three.substr(0, 1);
        at_ += end.size();
        while (at_ < text_.size() && !text_.substr(at_).starts_with(end)) {
            if (text_[at_] == '\n' && !is_long) return;
            if (text_[at_] == '\\' && quote == '"') ++at_;
            skip_character();
        }
        at_ = std::min(at_ + end.size(), text_.size());
    }

    void skip_character()
    {
        if (at_ < text_.size() && text_[at_] == '\n') start_next_line();
        ++at_;
    }

    void start_next_line()
    {
        ++line_;
        line_start_ = at_ + 1;
    }

    SourcePosition place() const { return {line_, static_cast<std::uint32_t>(at_ - line_start_), {}}; }

    std::string_view text_;
    std::size_t at_ = 0;
    std::size_t line_start_ = 0;
    std::uint32_t line_ = 1;
    std::size_t header_depth_ = 0;
    bool is_header_ = false;
    Level level_;
    Level inner_;
    std::vector<std::pair<Level, Level>> open_;
};

}  // namespace

std::optional<SourcePosition> nested_too_deep(std::string_view text)
{
    return DepthScan{text}.run();
}

}  // namespace app
