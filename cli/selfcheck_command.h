// The command `selfcheck`: does this build give known answers, and the versions that a bug report needs.
#pragma once

#include <cstdio>

namespace cli {

int selfcheck(std::FILE* out);

}  // namespace cli
