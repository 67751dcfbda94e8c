// Tables of tests as text, a row for each changed case and what the program then says of it:
//
//     OLD -> NEW & OLD -> NEW => LINE:COLUMN: TEXT => LINE:COLUMN: TEXT
//
// Indented lines continue a row, lines with # are comments, and \n in a change is the end of a line.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace support {

using Texts = std::vector<std::string>;

// The parts between separators, without blanks around them.
inline Texts parts(const std::string& text, const std::string& separator)
{
    const auto at = text.find(separator);
    const auto part = text.substr(0, at);
    const auto first = part.find_first_not_of(' ');
    Texts all{first == part.npos ? "" : part.substr(first, part.find_last_not_of(' ') - first + 1)};
    if (at == text.npos) return all;
    for (auto& rest : parts(text.substr(at + separator.size()), separator)) all.push_back(std::move(rest));
    return all;
}

// The text with the first `old` replaced; it has to be there.
inline std::string with(std::string text, const std::string& old, const std::string& replacement)
{
    const auto at = text.find(old);
    EXPECT_NE(at, std::string::npos) << old;
    return at == text.npos ? text : text.replace(at, old.size(), replacement);
}

// The text after one change of a row.
inline std::string changed(std::string text, std::string change)
{
    for (auto end = change.find("\\n"); end != change.npos; end = change.find("\\n"))
        change.replace(end, 2, "\n");
    const auto sides = parts(change, "->");
    EXPECT_EQ(sides.size(), 2U) << change;
    return with(std::move(text), sides.front(), sides.back());
}

using Change = std::function<std::string(std::string, std::string)>;
using Diagnose = std::function<Texts(const std::string&)>;

// Each row, with `good` as the case and c.toml as the name of its file.
inline void expect_each(const std::string& table, const std::string& good, const Diagnose& diagnose,
                        const Change& change = changed)
{
    Texts rows;
    std::istringstream lines{table};
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with(' '))
            rows.at(rows.size() - 1) += " " + parts(line, "\n").front();
        else if (!line.empty() && !line.starts_with('#'))
            rows.push_back(line);
    EXPECT_FALSE(rows.empty());
    for (const auto& row : rows) {
        SCOPED_TRACE(row);
        auto expected = parts(row, "=>");
        auto text = good;
        for (const auto& one : parts(expected.front(), "&")) text = change(text, one);
        expected.erase(expected.begin());
        for (auto& line : expected) line.insert(0, "c.toml:");
        EXPECT_EQ(diagnose(text), expected);
    }
}

}  // namespace support
