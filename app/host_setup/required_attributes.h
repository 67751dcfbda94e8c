// Attributes that a flowing polymer carries and its stream has to give.
#pragma once

#include "app/case/case_model.h"
#include "minihost/embedded_host.h"

namespace app {

// An error for each attribute that is absent and without which a result would be wrong.
void check_required_attributes(const Case& input, const Stream& stream, const Flow& polymer,
                               minihost::Host& host, Diagnostics& diagnostics);

}  // namespace app
