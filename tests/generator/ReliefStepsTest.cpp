#include <gtest/gtest.h>

#include "base/Fault.h"
#include "generator/DoubleGrid.h"
#include "generator/GeneratorSettings.h"
#include "generator/Overlay.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/SlowTwins.h"

namespace quillbrand {
namespace {

/// The heights of a 2 x 2 terrain after a relief was laid over them.
std::string Overlaid(int mode, int height, const std::string& old, const std::string& relief) {
    clsTerrain terrain = GridFrom(old);
    const clsTerrain source = GridFrom(relief);
    RecordingHost host;
    OverlayRelief(terrain, source.GetTerrain(), 1, height, mode, host);
    return TextOf(terrain);
}

TEST(OverlayRelief, MeetsTheOldHeightsByTheMode) {
    const std::string old = "100 -100 / 50 7";
    const std::string relief = "10 20 / 50 -3";
    EXPECT_EQ(Overlaid(none, 100, old, relief), "110 -80 / 100 4");
    EXPECT_EQ(Overlaid(Add, 50, old, relief), "105 -90 / 75 6");
    EXPECT_EQ(Overlaid(Subtraction, 100, old, relief), "90 -120 / 0 10");
    EXPECT_EQ(Overlaid(Multiplication, 10, old, relief), "100 -200 / 250 -2");
    EXPECT_EQ(Overlaid(Division, 100, old, relief), "9 -5 / 1 -4");
    EXPECT_EQ(Overlaid(highest, 100, old, relief), "100 20 / 50 7");
    EXPECT_EQ(Overlaid(lowest, 100, old, relief), "10 -100 / 50 -3");
    EXPECT_EQ(Overlaid(7, 100, old, relief), old);
    EXPECT_EQ(Overlaid(-1, 100, old, relief), old);
}

TEST(OverlayRelief, FaultsAtADivisionByZeroAndBeyond32Bits) {
    EXPECT_EQ(Overlaid(Division, 100, "5 5 / 5 5", "-2 0 / 1 4"), "-5 5 / 2 1");
    EXPECT_THROW(Overlaid(Division, 100, "5 5 / 5 5", "0 0 / 0 -1"), Fault);
    EXPECT_THROW(Overlaid(Division, 1, "5 5 / 5 0", "0 0 / 0 -100"), Fault);
    EXPECT_EQ(Overlaid(Add, 100, "2147483640 0 / 0 0", "7 0 / 0 0"), "2147483647 0 / 0 0");
    EXPECT_THROW(Overlaid(Add, 100, "2147483640 0 / 0 0", "8 0 / 0 0"), Fault);
    EXPECT_THROW(Overlaid(Subtraction, 100, "-2147483640 0 / 0 0", "9 0 / 0 0"), Fault);
}

TEST(OverlayRelief, ReachesOneRowOfTheMarginAndNothingBeyondTheTerrain) {
    clsTerrain terrain = GridFrom("0 0 / 0 0");
    RecordingHost host;
    OverlayRelief(terrain, SquareArray(20, 3), 1, 100, Add, host);
    EXPECT_EQ(terrain.GetPoint(2, 2), 3);
    EXPECT_EQ(terrain.GetPoint(3, 3), 0);
    OverlayRelief(terrain, SquareArray(20, 3), 10, 100, Add, host);
    EXPECT_EQ(terrain.GetPoint(3, 3), 3);
    EXPECT_EQ(terrain.max(), 6);
}

TEST(OverlayPreview, MultipliesByThePercentageBeforeItDivides) {
    const auto laid = [](int mode, int height) {
        clsTerrain preview = GridFrom("9 9 9 / 9 10 9 / 9 9 9");
        const clsTerrain current =
            GridFrom("0 0 0 0 0 / 0 0 0 0 0 / 0 0 40 0 0 / 0 0 0 0 0 / 0 0 0 0 0");
        OverlayPreview(preview, current, height, mode);
        EXPECT_EQ(preview.GetPoint(0, 0), 9);
        return preview.GetPoint(1, 1);
    };
    const int expected[] = {10, 45, 35, 200, 7, 40, 5};
    for (int mode = none; mode <= lowest; ++mode)
        EXPECT_EQ(laid(mode, 50), expected[mode]) << mode;
}

using namespace qbGenerator;

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
}  // namespace quillbrand
