// The library's input messages, each with the place in the case file that it is about.
#pragma once

#include <string>
#include <vector>

#include "app/case/case_model.h"
#include "minihost/message_log.h"

namespace app {

struct PlacedMessage {
    SourcePosition source;
    std::string hint;  // `; did you mean "ID"?` for an ID that no component has, empty otherwise
    minihost::Message message;
};

// Finds the places of the messages of one paragraph check and, after it, one catalyst scaling.
std::vector<PlacedMessage> place(const std::vector<minihost::Message>& messages, const Case& input);

// "ROUTINE message NUMBER, severity SEVERITY" and the lines of the message as they are.
Diagnostic diagnostic(const PlacedMessage& placed);

}  // namespace app
