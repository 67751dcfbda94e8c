// Every routine that does not write to the host, with arbitrary reals. The fuzz target and the replay of its
// kept seeds share them.
#pragma once

#include <string_view>

namespace polyprops_fuzz {

// The first byte is the selector of the routines that have one; every eight after it are a real, for
// attributes, parameters and arguments in turn. Throws std::logic_error when something does not hold.
void check_routines(std::string_view bytes);

}  // namespace polyprops_fuzz
