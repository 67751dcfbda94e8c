#include "minihost/message_log.h"

#include <polyprops/host.h>

#include <algorithm>

#include "minihost/error.h"

namespace minihost {
namespace {

constexpr Int buffer_lines = 10;
constexpr Int line_length = 80;

// A message must blank the lines that it does not write; marks show where it did not.
void mark_buffer_unwritten()
{
    std::fill_n(ST_ERROUT, buffer_lines * line_length, '#');
}

std::string buffer_line(Int line)
{
    std::string text(ST_ERROUT + line_length * line, static_cast<std::size_t>(line_length));
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

}  // namespace

MessageLog::MessageLog()
{
    mark_buffer_unwritten();
}

void MessageLog::set_level(Int level)
{
    ST_GLOBAL[6 - 1] = level;
}

Int MessageLog::check(const std::string& routine, Int severity, Int number, Int level)
{
    if (severity != 1 && severity != 2)
        throw Error("message " + std::to_string(number) + " of " + routine + " has severity " +
                    std::to_string(severity) + "; expected 1 or 2");
    pending_ = {.routine = routine, .severity = severity, .number = number};
    const auto fixed = answers_.find(number);
    const Int result = fixed != answers_.end() ? fixed->second : (severity <= level ? 1 : 0);
    composed_ = result != 0;
    return result;
}

void MessageLog::print(Int line_count)
{
    if (pending_.number == 0) throw Error("a message was printed without a check of its level");
    if (line_count < 1 || line_count > buffer_lines)
        throw Error("a message of " + std::to_string(line_count) + " lines was printed; expected 1 to 10");
    if (!composed_) {
        ++prints_of_suppressed_;
        return;
    }
    for (Int line = 0; line < line_count; ++line) pending_.lines.push_back(buffer_line(line));
    printed_.push_back(std::move(pending_));
    pending_ = {};
    mark_buffer_unwritten();
}

void MessageLog::clear()
{
    printed_.clear();
    pending_ = {};
    prints_of_suppressed_ = 0;
}

}  // namespace minihost
