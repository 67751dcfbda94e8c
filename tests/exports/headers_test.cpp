#include <gtest/gtest.h>

#include "polyprops/host.h"
#include "support/world.h"

extern "C" {
std::int64_t c_host_sees_component_word(void);
double c_host_asks_molecular_weight(std::int64_t component);
}

TEST(Headers, ServeAHostWrittenInC)
{
    auto world = support::World{}.conventional("W", 18);
    world.host();
    EXPECT_EQ(c_host_sees_component_word(), UT_COMPONENT_IDS[0]);
    EXPECT_EQ(c_host_asks_molecular_weight(world.index("W")), 18);
}
