#include "editor/Resize.h"

#include <gtest/gtest.h>

#include "tests/support/EditingTwins.h"
#include "tests/support/Faults.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"

namespace quillbrand {
namespace {

/// Random heights with a header of their own, some of them near the ends of 32 bits.
clsTerrain AnyTerrain(int turn, RandomSource& chance) {
    const Height most = turn % 4 == 0 ? 2140000000 : 32767;
    clsTerrain terrain =
        RandomGrid(AnyOf(1, 70, chance), turn % 5 == 0 ? most / 2 : -most, most, chance);
    terrain.ScaleT(17);
    terrain.MaxTU(99);
    terrain.CRVM(1);
    terrain.FixHeight(true);
    return terrain;
}

TEST(HalveTerrain, AgreesWithTheSlowTwin) {
    for (int turn = 0; turn < 200; ++turn) {
        RandomSource chance(static_cast<std::uint32_t>(turn));
        RecordingHost host;
        clsTerrain fast = AnyTerrain(turn, chance);
        clsTerrain slow = fast;
        QBTools2::HalveTerrain(fast, host);
        SlowTwins::HalveTerrain(slow);
        ASSERT_TRUE(SameGrid(fast, slow)) << "turn " << turn;
        ASSERT_EQ(HeaderText(fast), HeaderText(slow));
        ASSERT_TRUE(fast.FixHeight());
        ASSERT_EQ(host.statuses, std::vector<std::string>{"Terrain resize..."});
        ASSERT_TRUE(host.isBusy);
        ASSERT_EQ(host.progress.front(), 0);
        ASSERT_EQ(host.progress.back(), 100);
    }
}

TEST(DoubleTerrain, AgreesWithTheSlowTwinInAllModesAndDrawsTheSameNumbers) {
    int faults = 0;
    for (int turn = 0; turn < 400; ++turn) {
        RandomSource chance(static_cast<std::uint32_t>(turn));
        clsTerrain fast = AnyTerrain(turn, chance);
        const int mode = turn % 3;
        const int roughness = turn % 7 < 3 ? 0 : AnyOf(1, 10, chance);
        clsTerrain slow = fast;
        const clsTerrain before = fast;
        RecordingHost host(5);
        RandomSource twin(5);
        const bool failed =
            FaultOf([&] { SlowTwins::DoubleTerrain(slow, mode, roughness, twin); }) != "no fault";
        const std::string text =
            FaultOf([&] { QBTools2::DoubleTerrain(fast, host, mode, roughness); });
        ASSERT_EQ(text != "no fault", failed) << "turn " << turn;
        ASSERT_TRUE(SameGrid(fast, failed ? before : slow)) << "turn " << turn;
        ASSERT_EQ(HeaderText(fast), HeaderText(failed ? before : slow));
        ASSERT_TRUE(failed || host.chance.Uniform() == twin.Uniform()) << "turn " << turn;
        ASSERT_EQ(host.statuses, std::vector<std::string>{"Resize Terrain..."});
        faults += failed ? 1 : 0;
    }
    EXPECT_GT(faults, 10);
}

TEST(DoubleTerrain, SpreadsAPointToTheRightDownAndBetween) {
    RecordingHost host;
    clsTerrain terrain = GridFrom("0 10 / 30 100");
    QBTools2::DoubleTerrain(terrain, host);
    EXPECT_EQ(TextOf(terrain), "0 5 10 / 15 50 55 / 30 65 100") << "the diagonal mixes two points";
    terrain = GridFrom("1 2 / 3 4");
    QBTools2::DoubleTerrain(terrain, host, 2);
    EXPECT_EQ(TextOf(terrain), "1 1 2 / 1 1 2 / 3 3 4");
    EXPECT_NE(FaultOf([&] { QBTools2::DoubleTerrain(terrain, host, 3); }), "no fault");
    EXPECT_EQ(terrain.Size(), 2);
}

class ResizeTerrainTest : public ::testing::Test {
  protected:
    ResizeTerrainTest() {
        terrain_ = RandomGrid(257, -30000, 30000, chance_);
        terrain_.HeightScale(240);
        terrain_.BaseHeight(40);
    }

    void Resize(int size, bool isEmpty = false) {
        ResizeTerrain(terrain_, {.size = size, .mode = 2, .isEmpty = isEmpty}, host_);
    }

    RandomSource chance_{3};
    RecordingHost host_;
    clsTerrain terrain_;
};

TEST_F(ResizeTerrainTest, AsksOnceAndDoublesTheWindowWithEveryStep) {
    host_.answers = {Answer::Yes};
    const clsTerrain before = terrain_;
    Resize(1024);
    EXPECT_EQ(terrain_.Size(), 1024);
    EXPECT_EQ(HeaderText(terrain_),
              "XPoints 1025 ScaleT 30 CRAD 6370 CRVM 0 HeightScale 960 BaseHeight 160");
    ASSERT_EQ(host_.questions.size(), 1u);
    EXPECT_EQ(host_.questions[0].text,
              "Adjust the point spacing to keep the real-world size as before?");
    EXPECT_EQ(host_.questions[0].title, "Resize terrain");
    EXPECT_EQ(host_.questions[0].buttons, Buttons::YesNo);
    for (const auto& [x, y] : {std::pair{3, 5}, {200, 77}, {255, 0}})
        for (int i = 0; i < 16; ++i)
            ASSERT_EQ(terrain_.GetPoint(4 * x + i % 4, 4 * y + i / 4), before.GetPoint(x, y));
}

TEST_F(ResizeTerrainTest, HalvesTheWindowWithEveryStepButNotAfterNo) {
    Resize(128);
    EXPECT_EQ(terrain_.Size(), 128);
    EXPECT_EQ(terrain_.MaxTU(), 160) << "the host answers No";
    terrain_.Init(1025);
    host_.answers = {Answer::Yes, Answer::Yes};
    Resize(128);
    EXPECT_EQ(terrain_.Size(), 128);
    EXPECT_EQ(terrain_.MinTU(), -10);
    EXPECT_EQ(terrain_.MaxTU(), 20);
    terrain_.Init(257);
    terrain_.HeightScale(20);
    terrain_.BaseHeight(3);
    Resize(128);
    EXPECT_EQ(terrain_.MaxTU(), 6) << "half of 13 goes to even";
    EXPECT_EQ(terrain_.HeightScale(), 9) << "the lower end reads -6 by then";
}

TEST_F(ResizeTerrainTest, DiscardsATerrainThatHasTheSizeOrIsEmpty) {
    Resize(256);
    EXPECT_EQ(terrain_.max(), -400000);
    EXPECT_EQ(terrain_.Range(), 0);
    EXPECT_EQ(terrain_.MinTU(), -10);
    EXPECT_EQ(terrain_.MaxTU(), 10);
    FillWithChance(terrain_, -5, 5, chance_);
    Resize(512, true);
    EXPECT_EQ(terrain_.Size(), 512);
    EXPECT_EQ(terrain_.Range(), 0);
    EXPECT_TRUE(host_.questions.empty());
    EXPECT_EQ(host_.statuses.back(), "Resize Terrain...");
}

TEST_F(ResizeTerrainTest, StopsAfterFiveStepsWhereItCannotReachTheSize) {
    terrain_.Init(301);
    Resize(256);
    EXPECT_EQ(terrain_.Size(), 150);
}

TEST_F(ResizeTerrainTest, SaysWhatItCannotDo) {
    EXPECT_EQ(FaultOf([&] { Resize(100); }),
              "a terrain cannot be brought to the size 100, only to 128, 256, 512, 1024, 2048");
    terrain_.MaxTU(20000);
    host_.answers = {Answer::Yes};
    EXPECT_NE(FaultOf([&] { Resize(512); }).find("overflow"), std::string::npos);
}

}  // namespace
}  // namespace quillbrand
