// The one place where toml++ is compiled. Constructors of its parse error copy a text and yet are declared
// noexcept: without memory they would end the process, so here they are compiled as functions that may throw.
#define TOML_IMPLEMENTATION
#include <toml++/impl/print_to_stream.h>
#include <toml++/impl/source_region.h>
#include <toml++/impl/std_except.h>

#ifdef __clang__
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define noexcept
#include <toml++/impl/parse_error.h>
#undef noexcept

#include <toml++/toml.h>
