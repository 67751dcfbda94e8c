// The message channel: a level check, a buffer of 10 lines of 80 characters, and the messages printed from
// it.
//
// Severity 1 is severer than 2. A message is printed when its severity is at most the printed level, word
// 6 of ST_GLOBAL.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "minihost/store_words.h"

namespace minihost {

struct Message {
    std::string routine;
    Int severity = 0;
    Int number = 0;
    std::vector<std::string> lines = {};  // as composed, without trailing blanks; six blanks lead each line
};

class MessageLog {
public:
    MessageLog();

    // Messages of a severity up to this one are printed; 0 prints none.
    void set_level(Int level);

    // Makes the check of a message number give this answer, whatever its severity: 0 suppresses the message.
    void answer(Int number, Int result) { answers_[number] = result; }
    void suppress(Int number) { answer(number, 0); }

    // Answers a level check and remembers which message it was about.
    Int check(const std::string& routine, Int severity, Int number, Int level);

    // Prints lines from the start of the buffer, unless the message was suppressed. Throws Error for a line
    // count outside 1..10 and when no check was made before.
    void print(Int line_count);

    const std::vector<Message>& printed() const { return printed_; }

    // How often a print was asked for after a check that had suppressed the message.
    Int prints_of_suppressed() const { return prints_of_suppressed_; }
    void clear();

private:
    std::map<Int, Int> answers_;
    std::vector<Message> printed_;
    Message pending_;
    bool composed_ = false;
    Int prints_of_suppressed_ = 0;
};

}  // namespace minihost
