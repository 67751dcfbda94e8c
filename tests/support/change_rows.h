// Tables of tests as text, a row for each changed case and what the program then says of it:
//
//     OLD -> NEW & OLD -> NEW => LINE:COLUMN: TEXT => LINE:COLUMN: TEXT
//
// Indented lines continue a row, and lines with # are comments.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <regex>
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
    Texts all{first == std::string::npos ? "" : part.substr(first, part.find_last_not_of(' ') - first + 1)};
    if (at == std::string::npos) return all;
    for (auto& rest : parts(text.substr(at + separator.size()), separator)) all.push_back(std::move(rest));
    return all;
}

inline Texts rows(const std::string& table)
{
    auto all = parts(std::regex_replace(table, std::regex{"\n#.*|\n +"}, " "), "\n");
    std::erase(all, "");
    EXPECT_FALSE(all.empty());
    return all;
}

// A row has \n for the end of a line and \t for a tab.
inline std::string unescaped(const std::string& text)
{
    return std::regex_replace(std::regex_replace(text, std::regex{R"(\\n)"}, "\n"), std::regex{R"(\\t)"},
                              "\t");
}

// The text with the first `old` replaced; it has to be there.
inline std::string with(std::string text, const std::string& old, const std::string& replacement)
{
    const auto at = text.find(old);
    EXPECT_NE(at, std::string::npos) << old;
    return at == std::string::npos ? text : text.replace(at, old.size(), replacement);
}

inline std::string changed(std::string text, const std::string& change)
{
    const auto sides = parts(unescaped(change), "->");
    EXPECT_EQ(sides.size(), 2U) << change;
    return with(std::move(text), sides.front(), sides.back());
}

// Each row for the case `good`, whose file is c.toml.
inline void expect_each(const std::string& table, const std::string& good,
                        const std::function<Texts(const std::string&)>& diagnose,
                        const std::function<std::string(std::string, std::string)>& change = changed)
{
    for (const auto& row : rows(table)) {
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
