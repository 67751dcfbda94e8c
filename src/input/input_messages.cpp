#include "input/input_messages.h"

namespace polyprops::input {

namespace {

constexpr std::string_view margin = "      ";

void compose_line(Int line, std::string_view text, const NamePair& first, const NamePair& second)
{
    constexpr std::size_t mark_length = 3;
    MessageLine out{line};
    out.append(margin);
    for (auto mark = text.find('{'); mark != std::string_view::npos; mark = text.find('{')) {
        out.append({text.data(), mark});
        out.append(text[mark + 1] == '1' ? first : second);
        text.remove_prefix(mark + mark_length);
    }
    out.append(text);
}

}  // namespace

bool report(const Message& message, const NamePair& first, const NamePair& second)
{
    const Int answer = check_message_level(message.routine, message.severity, message.number);
    const bool composed = message.compose == Compose::when_exactly_one ? answer == 1 : answer != 0;
    const Int lines = message.line_count();
    for (Int line = 1; composed && line <= lines; ++line)
        compose_line(line, message.lines[static_cast<std::size_t>(line - 1)], first, second);
    if (composed || message.print == Print::always) print_message(lines);
    return composed;
}

}  // namespace polyprops::input
