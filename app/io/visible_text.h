// Text from outside, made fit for terminals and documents.
#pragma once

#include <string>
#include <string_view>

namespace app {

// True for control characters (line ends and tabs too) and for bytes that are no UTF-8.
bool has_control_characters(std::string_view text);

// Those characters as escapes, `\u001B` or `\xFF`; line feeds stay where `keeps_lines`. Marks that reverse
// the direction of writing are escaped too.
std::string visible(std::string_view text, bool keeps_lines = false);

// Bytes that are no UTF-8, and control characters but tabs and line ends, replaced by U+FFFD.
std::string readable(std::string_view text);

}  // namespace app
