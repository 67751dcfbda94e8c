#include <gtest/gtest.h>

#include "fuzz/paragraph_cases.h"
#include "support/files.h"

TEST(KeptSeeds, RunThroughTheParagraphCheck)
{
    int seeds = 0;
    for (const auto& entry : std::filesystem::directory_iterator(POLYPROPS_FUZZ_SEEDS "/paragraphs")) {
        SCOPED_TRACE(entry.path());
        const std::string bytes = support::content(entry.path());
        EXPECT_NO_THROW(polyprops_fuzz::check_paragraphs(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                                         bytes.size()));
        ++seeds;
    }
    EXPECT_GT(seeds, 0) << "no seeds in " << POLYPROPS_FUZZ_SEEDS;
}
