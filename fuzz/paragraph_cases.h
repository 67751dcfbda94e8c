// Polymer paragraphs from arbitrary bytes, run through the check on a fenced store, and what must hold of the
// blocks that it built. The fuzz target and the replay of its kept seeds share it.
#pragma once

#include <string_view>

namespace polyprops_fuzz {

// Throws when something does not hold: minihost::Error for what the host refuses, std::logic_error for the
// rest.
void check_paragraphs(std::string_view text);

}  // namespace polyprops_fuzz
