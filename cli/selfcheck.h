// The command `selfcheck`: does this build give known answers, and what to paste into a bug report.
#pragma once

#include <cstdio>

namespace cli {

int selfcheck(std::FILE* out);

}  // namespace cli
