// What the fuzz targets run on arbitrary bytes, and the replay of their kept seeds as well. All throw
// std::logic_error when something does not hold; any other exception is a finding too.
#pragma once

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace polyprops_fuzz {

// A case, through its results, to every form of the report and every file.
void check_case_text(std::string_view text);

// `KEY=VALUE KEY=VALUE…` of the options of measured curves, a line end, and the curve, which is compared with
// a distribution and fitted.
void check_curve_text(std::string_view text);

// Functions of case.h: lines `KEY` and `KEY=VALUE`, eight at most, each of which reads or changes a number of
// one case and then of its results.
void check_keys(std::string_view lines);

// Functions of case.h, one call for each line: a letter for the function, a digit for the handle, and the
// argument. See interface_cases.cpp.
void check_calls(std::string_view lines);

// Polymer paragraphs, run through the check on a fenced store, and what must hold of the blocks that it
// built.
void check_paragraphs(std::string_view text);

// Every routine that does not write to the host. The first byte is the selector of the routines that have
// one; every eight after it are a real, for attributes, parameters and arguments in turn.
void check_routines(std::string_view bytes);

inline void require(bool holds, const char* what)
{
    if (!holds) throw std::logic_error(what);
}

// The first line, which the text loses.
inline std::string_view take_line(std::string_view& text)
{
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

}  // namespace polyprops_fuzz
