// Keys and values of a case by the functions of case.h. The fuzz target and the replay of its kept seeds
// share them.
#pragma once

#include <string_view>

namespace polyprops_fuzz {

// Lines `KEY` and `KEY=VALUE`, eight at most, each of which reads or changes a number of one case and then of
// its results. Throws std::logic_error when something does not hold.
void check_keys(std::string_view lines);

}  // namespace polyprops_fuzz
