#include <gtest/gtest.h>

#include "effects/QBFilter.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/SlowTwins.h"

namespace quillbrand {
namespace {

using QBFilter::Area;

float Smooth(clsTerrain& terrain, float strength, const Area& area) {
    RecordingHost host;
    QBFilter::FilterSmooth(terrain, strength, area, host);
    return strength;
}

TEST(Smooth, AgreesWithTheSlowTwinOnRandomGridsAreasAndLimits) {
    RandomSource chance(8);
    const auto any = [&](int low, int high) {
        return low + static_cast<int>(chance.Uniform() * (high - low + 1));
    };
    for (int turn = 0; turn < 400; ++turn) {
        clsTerrain fast;
        fast.Init(any(1, 90));
        const int amplitude = turn % 7 == 0 ? 2000000000 : turn % 3 == 0 ? 50 : 32767;
        FillWithChance(fast, -amplitude, amplitude, chance);
        Area area{.extent = fast.XPoints()};
        if (turn % 2 == 1)
            area = {any(0, 100), any(-30, 60), any(-30, 60)};
        if (turn % 4 >= 2) {
            area.zMin = any(-amplitude / 2, 0);
            area.zMax = any(0, amplitude / 2);
        } else {
            area.zMin = INT32_MIN;
            area.zMax = INT32_MAX;
        }
        clsTerrain slow = fast;
        Smooth(fast, 3, area);
        SlowTwins::FilterSmooth(slow, area);
        ASSERT_EQ(AllCells(fast), AllCells(slow)) << turn;
        ASSERT_EQ(fast.min(), slow.min()) << turn;
        ASSERT_EQ(fast.max(), slow.max()) << turn;
    }
}

TEST(Smooth, SpreadsASpikeAlongDiagonalsOnly) {
    clsTerrain terrain;
    terrain.Init(11);
    terrain.SetPoint(5, 5, 1000);
    Smooth(terrain, 3, {.extent = 6, .startX = 2, .startY = 2});
    EXPECT_GT(terrain.GetPoint(5, 5), 0);
    EXPECT_LT(terrain.GetPoint(5, 5), 200);
    EXPECT_GT(terrain.GetPoint(6, 6), 0);
    for (int y = 0; y <= 12; ++y)
        for (int x = 0; x <= 12; ++x)
            if ((x + y) % 2 != 0) {
                EXPECT_EQ(terrain.GetPoint(x, y), 0) << x << "," << y;
            }
}

TEST(Smooth, LeavesPointsAtTheLimitsAloneButHearsThem) {
    clsTerrain terrain = GridFrom("500 0 500 / 0 10 0 / 500 0 500");
    Smooth(terrain, 3, {.extent = 3, .zMin = 0, .zMax = 500});
    EXPECT_EQ(terrain.GetPoint(0, 0), 500);
    EXPECT_EQ(terrain.GetPoint(1, 0), 0);
    EXPECT_GT(terrain.GetPoint(1, 1), 400);
}

TEST(Smooth, RunsFromAStrengthOfThreeOnAndThenChangesOnlyIt) {
    clsTerrain terrain = GridFrom("1 2 3 / 4 50 6 / 7 8 9");
    const auto before = AllCells(terrain);
    RecordingHost host;
    float strength = 2.99f;
    QBFilter::FilterSmooth(terrain, strength, {.extent = 3}, host);
    EXPECT_EQ(AllCells(terrain), before);
    EXPECT_TRUE(host.statuses.empty());
    EXPECT_TRUE(host.progress.empty());

    clsTerrain other = terrain;
    EXPECT_EQ(Smooth(terrain, 3, {.extent = 3}), 3.0f);
    EXPECT_EQ(Smooth(other, 4, {.extent = 3}), 5.0f);
    EXPECT_EQ(AllCells(terrain), AllCells(other));
    EXPECT_EQ(Smooth(other, 8, {.extent = 3}), 9.0f);
    EXPECT_EQ(Smooth(other, 12, {.extent = 3}), 10.0f);
    EXPECT_EQ(Smooth(other, 3.5f, {.extent = 3}), 3.5f);
}

}  // namespace
}  // namespace quillbrand
