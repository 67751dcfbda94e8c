// Depth of the tables and arrays of a TOML text.
#pragma once

#include <optional>
#include <string_view>

#include "app/case/diagnostics.h"

namespace app {

inline constexpr std::size_t deepest_nesting = 200;

// Where tables and arrays are nested deeper than that, by brackets or by the parts of a key. For a text that
// is not TOML the place may lie in its part in error.
std::optional<SourcePosition> nested_too_deep(std::string_view text);

}  // namespace app
