#include "app/case/input_message.h"

#include <fmt/format.h>

namespace app {

Diagnostic diagnostic(const InputMessage& placed)
{
    const auto& [source, hint, message] = placed;
    auto text =
        fmt::format("{} message {}, severity {}{}", message.routine, message.number, message.severity, hint);
    for (const auto& line : message.lines) text += "\n" + line;
    return {source, std::move(text), Severity::message};
}

}  // namespace app
