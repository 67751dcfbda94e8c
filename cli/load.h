// Puts a case into the embedded host, which the routines of the library then read.
#pragma once

#include <memory>

#include "cli/case.h"
#include "minihost/host.h"

namespace cli {

// The case must be free of errors. Only one host exists at a time. Throws minihost::Error for what it
// refuses.
std::unique_ptr<minihost::Host> load(const Case& input);

}  // namespace cli
