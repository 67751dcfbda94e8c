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

// Those of arrays call these; the sanitizers have their own.
void* operator new(std::size_t size)
{
    return allocate(size);
}
void* operator new(std::size_t size, std::align_val_t alignment)
{
    return allocate(size, static_cast<std::size_t>(alignment));
}
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
try {
    return allocate(size);
} catch (const std::bad_alloc&) {
    return nullptr;
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept
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

// Every section of a case, with a polymer that is no component and a catalyst without attributes.
std::string whole_case()
{
    auto text = support::content(std::filesystem::path{POLYPROPS_FUZZ_SEEDS} / "case/every-section");
    const std::string polymers = "polymers = [\"P\"]";
    return text.replace(text.find(polymers), polymers.size(),
                        "polymers = [\"P\", \"ABS\"]\ncatalysts = [{ id = \"WATER\", value = 0.5 }]");
}
constexpr const char* moment = "streams.S.attributes.P.ZMOM";
constexpr const char* count = "distributions.D.points";
constexpr const char* weight = "streams.S.chain_averages.P.mn";

// The life of a case: statuses, and those answers that were given.
struct Life {
    bool has_case = false, has_run = false, has_failed = false;
    int spoil = 0, mend = 0, set = 0, get = 0, run = 0;
    std::size_t run_diagnostics = 0;
    double moment_kept = 0;
    std::optional<double> mn;
    std::optional<std::string> json;
};

// Allocation number `failing` fails, 0 for none, and so do later ones if memory stays exhausted.
template <typename Action>
void with_failing(long failing, bool stays, const Action& action)
{
    has_failed = false;
    stays_exhausted = stays;
    allocations_left = failing;
    action();
    allocations_left = 0;
}

Life live(long failing, bool stays)
{
    static const std::string text = whole_case();
    Life life;
    CasePointer input;
    RunPointer run;
    const char* json = nullptr;
    with_failing(failing, stays, [&] {
        input = from_text(text);
        life.spoil = polyprops_case_set(input.get(), count, 2.5);
        life.mend = polyprops_case_set(input.get(), count, 3);
        life.set = polyprops_case_set(input.get(), moment, 0.8);
        life.get = polyprops_case_get(input.get(), moment, &life.moment_kept);
        run = case_test::run(input);
        life.run = polyprops_run_status(run.get());
        json = polyprops_run_json(run.get());
        double mn = 0;
        if (polyprops_run_number(run.get(), weight, &mn) == POLYPROPS_OK) life.mn = mn;
        life.run_diagnostics = polyprops_run_diagnostic_count(run.get());
    });
    life.has_case = input != nullptr;
    life.has_run = run != nullptr;
    life.has_failed = has_failed;
    if (json) life.json = json;
    return life;
}

void expect_consistent(const Life& life, const Life& sound)
{
    for (const int status : {life.spoil, life.mend, life.set, life.get})
        EXPECT_TRUE(status == POLYPROPS_OUT_OF_MEMORY || (life.has_case && status == POLYPROPS_OK)) << status;
    const double kept = life.set == POLYPROPS_OK ? 0.8 : 0.5;
    EXPECT_EQ(life.moment_kept, life.get == POLYPROPS_OK ? kept : 0);
    if (life.run == POLYPROPS_OUT_OF_MEMORY) {
        EXPECT_EQ(life.run_diagnostics, life.has_run ? 1u : 0u);
        EXPECT_FALSE(life.mn || life.json);
        return;
    }
    EXPECT_EQ(life.run, POLYPROPS_CASE_ERROR);
    const bool has_results = life.spoil != POLYPROPS_OK || life.mend == POLYPROPS_OK;
    EXPECT_EQ(life.run_diagnostics, has_results ? sound.run_diagnostics : 1);
    EXPECT_EQ(life.mn.has_value(), has_results);
    EXPECT_DOUBLE_EQ(life.mn.value_or(200 / kept), 200 / kept);
    EXPECT_TRUE(!life.json || !has_results || life.set != POLYPROPS_OK || life.json == sound.json);
}

TEST(Memory, EveryAllocationMayFailAndTheCaseStaysWhole)
{
#ifdef __SANITIZE_ADDRESS__
    constexpr long stride = 29;
#else
    constexpr long stride = 3;
#endif
    const Life sound = live(0, false);
    ASSERT_TRUE(sound.run == POLYPROPS_CASE_ERROR && sound.json) << "ABS is no component";
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
        EXPECT_EQ(life.json, sound.json);
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
            CasePointer input;
            with_failing(failing, false, [&] { input = from_text(text); });
            EXPECT_TRUE(input ? diagnostics(input) == sound : has_failed.load());
        }
    }
}

}  // namespace
