#include "minihost/store.h"

#include <polyprops/host.h>

#include <cstdlib>

#include "minihost/embedded_host.h"
#include "support/refusal.h"

namespace minihost {
namespace {

using support::refusal;
class StoreModes : public testing::TestWithParam<Store::Mode> {};
INSTANTIATE_TEST_SUITE_P(Store, StoreModes, testing::Values(Store::Mode::plain, Store::Mode::checked),
                         [](const auto& mode) {
                             return mode.param == Store::Mode::plain ? "plain" : "checked";
                         });

TEST_P(StoreModes, BlocksKeepTheirContentsThroughAllocationsGrowthAndFrees)
{
    Store store(GetParam());
    const BlockId numbers = store.allocate_integers(3);
    const BlockId table = store.allocate_two_part(2, 4);
    for (Int k = 1; k <= 3; ++k) store.set_integer(numbers, k, 10 * k);
    for (Int k = 1; k <= 2; ++k) store.set_integer(table, k, -k);
    for (Int k = 1; k <= 4; ++k) store.set_real(table, k, 0.5 * static_cast<double>(k));
    for (int round = 0; round < 200; ++round) {
        const BlockId scratch = store.allocate_reals(round);
        store.resize_integers(numbers, 3 + round % 5);
        if (round % 2) store.free(scratch);
    }
    store.resize_integers(numbers, 2);
    store.verify();
    EXPECT_EQ(store.integer_length(numbers), 2);
    for (const Int k : {1, 2}) EXPECT_EQ(store.integer(numbers, k), 10 * k);
    EXPECT_EQ(ST_WORDS[store.keys(table) + 1 - 1], -2);
    EXPECT_EQ(real_of(ST_WORDS[store.values(table) + 3 - 1]), 2.0);
}

TEST_P(StoreModes, RefusesWhatAHostMustRefuse)
{
    Store store(GetParam());
    const BlockId one = store.allocate_integers(1), freed = store.allocate_integers(1);
    store.free(freed);
    EXPECT_EQ(store.contents().size(), 1);
    const BlockId reals = store.allocate_reals(1), table = store.allocate_two_part(1, 1);
    for (const BlockId none : {BlockId{0}, freed, BlockId{99}}) EXPECT_FALSE(store.exists(none));
    EXPECT_TRUE(store.exists(reals));
    EXPECT_EQ(store.kind(table), BlockKind::two_part);
    support::expect_refusals({
        {[&] { store.integers(0); }, "store block 0 does not exist"},
        {[&] { store.integers(99); }, "store block 99 does not exist"},
        {[&] { store.free(freed); }, "store block 2 was freed"},
        {[&] { store.reals(one); }, "store block 1 holds integers; asked for as reals"},
        {[&] { store.allocate_reals(-1); }, "a store block cannot have -1 words"},
        {[&] { store.resize_integers(one, -3); }, "a store block cannot have -3 words"},
        {[&] { store.allocate_reals(Store::capacity); }, "the store is full: no room for 16000000 words"},
        {[&] { store.integer(one, 2); }, "store block 1 has no integer word 2; it has 1"},
        {[&] { store.integer(one, 0); }, "store block 1 has no integer word 0; it has 1"},
        {[&] { store.integers(reals); }, "store block 3 holds reals; asked for as integers"},
        {[&] { store.integers(table); }, "store block 4 holds integers and reals; asked for as integers"},
        {[&] { store.integer(reals, 1); }, "store block 3 has no integers"},
        {[&] { store.real(one, 1); }, "store block 1 has no reals"},
        {[&] { store.allocate_reals(Store::capacity + 1); }, "the store is full: no room for 16000001 words"},
        {[&] { store.check_run(ST_WORDS + Store::capacity - 1, 2, "CC_INDEX"); },
         "CC_INDEX: store positions 16000000 to 16000001 are out of range"},
    });
    EXPECT_EQ(store.allocate_integers(1), 5) << "a refused allocation gives no id away";
}

TEST(Store, IsCheckedWhenTheEnvironmentSaysSo)
{
    const char* const before = std::getenv("POLYPROPS_CHECKED_STORE");
    const std::string kept = before ? before : "";
    for (const std::string text : {"", "0", "1"}) {
        setenv("POLYPROPS_CHECKED_STORE", text.c_str(), 1);
        EXPECT_EQ(Store::default_mode(), text == "1" ? Store::Mode::checked : Store::Mode::plain) << text;
    }
    unsetenv("POLYPROPS_CHECKED_STORE");
    EXPECT_EQ(Store::default_mode(), Store::Mode::plain);
    if (before) setenv("POLYPROPS_CHECKED_STORE", kept.c_str(), 1);
}

TEST(Store, PlainModeReusesFreedSpaceClearedUpToNearlySixteenMillionWords)
{
    Store store(Store::Mode::plain);
    const BlockId first = store.allocate_reals(Store::capacity - 1);
    EXPECT_THROW(store.allocate_integers(1), Error);
    const Position place = store.reals(first);
    store.set_real(first, 8, 77);
    store.free(first);
    const BlockId again = store.allocate_integers(8);
    EXPECT_EQ(store.integers(again), place);
    EXPECT_EQ(store.integer(again, 8), 0);
}

TEST(Store, CheckedModeMovesEveryBlockButThePinnedOnes)
{
    Store store(Store::Mode::checked);
    const BlockId movable = store.allocate_two_part(2, 2);
    const BlockId pinned = store.allocate_reals(2, Placement::pinned);
    const Position stays = store.reals(pinned);
    std::set<Position> keys, values;
    for (int round = 0; round < 10; ++round) {
        store.allocate_integers(1);
        EXPECT_TRUE(keys.insert(store.keys(movable)).second) << "an earlier position is good again";
        EXPECT_TRUE(values.insert(store.values(movable)).second);
    }
    EXPECT_EQ(store.reals(pinned), stays);
}

TEST(Store, CheckedModeServesUntilItsHalfIsFull)
{
    Store store(Store::Mode::checked);
    const BlockId numbers = store.allocate_integers(1);
    store.set_integer(numbers, 1, 5);
    EXPECT_EQ(refusal([&] {
                  for (;;) store.allocate_reals(999'999);
              }),
              "the store is full: no room for 999999 words");
    store.verify();
    EXPECT_EQ(store.integer(numbers, 1), 5);
}

#ifdef __SANITIZE_ADDRESS__
TEST(StoreDeathTest, TheAddressSanitizerSeesNothingButLiveBlocks)
{
    Store store(Store::Mode::checked);
    const BlockId block = store.allocate_integers(4);
    const volatile int64_t* words = ST_WORDS + store.integers(block) - 1;
    EXPECT_DEATH(static_cast<void>(words[4]), "use-after-poison");
    store.allocate_integers(1);
    EXPECT_DEATH(static_cast<void>(words[0]), "use-after-poison");
}
#else
TEST(Store, CheckedModeNamesTheBlockWhoseFenceIsDamaged)
{
    for (const int beyond : {-1, 4}) {
        Store store(Store::Mode::checked);
        store.allocate_integers(4);
        const BlockId hit = store.allocate_integers(4);
        store.verify();
        ST_WORDS[store.integers(hit) - 1 + beyond] = 1;
        EXPECT_EQ(refusal([&] { store.verify(); }), "words around store block 2 were overwritten");
        EXPECT_NE(refusal([&] { store.integers(hit); }), "");
        EXPECT_NE(refusal([&] { store.allocate_reals(1); }), "");
        Store of_reals(Store::Mode::checked);
        ST_WORDS[of_reals.reals(of_reals.allocate_reals(4)) - 1 + beyond] = 1;
        EXPECT_EQ(refusal([&] { of_reals.verify(); }), "words around store block 1 were overwritten");
    }
}

TEST(Store, CheckedModePoisonsNewFreedAndVacatedWords)
{
    Store store(Store::Mode::checked);
    const BlockId kept = store.allocate_integers(1), freed = store.allocate_integers(1);
    EXPECT_EQ(store.integer(freed, 1), Store::poison);
    for (const BlockId id : {kept, freed}) store.set_integer(id, 1, 1);
    const Position freed_at = store.integers(freed);
    store.free(freed);
    EXPECT_EQ(ST_WORDS[freed_at - 1], Store::poison);
    const Position vacated = store.integers(kept);
    store.allocate_integers(1);
    EXPECT_EQ(ST_WORDS[vacated - 1], Store::poison);
}
#endif

TEST(Store, CheckedModeRefusesARunThatLeavesItsBlock)
{
    Store store(Store::Mode::checked);
    const int64_t* second = ST_WORDS + store.integers(store.allocate_integers(4));
    const int64_t outside[2] = {};
    store.check_run(second, 3, "CC_INDEX");
    store.check_run(outside, 2, "CC_INDEX");
    store.check_run(second, 0, "CC_INDEX");
    store.check_run(ST_WORDS + Store::capacity, 2, "CC_INDEX");
    store.check_run(reinterpret_cast<const int64_t*>(sizeof(int64_t)), 2, "CC_INDEX");
    EXPECT_THROW(store.check_run(second, 4, "CC_INDEX"), Error);
}

}  // namespace
}  // namespace minihost
