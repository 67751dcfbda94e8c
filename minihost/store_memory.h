// Raw access to the word array, with what the address sanitizer is told about it.
#pragma once

#include "minihost/store_words.h"

namespace minihost::memory {

// The library may or may not touch these words; without the address sanitizer both do nothing.
void open(Position start, Int length);
void close(Position start, Int length);

// Open or close the whole array.
void open_all();
void close_all();

void fill(Position start, Int length, Word value);
void copy(Position source, Position target, Int length);

// True when all words hold a value; reads closed words as well.
bool holds(Position start, Int length, Word value);

}  // namespace minihost::memory
