// libFuzzer target of the check that the build names: an exception that leaves it is a finding.
#include <cstddef>
#include <cstdint>

#include "fuzz/cases.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    polyprops_fuzz::POLYPROPS_FUZZ_CHECK({reinterpret_cast<const char*>(bytes), size});
    return 0;
}
