// The one place where toml++ is compiled.
#define TOML_IMPLEMENTATION
#include <toml++/toml.h>
