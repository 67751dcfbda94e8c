// Raw access to the word array, which opens words to the address sanitizer and closes them.
#pragma once

#include "minihost/store_words.h"

namespace minihost::memory {

// An access to a closed word ends the program. Without the address sanitizer both do nothing.
void open(Position start, Int length);
void close(Position start, Int length);

void fill(Position start, Int length, Word value);
void copy(Position source, Position target, Int length);

// True when all words hold a value; reads closed words as well.
bool holds(Position start, Int length, Word value);

}  // namespace minihost::memory
