// A name in a case file together with the place where it stands.
#pragma once

#include <string>

#include "app/case/diagnostics.h"

namespace app {

struct PlacedName {
    std::string id;
    SourcePosition source;
};

}  // namespace app
