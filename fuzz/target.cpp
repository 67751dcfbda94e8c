// libFuzzer target of the cases that the build names: an exception that leaves them is a finding.
#include <cstddef>
#include <cstdint>
#include POLYPROPS_FUZZ_HEADER

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    polyprops_fuzz::POLYPROPS_FUZZ_CHECK({reinterpret_cast<const char*>(bytes), size});
    return 0;
}
