#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "fuzz/paragraph_cases.h"

TEST(KeptSeeds, RunThroughTheParagraphCheck)
{
    int seeds = 0;
    for (const auto& entry : std::filesystem::directory_iterator(POLYPROPS_FUZZ_SEEDS)) {
        SCOPED_TRACE(entry.path());
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        EXPECT_NO_THROW(polyprops_fuzz::check_paragraphs(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                                         bytes.size()));
        ++seeds;
    }
    EXPECT_GT(seeds, 0) << "no seeds in " << POLYPROPS_FUZZ_SEEDS;
}
