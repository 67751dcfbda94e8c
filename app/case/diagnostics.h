// Errors and warnings of a case, each at the position in the file where a reader can correct it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace app {

// A position in the text of a case: line and column from 1, and the key found there, such as
// `streams.FEED.attributes.PS.ZMOM`. Positions are ordered by line and column. Line 0: no position.
struct SourcePosition {
    std::uint32_t line = 1;
    std::uint32_t column = 1;
    std::string key = {};

    friend bool operator==(const SourcePosition& a, const SourcePosition& b)
    {
        return a.line == b.line && a.column == b.column;
    }
    friend auto operator<=>(const SourcePosition& a, const SourcePosition& b)
    {
        return std::pair{a.line, a.column} <=> std::pair{b.line, b.column};
    }
};

// A message is one of the library's own input messages; like an error it sets the exit status.
enum class Severity { error, message, warning };

struct Diagnostic {
    SourcePosition source;
    std::string text;  // a message has several lines
    Severity severity = Severity::error;
    std::string file = {};  // empty: the file of the case
};

inline SourcePosition no_position(std::string key = {})
{
    return {0, 0, std::move(key)};
}

// "FILE:LINE:COLUMN: TEXT", without position "FILE: TEXT", fit for a terminal. `file` is that of the case.
std::string line(const Diagnostic& diagnostic, std::string_view file);

class Diagnostics {
public:
    // Control characters of the file are shown as escapes.
    void add(SourcePosition source, std::string_view text);
    bool empty() const { return found_.empty(); }
    std::size_t size() const { return found_.size(); }

    // In the order of the file.
    std::vector<Diagnostic> sorted() const;
    std::vector<std::string> lines(std::string_view file) const;

private:
    std::vector<Diagnostic> found_;
};

// The candidate that `seen` was probably meant to be, letter case aside; empty when none is near.
std::string_view nearest(std::string_view seen, const std::vector<std::string_view>& candidates);

// `; did you mean "NEAREST"?`, or `; expected one of A, B` when none is near and the candidates are few.
std::string suggestion(std::string_view seen, const std::vector<std::string_view>& candidates);

}  // namespace app
