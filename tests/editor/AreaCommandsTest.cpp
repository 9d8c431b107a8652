#include "editor/AreaCommands.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/EditingTwins.h"
#include "tests/support/Faults.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"

namespace quillbrand {
namespace {

/// A frame on the quarters of grid points, around, across or beside a grid of `size` intervals.
Frame AnyFrame(int size, RandomSource& chance) {
    const float step = AnyOf(0, 2, chance) == 0 ? 0.25f : AnyOf(0, 1, chance) == 0 ? 0.5f : 1.0f;
    const auto any = [&] { return static_cast<float>(AnyOf(-20, size + 20, chance)) * step; };
    return {any(), any(), any(), any()};
}

Frame Converted(Frame frame) {
    convertFrameData(frame.left, frame.top, frame.right, frame.bottom);
    return frame;
}

class AreaCommandsTest : public ::testing::Test {
  protected:
    RecordingHost host_;
    bool TerrainEmpty_ = true;
};

TEST(Frame, HasItsSidesInOrderAndAtLeastOneApart) {
    const auto [left, top, right, bottom] = Converted({7, 2.5f, 3, 2.5f});
    EXPECT_EQ(left, 3);
    EXPECT_EQ(right, 7);
    EXPECT_EQ(top, 2.5f);
    EXPECT_EQ(bottom, 3.5f);
}

TEST(Frame, MovesItsCornerUpFromOddAndBrokenPlaces) {
    const std::pair<float, float> cases[] = {{4, 4}, {5, 6}, {5.5f, 6.5f}, {-3, -2}, {0, 0}};
    for (const auto& [mouse, corner] : cases)
        EXPECT_EQ(MovingCorner(mouse), corner) << mouse;
}

TEST_F(AreaCommandsTest, AgreeWithTheSlowTwinsForFramesAnywhere) {
    for (int turn = 0; turn < 600; ++turn) {
        RandomSource chance(static_cast<std::uint32_t>(turn));
        clsTerrain fast = RandomGrid(AnyOf(1, 40, chance), -30000, 30000, chance);
        const Frame frame = AnyFrame(fast.Size(), chance);
        const int depth = AnyOf(0, 30, chance);
        clsTerrain slow = fast;
        if (turn % 3 == 0) {
            FillArea(fast, frame, 1000 * depth, TerrainEmpty_, host_);
            SlowTwins::FillArea(slow, Converted(frame), 1000 * depth);
        } else if (turn % 3 == 1) {
            RaiseArea(fast, frame, depth, TerrainEmpty_, host_);
            SlowTwins::RaiseArea(slow, Converted(frame), depth, 1);
        } else {
            LowerArea(fast, frame, depth, TerrainEmpty_, host_);
            SlowTwins::RaiseArea(slow, Converted(frame), depth, -1);
        }
        ASSERT_TRUE(SameGrid(fast, slow)) << "turn " << turn;
        ASSERT_FALSE(std::exchange(TerrainEmpty_, true));
    }
}

TEST_F(AreaCommandsTest, FillTwoByTwoPointsAfterAClick) {
    clsTerrain terrain = GridFrom("7 7 7 7 / 7 7 7 7 / 7 7 7 7 / 7 7 7 7");
    FillArea(terrain, {1, 1, 1, 1}, 32768, TerrainEmpty_, host_);
    EXPECT_EQ(TextOf(terrain), "7 7 7 7 / 7 0 0 7 / 7 0 0 7 / 7 7 7 7");
    FillArea(terrain, {0.5f, 3, 2.5f, 3.4f}, 32769, TerrainEmpty_, host_);
    EXPECT_EQ(TextOf(terrain), "7 7 7 7 / 7 0 0 7 / 7 0 0 7 / 1 7 1 7") << "halves go to even";
}

TEST_F(AreaCommandsTest, TellTheirTextsAndAPercentThatCountsFromTheLeftOfTheGrid) {
    clsTerrain terrain;
    FillArea(terrain, {100, 0, 104, 90}, 1, TerrainEmpty_, host_);
    EXPECT_EQ(host_.progress, (std::vector{2500, 2525, 2550, 2575, 2600}));
    EXPECT_EQ(host_.yields, 5);
    RaiseArea(terrain, {0, 0, 4, 1}, 1, TerrainEmpty_, host_);
    LowerArea(terrain, {0, 0, 4, 1}, 1, TerrainEmpty_, host_);
    EXPECT_EQ(host_.statuses, (std::vector<std::string>{"Terrain fill...", "lift Terrain....",
                                                        "lower terrain..."}));
    EXPECT_EQ(host_.progress.back(), 100);
    EXPECT_TRUE(host_.isBusy);
}

TEST_F(AreaCommandsTest, CutFarFramesToTheGrid) {
    constexpr float far = 2147483648.0f;
    clsTerrain terrain;
    FillArea(terrain, {far, -far, -far, far}, 1, TerrainEmpty_, host_);
    EXPECT_EQ(std::ranges::count(AllCells(terrain), -32767), 259 * 259);
    const auto filled = AllCells(terrain);
    for (const Frame& frame : {Frame{far, far, far, far}, Frame{-far, 0, -1, 200},
                               Frame{300, 300, 3e38f, 3e38f}, Frame{-3e38f, 0, -3e38f, 0}}) {
        FillArea(terrain, frame, 5, TerrainEmpty_, host_);
        RaiseArea(terrain, frame, 30, TerrainEmpty_, host_);
    }
    EXPECT_EQ(AllCells(terrain), filled);
    RaiseArea(terrain, {-far, -far, far, far}, 30, TerrainEmpty_, host_);
    EXPECT_EQ(terrain.GetPoint(128, 128), -32767 + 27000) << "near the middle of so wide a hill";
}

TEST_F(AreaCommandsTest, FaultWhereAHeightLeaves32Bits) {
    RandomSource chance(3);
    clsTerrain terrain = RandomGrid(21, -30000, 30000, chance);
    terrain.SetPoint(0, 0, INT32_MAX);
    clsTerrain before = terrain;
    RaiseArea(terrain, {0, 0, 20, 20}, 30, TerrainEmpty_, host_);
    SlowTwins::RaiseArea(before, {0, 0, 20, 20}, 30, 1);
    EXPECT_TRUE(SameGrid(terrain, before)) << "the corner of the hill is flat";

    terrain.SetPoint(10, 10, INT32_MAX - 26999);
    EXPECT_NE(FaultOf([&] {
                  RaiseArea(terrain, {0, 0, 20, 20}, 30, TerrainEmpty_, host_);
              }).find("leaves 32 bits"),
              std::string::npos);
}

TEST_F(AreaCommandsTest, ReflectRectanglesThatMayTakeInTheMargin) {
    for (int turn = 0; turn < 200; ++turn) {
        RandomSource chance(static_cast<std::uint32_t>(turn));
        clsTerrain fast = RandomGrid(AnyOf(1, 30, chance), -30000, 30000, chance);
        const clsTerrain before = fast;
        const int last = fast.Size() + 2;
        const int x1 = AnyOf(0, last - 1, chance);
        const int y1 = AnyOf(0, last - 1, chance);
        const int x2 = AnyOf(x1 + 1, last, chance);
        const int y2 = AnyOf(y1 + 1, last, chance);
        const Frame frame{static_cast<float>(x2 + 0.25), static_cast<float>(y1 - 0.25),
                          static_cast<float>(x1), static_cast<float>(y2)};
        const bool horizontally = turn % 2 == 0;
        ReflectArea(fast, frame, horizontally ? Reflection::Horizontally : Reflection::Vertically,
                    TerrainEmpty_, host_);
        clsTerrain slow = before;
        SlowTwins::Reflect(slow, x1, y1, x2, y2, horizontally);
        ASSERT_EQ(AllCells(fast), AllCells(slow)) << "turn " << turn;
        ASSERT_TRUE(fast.min() == before.min() && fast.max() == before.max());
    }
    EXPECT_FALSE(TerrainEmpty_);
}

TEST_F(AreaCommandsTest, RefuseToReflectBeyondTheMargin) {
    RandomSource chance(3);
    clsTerrain terrain = RandomGrid(9, -30000, 30000, chance);
    const auto before = AllCells(terrain);
    for (const Frame& frame : {Frame{-0.6f, 0, 4, 4}, Frame{0, 4, 4, 10.6f}, Frame{0, 3e9f, 4, 2}})
        EXPECT_NE(FaultOf([&] {
                      ReflectArea(terrain, frame, Reflection::Vertically, TerrainEmpty_, host_);
                  }).find("reaches beyond the grid, whose points are 0 to 10"),
                  std::string::npos);
    EXPECT_EQ(AllCells(terrain), before);
    EXPECT_TRUE(TerrainEmpty_);
    ReflectArea(terrain, {-0.5f, 0, 10.5f, 10}, Reflection::Vertically, TerrainEmpty_, host_);
    EXPECT_NE(AllCells(terrain), before);
}

}  // namespace
}  // namespace quillbrand
