// What is wrong with a case, each finding at the place in the file where a reader can mend it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace app {

// Line and column of a case file, both from 1.
struct SourcePosition {
    std::uint32_t line = 1;
    std::uint32_t column = 1;
    // NOLINTNEXTLINE(modernize-use-nullptr): the linter takes the generated comparison with 0 for a pointer
    auto operator<=>(const SourcePosition&) const = default;
};

struct Diagnostic {
    SourcePosition source;
    std::string text;
};

class Diagnostics {
public:
    void add(SourcePosition source, std::string text) { found_.push_back({source, std::move(text)}); }
    bool empty() const { return found_.empty(); }

    // One line "FILE:LINE:COLUMN: TEXT" for each finding, in the order of the file.
    std::vector<std::string> lines(std::string_view file) const;

private:
    std::vector<Diagnostic> found_;
};

// The candidate that `seen` was probably meant to be, letter case aside; empty when none is near.
std::string_view nearest(std::string_view seen, const std::vector<std::string_view>& candidates);

// `; did you mean "NEAREST"?`, or `; expected one of A, B` when none is near and the candidates are few.
std::string suggestion(std::string_view seen, const std::vector<std::string_view>& candidates);

}  // namespace app
