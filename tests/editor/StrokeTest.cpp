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
    EXPECT_EQ(map.Move({50, 7.25f}).x, 9) << "the terrain's last point, not the map's";
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
        for (int i = 0; i < 1025 * 1025; ++i)
            picture_.Row(i / 1025)[i % 1025] = PixelOf(AnyOf(0, 0xffffff, chance));
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

TEST_F(StrokeTest, TellsThePercentOfEachColumnAndClearsBothFlags) {
    clsTerrain terrain;
    terrain.Init(4);
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
    clsTerrain terrain;
    terrain.Init(20);
    terrain.SetPoint(15, 10, INT32_MAX - 500);
    map_.Clear(20);
    map_.Press({15, 10});
    const auto failed = [&](StrokeTool tool, int depth) {
        return FaultOf([&] { Run(terrain, {tool, 10, depth}); });
    };
    EXPECT_NE(failed(StrokeTool::Up, 30).find("leaves 32 bits"), std::string::npos);
    EXPECT_NE(failed(StrokeTool::Erode, 22).find("division by zero"), std::string::npos);
    bed_.ErodePictureName = "missing.png";
    EXPECT_NE(failed(StrokeTool::Erode, 5).find("missing.png"), std::string::npos);
}

}  // namespace
}  // namespace quillbrand
