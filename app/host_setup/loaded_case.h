// Puts a case into the embedded host, which the routines of the library then read.
#pragma once

#include <memory>

#include "app/case/case_model.h"
#include "app/host_setup/message_places.h"
#include "minihost/embedded_host.h"

namespace app {

struct CheckedInput {
    std::unique_ptr<minihost::Host> host;
    std::vector<PlacedMessage> messages;
};

// Makes a host with the components of the case, hands the polymer paragraph and the catalyst scaling to the
// library's checks, and says what they reported. The case must be free of errors. Only one host exists at a
// time. Throws minihost::Error for what it refuses.
CheckedInput check_input(const Case& input);

// Lays the streams into the host, but for values that do not fit what the checks left; the answer names them.
Diagnostics add_streams(const Case& input, const CheckedInput& checked);

}  // namespace app
