#include "support/routine_calls.h"

namespace {

using namespace support;

struct List {
    Ints components;
    Values amounts;
    bool operator==(const List&) const = default;
};

// What a routine writes to NOUT, IDXOUT and XOUT.
template <typename Convert>
List listed(Convert convert)
{
    Int count = -1;
    GuardedInts components(40);
    GuardedReals amounts(40);
    convert(count, components, amounts);
    EXPECT_TRUE(components.untouched(count + 1) && amounts.untouched(count + 1));
    return {{components.data(), components.data() + count}, {amounts.data(), amounts.data() + count}};
}

// Components by index with their flags, and the segments that the flagged ones are made of.
struct Mixture {
    Ints flags, segments;
    CountMatrix counts{std::ssize(flags)};

    List true_to_segments(const Ints& ids, const Values& x) const
    {
        return listed([&](auto&... out) {
            call(POLY_XTTOXS, std::ssize(ids), ids, flags, x, counts.n, counts, std::ssize(segments),
                 segments, out...);
        });
    }
    List flows_to_segments(const Ints& ids, const Values& x, Int norm = 0) const
    {
        return listed([&](auto&... out) {
            call(POLY_PFTOSF, std::ssize(ids), ids, x, flags, counts.n, counts, std::ssize(segments),
                 segments, out..., norm);
        });
    }
};

// Solvent W with a flag of 2, polymers P and Q, segments A, B, C.
enum : Int { W = 2, P, Q, A, B, C };

Mixture two_polymers()
{
    Mixture m{{0, 2, 1, 1, 0, 0, 0}, {A, B, C}};
    const std::tuple<Int, Int, double> counts[] = {{W, 1, 2},  {P, 1, 99}, {P, A, 60}, {P, B, -5},
                                                   {P, C, 40}, {Q, B, 30}, {Q, C, 20}};
    for (const auto& [row, column, count] : counts) m.counts.at(row, column) = count;
    return m;
}

TEST(SegmentLists, FromCountsStandInTheOrderOfFirstAppearance)
{
    const Mixture m = two_polymers();
    const Ints order{A, C, W, B};
    EXPECT_EQ(m.flows_to_segments({P, W, Q}, {1, 5, 2}), (List{order, {60, 80, 5, 60}}));
    EXPECT_EQ(m.true_to_segments({P, W, Q}, {1, 5, 2}),
              (List{order, {60.0 / 210, 80.0 / 210, 10.0 / 210, 60.0 / 210}}))
        << "a conventional entry comes with its own count";
    EXPECT_EQ(m.flows_to_segments({P, C, P, A}, {1, 2, 10, 3}), (List{{A, C, C, A}, {660, 440, 402, 3}}))
        << "a segment goes to every entry that holds it";
    EXPECT_EQ(m.flows_to_segments({A, A, P, P}, {3, 4, 1, 1}), (List{{A, A, C}, {123, 124, 80}}));
    EXPECT_EQ(m.flows_to_segments({P, A, P}, {1, 2, 10}), (List{{A, C, A}, {660, 440, 602}}));
    EXPECT_EQ(m.flows_to_segments({W, Q}, {1e-20, 0}, 1), (List{{W, B, C}, {1, 0, 0}}));
    EXPECT_EQ(m.flows_to_segments({W, W}, {1, -1}, 1).amounts, (Values{1, -1})) << "a sum of exactly 0";
    EXPECT_EQ(m.true_to_segments({}, {}), List{});
}

// Leaves other bytes than zeros where the next call has its variables.
[[gnu::noinline]] void soil_the_stack()
{
    volatile Int bytes[8192];
    for (auto& word : bytes) word = 1;
}

// More than the places that are remembered while a list grows.
TEST(SegmentLists, MayNameSegmentsOften)
{
    Mixture m{{0, 0, 0, 1}, {}};
    for (Int c = 1; c <= 3; ++c) m.counts.at(4, c) = static_cast<double>(c);
    m.segments = {2, 1};
    soil_the_stack();
    EXPECT_EQ(m.flows_to_segments({4}, {1}), (List{{2, 1}, {2, 1}}));
    for (Int k = 0; k < 1498; ++k) m.segments.push_back(k < 1098 ? 1 : 2 + k % 2);
    EXPECT_EQ(m.flows_to_segments({4}, {1}), (List{{2, 1, 3}, {402, 1099, 600}}));
}

TEST(SegmentLists, FromAttributesSkipChainsWithoutSegmentData)
{
    auto world = World{}.segments({"A", "B"}).polymer("P", {{"ZMOM", 2}, {"SFLOW", {8, 4}}});
    world.oligomer("O", {{"B", 3}}).polymer("EMPTY", {{"ZMOM", 1}, {"SFLOW", {0, 0}}}).conventional("W");
    world.host();
    const Ints ids = world.indices({"W", "P", "EMPTY", "O"});
    const auto convert = [&](Int n, Int norm) {
        return listed([&](auto&... out) {
            call(POLY_XPTOXS, n, ids, Values{1, 2, 3, 4}, nullptr, nullptr, nullptr, out..., norm);
        });
    };
    EXPECT_EQ(convert(4, 0), (List{{7, 2, 3}, {1, 8, 16}}));
    EXPECT_EQ(convert(4, 1).amounts, (Values{1.0 / 25, 8.0 / 25, 16.0 / 25}));
    EXPECT_EQ(convert(1, 0), (List{{7}, {1}}));
    EXPECT_EQ(convert(0, 1), List{});
    PolymerLists lists;
    lists.segments = {{2}, {3}};
    world.host().set_polymer_block(lay_polymer_block(world.host().store(), lists));
    EXPECT_EQ(convert(4, 0), (List{{7}, {1}})) << "no chains are listed";
}

TEST(SegmentProperties, OfAListMemberAreWeightedByItsCounts)
{
    Mixture m = two_polymers();
    m.counts.at(W, A) = 7;  // beside its own count, and not read
    const Ints members{A, C, W, C, B};
    const auto properties = [&](const Ints& ids, const Values& given, const Values& expected_weights) {
        GuardedReals out(5), weights(5);
        call(POLY_PTTOPS, std::ssize(ids), ids, m.flags, given, m.counts.n, m.counts, 3, m.segments, 5,
             members, out, weights);
        EXPECT_EQ(weights.values(), expected_weights);
        return out.values();
    };
    EXPECT_EQ(properties({P, Q}, {1, 2.5}, {60, 60, 0, 60, 30}), (Values{1, 1.5, 0, 1.5, 2.5}));
    EXPECT_EQ(properties({W}, {6}, {0, 0, 2, 0, 0}), (Values{0, 0, 3, 0, 0})) << "divided by its own count";
    EXPECT_EQ(properties({P, C, Q}, {1, 10, 2}, {60, 20, 0, 20, 30}), (Values{1, 2.5, 0, 2.5, 2}))
        << "an entry of its own replaces what came before";
    m.counts.at(P, A) = 0.25;
    EXPECT_EQ(properties({P}, {3}, {0.25, 40, 0, 40, 0}), (Values{3, 3, 0, 3, 0}));
}

}  // namespace
