// A name in a case file together with the place where it stands.
#pragma once

#include <string>

#include "cli/diagnostics.h"

namespace cli {

struct Reference {
    std::string id;
    Source source;
};

}  // namespace cli
