#include "minihost/polymer_input.h"

#include <gtest/gtest.h>

#include "input/checked_paragraph.h"

namespace minihost {
namespace {

using Ids = std::vector<std::string>;

std::string segments_of(const PolymerInput& input)
{
    std::string text;
    for (const auto& [id, type, position] : input.segments)
        text += id + ':' + std::to_string(type) + '@' + std::to_string(position) + ' ';
    return text;
}

TEST(PolymerInput, ShowsTheListsOfACheckedParagraph)
{
    support::CheckedParagraph world;
    EXPECT_EQ(segment_ids(world.host), Ids{}) << "no paragraph yet";
    EXPECT_EQ(read_polymer_input(world.host).attribute_layout.size(), 0u);
    world.check({PolymerSentence{{"Q", "P"}},
                 SegmentSentence{{{"E", 1}, {"C", 4}, {"A", 1}, {"B", 2}, {"D", 3}}},
                 OligomerSentence{{{"R", "C", 5}, {"O", "A", 2}, {"", "E", 1}}},
                 CatalystSentence{{{"X", 2.5}, {"K", 3.5}}}, InitiatorSentence{{"X", "I"}},
                 SiteSentence{2, {21, 22, 23}, 0.25},
                 DistributionSentence{
                     {{"P", 4, {1, 2, 3}, 0.5}, {"Q", 2, {4, 5, 6}, 1.5}, {"Q", 4, {7, 8, 9}, 2.5}}}});
    EXPECT_EQ(segment_ids(world.host), (Ids{"A", "B", "C", "D", "E"}));
    EXPECT_EQ(end_segment_ids(world.host), (Ids{"E", "A"}));

    const auto input = read_polymer_input(world.host);
    EXPECT_EQ(input.segment_ids, segment_ids(world.host));
    EXPECT_EQ(segments_of(input), "E:1@5 A:1@1 B:2@2 D:3@4 C:4@3 ");
    EXPECT_EQ(input.polymers, (Ids{"Q", "P"}));
    ASSERT_EQ(input.oligomers.size(), 2u);
    EXPECT_EQ(input.oligomers[0].id, "O");
    EXPECT_EQ(input.oligomers[0].counts, (std::vector<double>{2, 0, 0, 0, 1}));
    EXPECT_EQ(input.oligomers[1].counts, (std::vector<double>{0, 0, 5, 0, 0}));
    ASSERT_EQ(input.catalysts.size(), 1u) << "the unknown one is left out";
    EXPECT_EQ(std::tuple(input.catalysts[0].id, input.catalysts[0].value), std::tuple("K", 3.5));
    EXPECT_EQ(input.initiators, (Ids{"I"}));
    using Three = std::array<Int, 3>;
    const auto& sites = input.sites;
    EXPECT_EQ(std::tuple(sites.count, sites.integers, sites.real), std::tuple(2, Three{21, 22, 23}, 0.25));
    ASSERT_EQ(input.attribute_layout.size(), 11u);
    const auto& group = input.attribute_layout[10];
    EXPECT_EQ(std::tuple(group.start, group.length), std::tuple(5 * 6 + 5 * 3 + 1, 3));
    ASSERT_EQ(input.distributions.size(), 3u);
    EXPECT_EQ(input.distributions[0].type, 2) << "type by type";
    const auto& last = input.distributions[2];
    EXPECT_EQ(std::tuple(last.polymer, last.integers, last.real), std::tuple("Q", Three{7, 8, 9}, 2.5));
}

}  // namespace
}  // namespace minihost
