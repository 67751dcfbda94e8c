// libFuzzer target: an exception that leaves it is a finding.
#include <cstddef>
#include <cstdint>

#include "fuzz/key_cases.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    polyprops_fuzz::check_keys({reinterpret_cast<const char*>(bytes), size});
    return 0;
}
