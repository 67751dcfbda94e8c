// The selector that routines hand on to the host with each question about an attribute.
#pragma once

#include "app/routines/component.h"

namespace app::routines {

inline constexpr Int selected_stream = 1;

}  // namespace app::routines
