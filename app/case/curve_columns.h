// Two columns of numbers in a text file.
//
// The first line with two numbers sets the separator: `;`, `,` or blanks (tabs too). Blanks around numbers
// are free. With any separator but `,` a number may have a decimal comma.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace app {

struct ColumnPair {
    std::size_t line;  // from 1
    std::string_view text;
    double first;
    double second;
};

struct CurveColumns {
    std::vector<std::string> notes;  // lines before the first pair that hold no pair
    std::vector<ColumnPair> pairs;   // with views of the text
};

// A note begins with # or holds no two numbers next to each other, nor a number and one other word. Throws
// std::runtime_error with file and line for any other line without two numbers, and for numbers that are not
// finite.
CurveColumns read_columns(std::string_view text, const std::string& file);

// Throws std::runtime_error with file, line, the text of the line and the expectation.
[[noreturn]] void refuse_line(const std::string& file, std::size_t line, std::string_view seen,
                              std::string_view expected);

}  // namespace app
