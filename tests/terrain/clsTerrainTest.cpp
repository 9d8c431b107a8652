#include "terrain/clsTerrain.h"

#include <gtest/gtest.h>

#include "base/Fault.h"
#include "tests/support/Grids.h"
#include "tests/support/SlowTwins.h"

namespace quillbrand {
namespace {

TEST(clsTerrain, BeginsWithItsDefaults) {
    clsTerrain terrain;
    EXPECT_EQ(HeaderText(terrain),
              "XPoints 257 ScaleT 30 CRAD 6370 CRVM 0 HeightScale 30 BaseHeight 5");
    EXPECT_EQ(terrain.min(), 65535);
    EXPECT_EQ(terrain.max(), -63366);
    EXPECT_EQ(terrain.MinTU(), -10);
    EXPECT_EQ(terrain.MaxTU(), 20);
    terrain.Init(3);
    EXPECT_EQ(terrain.min(), 400000);
    EXPECT_EQ(terrain.max(), -400000);
}

TEST(clsTerrain, ClampsReadsAndIgnoresWritesOutsideTheMargin) {
    clsTerrain terrain = GridFrom("1 2 3 / 4 5 6 / 7 8 9");
    terrain.SetPoint(4, 4, 99);
    EXPECT_EQ(terrain.GetPoint(-5, 1), 4);
    EXPECT_EQ(terrain.GetPoint(100, 100), 99);
    EXPECT_EQ(terrain.GetPointH(1, 1), 32773);
    const auto before = AllCells(terrain);
    terrain.SetPoint(5, 0, 7000);
    terrain.SetPoint(0, -1, 7000);
    terrain.IncrPoint(5, 0, 7000);
    EXPECT_EQ(AllCells(terrain), before);
    EXPECT_EQ(terrain.max(), 99);
}

TEST(clsTerrain, ComparesAnIncrementItselfWithTheExtremes) {
    clsTerrain terrain = GridFrom("20000 20000 / 20000 20000");
    terrain.IncrPoint(0, 0, 100);
    EXPECT_EQ(terrain.GetPoint(0, 0), 20100);
    EXPECT_EQ(terrain.max(), 20000);
    EXPECT_EQ(terrain.min(), 100);
    terrain.SetPoint(1, 1, 2147483647);
    EXPECT_THROW(terrain.IncrPoint(1, 1, 1), Fault);
    EXPECT_EQ(terrain.GetPoint(1, 1), 2147483647);
}

TEST(clsTerrain, LooksForExtremesWithoutTheMarginAndWithinFourMillions) {
    clsTerrain terrain = GridFrom("1 2 / 3 4");
    terrain.SetPoint(2, 0, 1000);
    EXPECT_EQ(terrain.Range(), 3);
    EXPECT_EQ(terrain.max(), 4);
    terrain.Fill(5000000);
    EXPECT_EQ(terrain.Range(), 1000000);
    EXPECT_EQ(terrain.min(), 4000000);
}

TEST(HeightWindow, HasAWidthOfOneAtLeastAndOf16BitsAtMost) {
    clsTerrain terrain;
    terrain.MaxTU(-10);
    EXPECT_EQ(terrain.HeightScale(), 1);
    terrain = clsTerrain();
    terrain.MinTU(25);
    EXPECT_EQ(terrain.HeightScale(), 1);
    EXPECT_EQ(terrain.MaxTU(), 20);
    terrain.MinTU(-20000);
    const std::string before = HeaderText(terrain);
    EXPECT_THROW(terrain.MaxTU(20000), Fault);
    EXPECT_THROW(terrain.BaseHeight(32768), Fault);
    EXPECT_EQ(HeaderText(terrain), before);
}

TEST(Conversions, ConnectTheThreeScales) {
    clsTerrain terrain = GridFrom("-32768 0 / 16384 32767");
    terrain.HeightScale(40);
    terrain.BaseHeight(10);
    EXPECT_EQ(terrain.GetPointTU(0, 0), -10.0f);
    EXPECT_EQ(terrain.GetPointMeters(0, 1), 600.0f);
    EXPECT_EQ(terrain.GetV2Meter(16384), 600.0f);
    EXPECT_EQ(terrain.GetMeter2Int(600), 16384);
    EXPECT_EQ(terrain.getMeter2Pixel(30), 1638.4f);
    EXPECT_EQ(terrain.getPixel2Meters(16384), 300.0f);
    EXPECT_EQ(terrain.GetPointTUZ(53687091), 32778.0f);
    EXPECT_THROW(terrain.GetPointTUZ(53687092), Fault);
    terrain.HeightScale(0);
    EXPECT_THROW(terrain.getMeter2Pixel(1), Fault);
    EXPECT_THROW(terrain.GetMeter2Int(1), Fault);
}

TEST(ScaleTerrain, AgreesWithTheSlowTwinOnRandomGrids) {
    RandomSource chance(5);
    for (int turn = 0; turn < 200; ++turn) {
        const int top = 1 + static_cast<int>(chance.Uniform() * (turn % 3 == 0 ? 20 : 200000));
        clsTerrain fast = RandomGrid(2 + turn % 17, -top / (1 + turn % 4), top, chance);
        fast.FixHeight(turn % 5 == 0);
        clsTerrain slow = fast;
        const auto span = fast.ScaleTerrain();
        ASSERT_EQ(span, SlowTwins::ScaleTerrain(slow)) << turn;
        ASSERT_TRUE(SameGrid(fast, slow)) << turn;
        ASSERT_EQ(HeaderText(fast), HeaderText(slow)) << turn;
    }
}

TEST(ScaleTerrain, KeepsAltitudesWhereTheWindowAllows) {
    clsTerrain terrain = GridFrom("-1000 1000 / 0 500");
    terrain.HeightScale(6554);
    terrain.BaseHeight(0);
    EXPECT_EQ(terrain.ScaleTerrain(), 65502);
    EXPECT_EQ(terrain.MinTU(), -100);
    EXPECT_EQ(terrain.MaxTU(), 100);
    EXPECT_EQ(terrain.min(), -32751);
}

TEST(ScaleTerrain, LeavesAFlatGridAloneUnlessItLiesOutside16Bits) {
    clsTerrain terrain = GridFrom("7 7 / 7 7");
    EXPECT_EQ(terrain.ScaleTerrain(), 0);
    EXPECT_EQ(TextOf(terrain), "7 7 / 7 7");
    terrain.Fill(2000000000);
    EXPECT_EQ(terrain.ScaleTerrain(), 0);
    EXPECT_LE(terrain.max(), 32767);
}

TEST(ScaleTerrain, WorksHoweverFarHeightsAndWindowLie) {
    for (const int base : {-32768, 0, 32767}) {
        for (const int scale : {-32768, 1, 32767}) {
            clsTerrain terrain = GridFrom("-2147483648 2147483647 0 / 1 2 3 / 4 5 6");
            terrain.SetPoint(3, 3, -2147483648);
            terrain.BaseHeight(base);
            terrain.HeightScale(scale);
            terrain.ScaleTerrain();
            EXPECT_GE(terrain.min(), -32768);
            EXPECT_LE(terrain.max(), 32767);
        }
    }
}

TEST(ScaleTerrain, WithFixHeightKeepsHeightsInsideTheRangeAndTheWindow) {
    clsTerrain terrain = GridFrom("-1000 1000 0 / 3 4 5 / 6 7 8");
    terrain.FixHeight(true);
    const clsTerrain before = terrain;
    EXPECT_EQ(terrain.ScaleTerrain(), 2000);
    EXPECT_TRUE(SameGrid(terrain, before));
    EXPECT_EQ(HeaderText(terrain), HeaderText(before));
}

TEST(Reflections, MirrorWithinTheirBoundsOnly) {
    clsTerrain terrain = GridFrom("1 2 3 / 4 5 6 / 7 8 9");
    terrain.GetReflectHor(1, 0, 2, 2);
    EXPECT_EQ(TextOf(terrain), "1 8 9 / 4 5 6 / 7 2 3");
    terrain.GetReflectVer(0, 1, 2, 2);
    EXPECT_EQ(TextOf(terrain), "1 8 9 / 6 5 4 / 3 2 7");
    EXPECT_THROW(terrain.GetReflectVer(0, 0, 5, 0), Fault);
    EXPECT_EQ(TextOf(terrain), "1 8 9 / 6 5 4 / 3 2 7");
}

TEST(Shapes, AreCutAtTheGridAndRoundTheirCentreOnce) {
    clsTerrain terrain = GridFrom("0 0 0 0 / 0 0 0 0 / 0 0 0 0 / 0 0 0 0");
    terrain.GetCircle(1.5, 1.4, 1, 5);
    EXPECT_EQ(TextOf(terrain), "0 0 5 0 / 0 5 5 5 / 0 0 5 0 / 0 0 0 0");
    terrain.GetSquare(-0.5, 0.5, 1, 8);
    EXPECT_EQ(TextOf(terrain), "8 8 5 0 / 8 8 5 5 / 0 0 5 0 / 0 0 0 0");
    terrain.Fill(0);
    terrain.GetCircle(0, 0, -1, 5);
    EXPECT_EQ(terrain.Range(), 0);
    RandomSource chance(3);
    terrain.GetNoise(1, 1, 3, 9, chance);
    RandomSource twin(3);
    for (int i = 0; i < 6; ++i)
        twin.Uniform();
    EXPECT_EQ(chance.Uniform(), twin.Uniform());
    EXPECT_EQ(terrain.max(), 9);
}

TEST(Shapes, AgreeWithTheSlowTwinsOnRandomGrids) {
    RandomSource chance(21);
    for (int turn = 0; turn < 300; ++turn) {
        clsTerrain fast = RandomGrid(1 + turn % 12, -9, 9, chance);
        clsTerrain slow = fast;
        const int x = AnyOf(-20, 30, chance);
        const int y = turn % 2 == 0 ? AnyOf(-20, 30, chance) : x;
        const int r = AnyOf(-1, turn % 3 == 0 ? 40 : 9, chance);
        RandomSource draws(7);
        RandomSource twin(7);
        fast.GetCircle(x, y, r, 100 + turn);
        SlowTwins::GetCircle(slow, x, y, r, 100 + turn);
        ASSERT_TRUE(SameGrid(fast, slow)) << "circle " << x << "," << y << " radius " << r;
        fast.GetSquare(y, x, r, -turn);
        SlowTwins::GetSquare(slow, y, x, r, -turn);
        ASSERT_TRUE(SameGrid(fast, slow)) << "square " << y << "," << x << " radius " << r;
        fast.GetNoise(x, y, r, 1000 + turn, draws);
        SlowTwins::GetNoise(slow, x, y, r, 1000 + turn, twin);
        ASSERT_TRUE(SameGrid(fast, slow)) << "noise " << x << "," << y << " radius " << r;
        ASSERT_EQ(draws.Uniform(), twin.Uniform());
    }
}

TEST(Shapes, AreTakenWideWhereverTheirCentreLiesAndHoweverLargeTheyAre) {
    constexpr double end = 2147483647;
    clsTerrain terrain = GridFrom("0 0 0 / 0 0 0 / 0 0 0");
    const clsTerrain before = terrain;
    RandomSource chance(3);
    for (const double far : {-end - 1, end}) {
        terrain.GetCircle(far, 1, 61, 5);
        terrain.GetSquare(1, far, 61, 5);
        terrain.GetNoise(far, far, 61, 5, chance);
    }
    EXPECT_TRUE(SameGrid(terrain, before));
    // From 2^31 - 1 this radius reaches the column 1.
    terrain.GetCircle(end, 1, 2147483646, 5);
    EXPECT_EQ(TextOf(terrain), "0 0 5 / 0 5 5 / 0 0 5");
    terrain.GetSquare(-end, 0, 2147483647, 6);
    EXPECT_EQ(TextOf(terrain), "6 0 5 / 6 5 5 / 6 0 5");
    terrain.GetCircle(0, 0, 2147483647, 7);
    EXPECT_EQ(terrain.Measure(terrain.Cells()), (Extremes{7, 7}));
    terrain.GetSquare(0, 0, 2147483647, 8);
    EXPECT_EQ(terrain.Measure(terrain.Cells()), (Extremes{8, 8}));
    EXPECT_EQ(terrain.max(), 8);
}

TEST(TerrainArrays, CopyAllCellsBothWays) {
    RandomSource chance(9);
    const clsTerrain terrain = RandomGrid(6, -50, 50, chance);
    const SquareArray array = terrain.GetTerrain();
    EXPECT_EQ(array.Upper(), 15);
    EXPECT_EQ(array(7, 3), terrain.GetPoint(7, 3));
    EXPECT_EQ(array(8, 3), 0);
    clsTerrain other;
    other.Init(6);
    other.SetTerrain(array);
    EXPECT_EQ(AllCells(other), AllCells(terrain));
}

TEST(clsTerrain, KeepsItsGridWhenASizeIsImpossible) {
    clsTerrain terrain = GridFrom("1 2 / 3 4");
    EXPECT_THROW(terrain.Size(2), Fault);
    EXPECT_THROW(terrain.Init(0), Fault);
    EXPECT_THROW(terrain.Init(32768), Fault);
    EXPECT_EQ(TextOf(terrain), "1 2 / 3 4");
}

}  // namespace
}  // namespace quillbrand
