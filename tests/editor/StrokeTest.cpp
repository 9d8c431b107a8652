#include "editor/Stroke.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/support/EditingTwins.h"
#include "tests/support/Faults.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

TEST(StrokeMap, MarksTheNearestPointOnceAndForgetsAllAtTheNextPress) {
    StrokeMap map;
    map.Clear(10);
    map.Press({2.5f, 3.5f});
    map.Press({10.4f, 9.6f});
    map.Press({10.6f, 5});
    map.Press({-0.6f, 5});
    const MousePoint trail = map.Move({50, 7.25f});
    EXPECT_EQ(trail.x, 9) << "the terrain's last point, not the map's";
    EXPECT_EQ(trail.y, 7.25f);
    map.Move({-50, 4});
    map.Move({2.4f, 4.4f});
    using Points = std::vector<StrokeMap::Point>;
    EXPECT_EQ(map.Points(10), (Points{{2, 4}, {9, 7}, {10, 10}})) << "column 0 is not worked on";
    EXPECT_EQ(map.Points(9), (Points{{2, 4}, {9, 7}}));
    map.Clear(10);
    EXPECT_TRUE(map.Points(10).empty());
}

class StrokeTest : public ::testing::Test {
  protected:
    StrokeTest() {
        RandomSource chance(4);
        for (int y = 0; y < picture_.Height(); ++y)
            for (int x = 0; x < picture_.Width(); ++x)
                picture_.Row(y)[x] = 0xff000000u | static_cast<QRgb>(chance.Uniform() * 16777216.0);
        picture_.Save(folder_ / "bed.png");
        bed_ = {.programFolder = folder_.Path(), .ErodePictureName = "bed.png", .seed = "0"};
    }

    void Run(clsTerrain& terrain, const Stroke& stroke) {
        RunStroke(terrain, stroke, map_, {gaussTable_, bed_, TerrainEmpty_, TerrainSaved_}, host_);
    }

    TemporaryFolder folder_;
    Picture picture_{1025, 1025};
    QBFilter::RiverBed bed_;
    GaussTable gaussTable_{GaussTable::standardUpper};
    StrokeMap map_;
    RecordingHost host_;
    bool TerrainEmpty_ = true;
    bool TerrainSaved_ = true;
};

TEST_F(StrokeTest, AgreesWithTheSlowTwinForAllToolsAtTheRimToo) {
    for (int turn = 0; turn < 250; ++turn) {
        RandomSource chance(static_cast<std::uint32_t>(turn));
        clsTerrain fast = RandomGrid(AnyOf(2, 50, chance), -30000, 30000, chance);
        const Stroke stroke{static_cast<StrokeTool>(1 + turn % 6), AnyOf(1, 60, chance) % 20 + 1,
                            turn % 7 == 0 ? 0 : AnyOf(0, 20, chance)};
        map_.Clear(fast.XPoints());
        std::set<std::pair<int, int>> points;
        for (int i = AnyOf(0, 6, chance); i > 0; --i) {
            const int x = AnyOf(1, fast.XPoints(), chance);
            const int y = AnyOf(1, fast.XPoints(), chance);
            map_.Press({static_cast<float>(x), static_cast<float>(y)});
            points.emplace(x, y);
        }
        clsTerrain slow = fast;
        host_.chance = RandomSource(5);
        RandomSource twin(5);
        Run(fast, stroke);
        for (const auto& [x, y] : points)
            SlowTwins::StrokePoint(slow, stroke, x, y, gaussTable_, picture_, 0, twin);
        ASSERT_TRUE(SameGrid(fast, slow)) << "turn " << turn;
        ASSERT_EQ(host_.chance.Uniform(), twin.Uniform()) << "turn " << turn;
    }
}

TEST_F(StrokeTest, RaisesAHillOfTheToldHeightAndKeepsTheExtremesOfItsAmounts) {
    clsTerrain terrain = GridFrom("0 0 0 / 0 0 0 / 0 0 0");
    terrain.Fill(20000);
    map_.Clear(3);
    map_.Press({1, 1});
    Run(terrain, {StrokeTool::Up, 10, 5});
    EXPECT_EQ(terrain.GetPoint(1, 1), 20000 + 720) << "0.36 * 5 * 20 * 20";
    EXPECT_EQ(terrain.max(), 20000);
    EXPECT_LT(terrain.min(), 720) << "the least amount";
    Run(terrain, {StrokeTool::Down, 10, 5});
    EXPECT_EQ(terrain.GetPoint(1, 1), 20000);
    EXPECT_EQ(terrain.min(), -720);
}

TEST_F(StrokeTest, TellsThePercentOfEachColumnAndClearsBothFlags) {
    clsTerrain terrain = GridFrom("0 0 0 0 / 0 0 0 0 / 0 0 0 0 / 0 0 0 0");
    map_.Clear(4);
    Run(terrain, {StrokeTool::Up, 1, 5});
    EXPECT_TRUE(TerrainEmpty_ && TerrainSaved_) << "no point was marked";
    EXPECT_EQ(host_.progress, (std::vector{0, 25, 50, 75, 100, 100}));
    EXPECT_EQ(host_.statuses, std::vector<std::string>{"Filter Process....."});
    EXPECT_TRUE(host_.isBusy);
    EXPECT_EQ(host_.yields, 5);
    map_.Press({2, 2});
    host_.progress.clear();
    Run(terrain, {StrokeTool::Sharpen, 1, 5});
    EXPECT_EQ(host_.progress, (std::vector{0, 25, 50, 100, 75, 100, 100}));
    EXPECT_FALSE(TerrainEmpty_ || TerrainSaved_);
}

TEST_F(StrokeTest, SaysWhatItCannotDo) {
    RandomSource chance(3);
    clsTerrain terrain = RandomGrid(20, -30000, 30000, chance);
    terrain.SetPoint(15, 10, INT32_MAX - 500);
    map_.Clear(20);
    map_.Press({2, 10});
    map_.Press({15, 10});
    const auto failed = [&](StrokeTool tool, int depth) {
        clsTerrain worked = terrain;
        return FaultOf([&] { Run(worked, {tool, 10, depth}); });
    };
    EXPECT_NE(failed(StrokeTool::Up, 30).find("leaves 32 bits"), std::string::npos);
    EXPECT_NE(failed(StrokeTool::Erode, 22).find("division by zero"), std::string::npos);
    bed_.ErodePictureName = "missing.png";
    EXPECT_NE(failed(StrokeTool::Erode, 5).find("missing.png"), std::string::npos);
}

}  // namespace
}  // namespace quillbrand
