// The Fortran module compiles, and its interfaces hand over what the library expects.
#include <gtest/gtest.h>

#include <array>

extern "C" void fortran_calls(double* grid, double* merged);

TEST(Fortran, CallsThroughItsModule)
{
#ifndef HAS_FORTRAN
    GTEST_SKIP() << "no Fortran compiler was found";
#else
    std::array<double, 5> grid{};
    std::array<double, 3> merged{};
    fortran_calls(grid.data(), merged.data());
    EXPECT_EQ(grid, (std::array<double, 5>{10, 100, 1000, 10000, 100000}));
    EXPECT_EQ(merged, (std::array<double, 3>{10, 20, 30}));
#endif
}
