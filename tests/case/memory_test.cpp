// The case layer in a process whose memory runs out: the allocation operators of this program can fail.
#include <atomic>
#include <cstdlib>
#include <new>
#include <optional>

#include "case/interface.h"

namespace {

// Allocations until the first that fails, 0 for none; whether later ones fail too.
std::atomic<long> allocations_left = 0;
std::atomic<bool> stays_exhausted = false;
std::atomic<bool> has_failed = false;

void* allocate(std::size_t size, std::size_t alignment = alignof(std::max_align_t))
{
    if (allocations_left > 0 && --allocations_left == 0) {
        has_failed = true;
        if (stays_exhausted) allocations_left = 1;
        throw std::bad_alloc{};
    }
    const auto rounded = (std::max<std::size_t>(size, 1) + alignment - 1) / alignment * alignment;
    if (void* memory = std::aligned_alloc(alignment, rounded)) return memory;
    throw std::bad_alloc{};
}

}  // namespace

void* operator new(std::size_t size)
{
    return allocate(size);
}
void* operator new[](std::size_t size)
{
    return allocate(size);
}
void* operator new(std::size_t size, std::align_val_t alignment)
{
    return allocate(size, static_cast<std::size_t>(alignment));
}
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    try {
        return allocate(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::align_val_t /*alignment*/) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept
{
    std::free(memory);
}

namespace {

using namespace case_test;

// Every part of a case in few words: paragraph with oligomer, message, catalyst, distribution, parameters.
constexpr const char* whole_case = R"(
title = "A blend with everything that a case may hold"
[components]
STY-R = { class = "segment", molecular_weight = 104 }
PS = { class = "polymer", molecular_weight = 104 }
SB-2 = { class = "oligomer", molecular_weight = 208 }
STYRENE = { molecular_weight = 104 }
TICL4 = { molecular_weight = 190 }
[polymers]
segments = [{ id = "STY-R", type = "repeat" }]
polymers = ["PS", "ABS"]
oligomers = [{ id = "SB-2", segments = { STY-R = 2 } }]
catalysts = [{ id = "TICL4", value = 0.5 }]
sites = { count = 2 }
attributes = [{ component = "PS", names = ["ZMOM", "FMOM", "SMOM", "SFLOW"] },
              { component = "TICL4", names = ["CPSFLOW", "CVSFLOW"] }]
[streams.BLEND]
flows = { PS = 28, STYRENE = 1 }
attributes.PS = { ZMOM = 0.14, FMOM = 28, SMOM = 12906, SFLOW = [28] }
[distributions.SITE]
points = 3
longest_chain = 100
sites = [{ tau = 0.1, amount = 1 }]
[parameters.PAIR]
components = ["STYRENE", "PS"]
positions = 6
reference_position = 6
pairs = [{ components = ["STYRENE", "PS"], values = [1, 2, 4, 8, 16, 300] }]
temperatures = [300]
)";
constexpr const char* moment = "streams.BLEND.attributes.PS.SMOM";
constexpr const char* count = "distributions.SITE.points";
constexpr const char* weight = "streams.BLEND.chain_averages.PS.mw";

// The life of a case: statuses, and those answers that were given.
struct Life {
    bool has_case = false, has_run = false;
    int spoil = 0, mend = 0, set = 0, get = 0, run = 0;
    std::size_t run_diagnostics = 0;
    double moment_kept = 0;
    std::optional<double> mw;
    std::optional<std::string> json;
    bool has_failed = false;
};

// Allocation number `failing` fails, and so do later ones if memory stays exhausted.
Life live(long failing, bool stays)
{
    static const std::string text = whole_case;
    Life life;
    stays_exhausted = stays;
    has_failed = false;
    allocations_left = failing;
    polyprops_case* input = polyprops_case_from_text(text.data(), text.size(), "c.toml");
    life.spoil = polyprops_case_set(input, count, 2.5);
    life.mend = polyprops_case_set(input, count, 3);
    life.set = polyprops_case_set(input, moment, 14000);
    life.get = polyprops_case_get(input, moment, &life.moment_kept);
    polyprops_run* run = polyprops_case_run(input);
    life.run = polyprops_run_status(run);
    const char* json = polyprops_run_json(run);
    double mw = 0;
    if (polyprops_run_number(run, weight, &mw) == POLYPROPS_OK) life.mw = mw;
    life.run_diagnostics = polyprops_run_diagnostic_count(run);
    allocations_left = 0;
    life.has_case = input != nullptr;
    life.has_run = run != nullptr;
    life.has_failed = has_failed;
    if (json) life.json = json;
    polyprops_run_free(run);
    polyprops_case_free(input);
    return life;
}

void expect_consistent(const Life& life, const Life& sound)
{
    for (const int status : {life.spoil, life.mend, life.set, life.get})
        EXPECT_TRUE(status == POLYPROPS_OUT_OF_MEMORY || (life.has_case && status == POLYPROPS_OK)) << status;
    const double kept = life.set == POLYPROPS_OK ? 14000 : 12906;
    if (life.get == POLYPROPS_OK) {
        EXPECT_EQ(life.moment_kept, kept);
    }
    if (life.run == POLYPROPS_OUT_OF_MEMORY) {
        EXPECT_EQ(life.run_diagnostics, life.has_run ? 1u : 0u);
        EXPECT_FALSE(life.mw || life.json);
        return;
    }
    EXPECT_EQ(life.run, POLYPROPS_CASE_ERROR);
    const bool has_results = life.spoil != POLYPROPS_OK || life.mend == POLYPROPS_OK;
    EXPECT_EQ(life.run_diagnostics, has_results ? sound.run_diagnostics : 1);
    EXPECT_EQ(life.mw.has_value(), has_results);
    if (life.mw) {
        EXPECT_DOUBLE_EQ(*life.mw, 104 * kept / 28);
    }
    if (life.json && has_results && life.set == POLYPROPS_OK) {
        EXPECT_EQ(*life.json, *sound.json);
    }
}

TEST(Memory, EveryAllocationMayFailAndTheCaseStaysWhole)
{
#ifdef __SANITIZE_ADDRESS__
    constexpr long stride = 29;
#else
    constexpr long stride = 3;
#endif
    const Life sound = live(0, false);
    ASSERT_EQ(sound.run, POLYPROPS_CASE_ERROR) << "ABS is no component";
    expect_consistent(sound, sound);
    for (const bool stays : {false, true}) {
        long failing = 0;
        Life life;
        do {
            failing += failing < 200 ? 1 : stride;
            SCOPED_TRACE(testing::Message() << "allocation " << failing << (stays ? " and all later" : ""));
            life = live(failing, stays);
            expect_consistent(life, sound);
        } while (life.has_failed && !HasFailure());
        EXPECT_GT(failing, 1000);
        ASSERT_TRUE(life.json);
        EXPECT_EQ(*life.json, *sound.json);
    }
}

// Errors keep their whole text or are lost with their case.
TEST(Memory, FailuresNeverChangeADiagnostic)
{
    const std::string texts[] = {
        "title = 'a text long enough to be copied'\nb = = 2\n",
        "title = 1979-05-27T07:32:00.999999-07:00\nunknown = { a = 1 }\ncomponents = 'absent'\n",
    };
    for (const auto& text : texts) {
        const auto sound = diagnostics(from_text(text));
        for (long failing = 1; failing == 1 || has_failed; ++failing) {
            has_failed = stays_exhausted = false;
            allocations_left = failing;
            const auto input = from_text(text);
            allocations_left = 0;
            if (input) {
                EXPECT_EQ(diagnostics(input), sound);
            } else {
                EXPECT_TRUE(has_failed);
            }
        }
    }
}

}  // namespace
