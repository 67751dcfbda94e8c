// The host's message channel: a level check, a buffer of ten lines of eighty characters, and its printing.
#pragma once

#include <algorithm>
#include <string_view>

#include "host/words.h"

namespace polyprops {

// The host's answer to a message about to be composed. Rules differ in whether any answer but 0 allows it, or
// only 1.
inline Int check_message_level(const NamePair& routine, Int severity, Int number)
{
    constexpr Int zero = 0;
    constexpr Int two = 2;
    const Int level = word(ST_GLOBAL, 8);
    return ST_ERROR_CHECK(routine.data(), &severity, &number, &word(ST_GLOBAL, 6), &level, &zero, &zero,
                          &two);
}

inline void print_message(Int lines)
{
    ST_PRINT_ERROR(&lines);
}

// One line of the buffer, blank at first; text beyond its end is cut off.
class MessageLine {
public:
    explicit MessageLine(Int line) : next_(ST_ERROUT + (line - 1) * length), end_(next_ + length)
    {
        std::fill(next_, end_, ' ');
    }

    void append(std::string_view text)
    {
        const auto shown = std::min(text.size(), static_cast<std::size_t>(end_ - next_));
        next_ = std::replace_copy(text.data(), text.data() + shown, next_, '\0', ' ');
    }
    void append(const NamePair& name)
    {
        const auto text = name.characters();
        append({text.data(), text.size()});
    }

private:
    static constexpr Int length = 80;

    char* next_;
    char* end_;
};

}  // namespace polyprops
