// Sequences of calls of case.h. The fuzz target and the replay of its kept seeds share them.
#pragma once

#include <string_view>

namespace polyprops_fuzz {

// One call for each line: a letter for the function, a digit for the handle, and the argument. See
// interface_cases.cpp. Throws std::logic_error when something does not hold.
void check_calls(std::string_view lines);

}  // namespace polyprops_fuzz
