#include "terrain/Doubling.h"

#include <gtest/gtest.h>

#include "base/Fault.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/SlowTwins.h"

namespace quillbrand::qbGenerator {
namespace {

SquareArray RandomArray(int n, double amplitude, RandomSource& chance) {
    SquareArray grid(n + 5, 0);
    for (int j = 0; j <= n + 1; ++j)
        for (int i = 0; i <= n + 1; ++i)
            grid(i, j) = static_cast<int>((chance.Uniform() - 0.5) * 2 * amplitude);
    return grid;
}

TEST(DoubleGrid, AgreesWithTheSlowTwinInEveryModeAndDrawsAsManyNumbers) {
    RandomSource chance(6);
    for (int turn = 0; turn < 120; ++turn) {
        const int mode = turn % 4;
        const int roughness = turn % 3 == 0 ? 0 : turn % 11;
        const int size = 1 + turn;
        SquareArray fast = RandomArray(size, turn % 5 == 0 ? 2e9 : 90000, chance);
        SquareArray slow = fast;
        // Disturbed sums of the largest numbers would leave 32 bits.
        const int disturbed = turn % 5 == 0 ? 0 : roughness;
        RecordingHost host(77);
        RandomSource twin(77);
        int n = size;
        int slowN = size;
        DoubleGrid(fast, n, mode, disturbed, host);
        SlowTwins::DoubleGrid(slow, slowN, mode, disturbed, twin);
        ASSERT_EQ(n, 2 * size);
        ASSERT_EQ(fast.Upper(), 2 * size + 1);
        for (int j = 0; j <= fast.Upper(); ++j)
            for (int i = 0; i <= fast.Upper(); ++i)
                ASSERT_EQ(fast(i, j), slow(i, j)) << "turn " << turn << " at " << i << "," << j;
        ASSERT_EQ(host.chance.Uniform(), twin.Uniform()) << turn;
        ASSERT_FALSE(host.isBusy);
    }
}

TEST(DoubleGrid, TakesMeansAlongRowColumnAndDiagonalWithHalvesToEven) {
    SquareArray grid(2, 0);
    grid(0, 0) = 1;
    grid(1, 0) = 2;
    grid(0, 1) = 4;
    grid(1, 1) = 7;
    RecordingHost host;
    int n = 1;
    DoubleGrid(grid, n, Bilinear, 0, host);
    EXPECT_EQ(grid(0, 0), 1);
    EXPECT_EQ(grid(1, 0), 2);
    EXPECT_EQ(grid(0, 1), 2);
    EXPECT_EQ(grid(1, 1), 4);
    EXPECT_EQ(host.statuses.back(), "Resize Terrain...");
    grid = SquareArray(2, 2147483647);
    n = 1;
    EXPECT_THROW(DoubleGrid(grid, n, Bilinear, 10, host), Fault) << "a height leaves 32 bits";
}

}  // namespace
}  // namespace quillbrand::qbGenerator
