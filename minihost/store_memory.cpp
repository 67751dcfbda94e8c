#include "minihost/store_memory.h"

#include <polyprops/host.h>

#include <algorithm>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define MINIHOST_ADDRESS_SANITIZER
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define MINIHOST_ADDRESS_SANITIZER
#endif

#ifdef MINIHOST_ADDRESS_SANITIZER
#include <sanitizer/asan_interface.h>
#endif

namespace minihost::memory {

void open([[maybe_unused]] Position start, [[maybe_unused]] Int length)
{
#ifdef MINIHOST_ADDRESS_SANITIZER
    ASAN_UNPOISON_MEMORY_REGION(ST_WORDS + start - 1, static_cast<std::size_t>(length) * sizeof(Word));
#endif
}

void close([[maybe_unused]] Position start, [[maybe_unused]] Int length)
{
#ifdef MINIHOST_ADDRESS_SANITIZER
    ASAN_POISON_MEMORY_REGION(ST_WORDS + start - 1, static_cast<std::size_t>(length) * sizeof(Word));
#endif
}

void fill(Position start, Int length, Word value)
{
    std::fill_n(ST_WORDS + start - 1, length, value);
}

void copy(Position source, Position target, Int length)
{
    std::copy_n(ST_WORDS + source - 1, length, ST_WORDS + target - 1);
}

// Called for guard words, which are closed: a plain loop, since a library call would be checked by the
// sanitizer.
__attribute__((no_sanitize("address"))) bool holds(Position start, Int length, Word value)
{
    for (Position p = start; p < start + length; ++p)
        if (ST_WORDS[p - 1] != value) return false;
    return true;
}

}  // namespace minihost::memory
