// A host whose services fail: the k-th call ends in an error, for every k, and the run goes on after it.

#include <cstdlib>

#include "input/checked_paragraph.h"
#include "support/every_routine.h"
#include "support/refusal.h"

// Names of the C library and of the sanitizer.
// NOLINTBEGIN(*-reserved-identifier, readability-identifier-naming, readability-inconsistent-*)
#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wreserved-identifier"
#endif

// The check frees its scratch memory at its end, which a host that unwinds past it prevents.
extern "C" __attribute__((weak)) void __lsan_disable();
extern "C" __attribute__((weak)) void __lsan_enable();

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool memory_can_fail = false;
static int allocations_until_failure;
#else
constexpr bool memory_can_fail = true;
static int allocations_until_failure = 0;  // 0: none fails

extern "C" void* __libc_calloc(std::size_t count, std::size_t size);
extern "C" void* calloc(std::size_t count, std::size_t size)
{
    if (allocations_until_failure > 0 && --allocations_until_failure == 0) return nullptr;
    return __libc_calloc(count, size);
}
#endif
#ifdef __clang__
#pragma clang diagnostic pop
#endif
// NOLINTEND(*-reserved-identifier, readability-identifier-naming, readability-inconsistent-*)

using namespace support;
using namespace minihost;

namespace {

// Runs the action with its k-th call of a service failing. False when it makes fewer calls.
bool fails_at(Int k, const std::function<void()>& action)
{
    ServiceLog log;
    log.fail_at(k);
    if (__lsan_disable) __lsan_disable();
    const std::string refused = refusal(action);
    if (__lsan_enable) __lsan_enable();
    if (log.count() < k) return false;
    EXPECT_EQ(refused, log.calls().back().service + " fails");
    return true;
}

const std::vector<Sentence> everything{
    PolymerSentence{{"P", "NYLON", "Q"}},
    SegmentSentence{{{"E", 1}, {"A", 2}, {"B", 3}, {"X", 4}}},
    OligomerSentence{{{"O", "A", 2}, {"", "B", 1}, {"R", "X", 1}}},
    CatalystSentence{{{"K", 1.5}, {"X", 1}}},
    SiteSentence{2, {1, 2, 3}, 0.5},
    AttributeSentence{{{"P", {"ZMOM", "SFLOW"}}, {"Q", {"ZMOM"}}, {"K", {"CPSFLOW", "CVSFLOW"}}}},
    DistributionSentence{{{"P", 4, {1, 2, 3}, 0.5}, {"X", 1, {0, 0, 0}, 0}}},
    InitiatorSentence{{"I", "X"}}};

// Of what it reserves, the paragraph keeps reals only for the four sentences that may hold some.
TEST(Sentences, OfNamesAndIntegersAreCopiedWithoutReals)
{
    const auto blocks_with_reals = [](const std::vector<Sentence>& sentences) {
        CheckedParagraph world;
        const ServiceLog log;
        world.check(sentences);
        return log.count("ST_ALLOC_M");
    };
    const auto without = blocks_with_reals({everything[0], everything[1], everything[5], everything[7]});
    EXPECT_EQ(without + 4, blocks_with_reals(everything));
    EXPECT_EQ(without, 4);
}

// What the paragraph leaves behind, without the ids of its blocks.
auto outcome(CheckedParagraph& world)
{
    return std::tuple(world.lists(), world.message_numbers(), world.forwarded());
}

TEST(FailingServices, LeaveAParagraphThatCanBeCheckedAgain)
{
    const auto expected = [] {
        CheckedParagraph world;
        EXPECT_EQ(world.check(everything), 0);
        return outcome(world);
    }();
    const std::vector<Sentence> smaller{PolymerSentence{{"P"}}, SegmentSentence{{{"A", 2}}},
                                        OligomerSentence{{{"O", "A", 2}}}, CatalystSentence{{{"K", 1}}}};
    for (const auto& before : {std::vector<Sentence>{}, smaller}) {
        bool failed = true;
        for (Int k = 1; failed; ++k) {
            SCOPED_TRACE("call " + std::to_string(k));
            CheckedParagraph world;
            if (!before.empty()) world.check(before);
            failed = fails_at(k, [&] { world.check(everything); });
            world.host.store().verify();
            EXPECT_EQ(world.check(everything), 0);
            EXPECT_EQ(outcome(world), expected);
        }
    }
}

TEST(FailingServices, BuildNothingWhenASentenceOrMemoryCannotBeHad)
{
    for (Int number = 1; number <= std::ssize(everything); ++number) {
        CheckedParagraph world;
        world.host.paragraph().fail_at(number);
        EXPECT_EQ(world.check(everything), 2);
        EXPECT_LE(world.host.polymer_block(), 0);
        EXPECT_TRUE(world.host.messages().printed().empty());
    }
    if (!memory_can_fail) GTEST_SKIP() << "the sanitizer has its own allocator";
    for (const int allocation : {1, 2}) {
        CheckedParagraph world;
        allocations_until_failure = allocation;
        EXPECT_EQ(world.check(everything), 2) << "allocation " << allocation;
        EXPECT_EQ(allocations_until_failure, 0);
        EXPECT_LE(world.host.polymer_block(), 0);
    }
}

TEST(FailingServices, LeaveTheStoreOfAReadingRoutineAsItWas)
{
    World world = world_with("none", 0);
    const auto before = world.host().store().contents();
    for (const Routine& routine : routines_that_only_read()) {
        Int k = 1;
        Arguments arguments{world};
        while (fails_at(k, [&] { routine.call(arguments); })) ++k;
        EXPECT_TRUE(arguments.fences_hold()) << routine.name;
    }
    EXPECT_TRUE(world.host().store().contents() == before);
}

TEST(FailingServices, LeaveCountersOfTheSummaryAtMostOneSetBehind)
{
    const std::array<double, 4> x{1, 2, 3, 4};
    const Int n = 4, sections = 0, off = 0;
    const double scale = 1;
    bool failed = true;
    for (Int k = 1; failed; ++k) {
        SCOPED_TRACE("call " + std::to_string(k));
        World world = world_with("none", 0);
        SummaryFile& summary = world.host().summary();
        const Int sets = ST_SUMGLOBAL[3 - 1], lists = ST_SUMGLOBAL[4 - 1];
        const void* context = summary.context("C");
        failed = fails_at(k, [&] {
            POLY_CSDPLOT(context, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                         nullptr, &n, x.data(), x.data(), &sections, &scale, &off, &off);
            POLY_WRTPOLSUM(context, &n, x.data(), x.data(), x.data(), x.data(), x.data(), x.data(), x.data());
        });
        const auto begun = [text = summary.text()](const std::string& word) {
            Int count = 0;
            for (auto at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) ++count;
            return count;
        };
        const Int sets_begun = begun("IDSET") - (ST_SUMGLOBAL[3 - 1] - sets);
        const Int lists_begun = begun("LSET") - (ST_SUMGLOBAL[4 - 1] - lists);
        EXPECT_TRUE(0 <= sets_begun && 0 <= lists_begun && sets_begun + lists_begun <= (failed ? 1 : 0))
            << sets_begun << " data sets, " << lists_begun << " list sets";
    }
}

}  // namespace
