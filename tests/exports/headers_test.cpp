#include <gtest/gtest.h>

#include "support/world.h"

extern "C" double c_host_asks_molecular_weight(std::int64_t component);

TEST(Headers, ServeAHostWrittenInC)
{
    auto world = support::World{}.conventional("W", 18);
    world.host();
    EXPECT_EQ(c_host_asks_molecular_weight(world.index("W")), 18);
}
