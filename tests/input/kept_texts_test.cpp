#include <gtest/gtest.h>

#include "fuzz/text_cases.h"
#include "support/files.h"

TEST(KeptSeeds, RunFromTextsToReportsAndFiles)
{
    const std::pair<const char*, void (*)(std::string_view)> targets[] = {
        {"case", polyprops_fuzz::check_case_text}, {"curve", polyprops_fuzz::check_curve_text}};
    for (const auto& [name, check] : targets) {
        int seeds = 0;
        for (const auto& entry :
             std::filesystem::directory_iterator(std::filesystem::path{POLYPROPS_FUZZ_SEEDS} / name)) {
            SCOPED_TRACE(entry.path());
            EXPECT_NO_THROW(check(support::content(entry.path())));
            ++seeds;
        }
        EXPECT_GT(seeds, 0) << name;
    }
}
