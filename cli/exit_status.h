// Exit statuses of the program.
#pragma once

namespace cli {

inline constexpr int exit_success = 0;
inline constexpr int exit_case_error = 1;
inline constexpr int exit_usage = 2;
inline constexpr int exit_interrupted = 130;

}  // namespace cli
