// libFuzzer target: an exception that leaves it is a finding.
#include <cstddef>
#include <cstdint>

#include "fuzz/text_cases.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    polyprops_fuzz::check_curve_text({reinterpret_cast<const char*>(bytes), size});
    return 0;
}
