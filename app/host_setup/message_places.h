// Finds the places of the library's input messages in the case file.
#pragma once

#include <vector>

#include "app/case/case_model.h"
#include "app/case/input_message.h"

namespace app {

// Of the messages of one paragraph check and, after it, one catalyst scaling.
std::vector<InputMessage> place(const std::vector<minihost::Message>& messages, const Case& input);

}  // namespace app
