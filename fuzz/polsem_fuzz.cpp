// libFuzzer target: an exception that leaves it is a finding.
#include "fuzz/paragraph_cases.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    polyprops_fuzz::check_paragraphs(bytes, size);
    return 0;
}
