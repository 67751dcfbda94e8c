// One of the library's input messages, with the place in the case file that it is about.
#pragma once

#include <string>

#include "app/case/diagnostics.h"
#include "minihost/message_log.h"

namespace app {

struct InputMessage {
    SourcePosition source;
    std::string hint;  // `; did you mean "ID"?` for an ID that no component has, empty otherwise
    minihost::Message message;
};

// "ROUTINE message NUMBER, severity SEVERITY" and the lines of the message as they are.
Diagnostic diagnostic(const InputMessage& placed);

}  // namespace app
