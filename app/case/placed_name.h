// A name in a case file with its position.
#pragma once

#include <string>

#include "app/case/diagnostics.h"

namespace app {

struct PlacedName {
    std::string id;
    SourcePosition source;
};

}  // namespace app
