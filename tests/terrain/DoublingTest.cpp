#include "terrain/DoubleGrid.h"

#include <gtest/gtest.h>

#include "base/Fault.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/SlowTwins.h"

namespace quillbrand::qbGenerator {
namespace {

SquareArray RandomArray(int n, int most, RandomSource& chance) {
    SquareArray grid(n + 5, 0);
    for (int i = 0; i < (n + 2) * (n + 2); ++i)
        grid(i % (n + 2), i / (n + 2)) = AnyOf(-most, most, chance);
    return grid;
}

TEST(DoubleGrid, AgreesWithTheSlowTwinInEveryModeAndDrawsAsManyNumbers) {
    RandomSource chance(6);
    for (int turn = 0; turn < 120; ++turn) {
        const int mode = turn % 4;
        const int roughness = turn % 3 == 0 ? 0 : turn % 11;
        const int size = 1 + turn;
        SquareArray fast = RandomArray(size, turn % 5 == 0 ? 1000000000 : 90000, chance);
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
            ASSERT_TRUE(std::equal(fast.Row(j), fast.Row(j) + fast.Upper() + 1, slow.Row(j)))
                << "turn " << turn << " row " << j;
        ASSERT_EQ(host.chance.Uniform(), twin.Uniform()) << turn;
        ASSERT_FALSE(host.isBusy);
    }
}

TEST(DoubleGrid, FaultsWhereAHeightLeaves32Bits) {
    SquareArray grid(2, 2147483647);
    RecordingHost host;
    int n = 1;
    EXPECT_THROW(DoubleGrid(grid, n, Bilinear, 10, host), Fault);
    EXPECT_EQ(host.statuses.back(), "Resize Terrain...");
}

}  // namespace
}  // namespace quillbrand::qbGenerator
