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

TEST(Resizing, AgreesWithTheSlowTwinsAndDrawsTheSameNumbers) {
    int faults = 0;
    for (int turn = 0; turn < 600; ++turn) {
        RandomSource chance(static_cast<std::uint32_t>(turn));
        clsTerrain fast = AnyTerrain(turn / 4, chance);
        const int mode = turn % 4;
        const int roughness = turn % 7 < 3 ? 0 : AnyOf(1, 10, chance);
        clsTerrain slow = fast;
        const clsTerrain before = fast;
        RecordingHost host(5);
        RandomSource twin(5);
        const bool failed = FaultOf([&] {
                                mode == 3 ? SlowTwins::HalveTerrain(slow)
                                          : SlowTwins::DoubleTerrain(slow, mode, roughness, twin);
                            }) != "no fault";
        const std::string text = FaultOf([&] {
            mode == 3 ? QBTools2::HalveTerrain(fast, host)
                      : QBTools2::DoubleTerrain(fast, host, mode, roughness);
        });
        ASSERT_EQ(text != "no fault", failed) << "turn " << turn;
        ASSERT_TRUE(SameGrid(fast, failed ? before : slow)) << "turn " << turn;
        ASSERT_EQ(HeaderText(fast), HeaderText(failed ? before : slow));
        ASSERT_TRUE(fast.FixHeight() && host.isBusy);
        ASSERT_TRUE(failed || host.chance.Uniform() == twin.Uniform()) << "turn " << turn;
        ASSERT_EQ(host.statuses.at(0), mode == 3 ? "Terrain resize..." : "Resize Terrain...");
        ASSERT_TRUE(failed || (host.progress.front() == 0 && host.progress.back() == 100));
        faults += failed ? 1 : 0;
    }
    EXPECT_GT(faults, 10);
}

class ResizeTerrainTest : public ::testing::Test {
  protected:
    void Resize(int size, bool isEmpty = false) {
        ResizeTerrain(terrain_, {.size = size, .mode = 2, .isEmpty = isEmpty}, host_);
    }

    RandomSource chance_{3};
    RecordingHost host_;
    clsTerrain terrain_ = RandomGrid(257, -30000, 30000, chance_);
};

TEST_F(ResizeTerrainTest, AsksOnceAndDoublesTheWindowWithEveryStep) {
    host_.answers = {Answer::Yes};
    Resize(1024);
    EXPECT_EQ(HeaderText(terrain_),
              "XPoints 1025 ScaleT 30 CRAD 6370 CRVM 0 HeightScale 120 BaseHeight 20");
    ASSERT_EQ(host_.questions.size(), 1u);
    EXPECT_EQ(host_.questions[0].text,
              "Adjust the point spacing to keep the real-world size as before?");
    EXPECT_EQ(host_.questions[0].title, "Resize terrain");
    EXPECT_EQ(host_.questions[0].buttons, Buttons::YesNo);
}

TEST_F(ResizeTerrainTest, HalvesTheWindowWithEveryStepButNotAfterNo) {
    const struct {
        int points;
        Answer answer;
        int size, MinTU, MaxTU, HeightScale;
    } cases[] = {
        {257, Answer::No, 128, -7, 13, 20},
        // Half of 13 goes to even; the lower end reads -6 by then.
        {257, Answer::Yes, 128, -3, 6, 9},
        {1025, Answer::Yes, 128, -1, 2, 3},
        {301, Answer::No, 150, -7, 13, 20},  // it never comes to 256
    };
    for (const auto& wanted : cases) {
        terrain_.Init(wanted.points);
        terrain_.HeightScale(20);
        terrain_.BaseHeight(3);
        host_.answers = {wanted.answer};
        Resize(wanted.size == 150 ? 256 : wanted.size);
        EXPECT_EQ(terrain_.Size(), wanted.size);
        EXPECT_EQ(terrain_.MinTU(), wanted.MinTU) << wanted.points;
        EXPECT_EQ(terrain_.MaxTU(), wanted.MaxTU) << wanted.points;
        EXPECT_EQ(terrain_.HeightScale(), wanted.HeightScale) << wanted.points;
    }
}

TEST_F(ResizeTerrainTest, DiscardsATerrainThatHasTheSizeOrIsEmpty) {
    for (const int size : {256, 512}) {
        FillWithChance(terrain_, -5, 5, chance_);
        Resize(size, size == 512);
        EXPECT_EQ(terrain_.Size(), size);
        EXPECT_EQ(terrain_.max(), -400000);
        EXPECT_EQ(terrain_.Range(), 0);
        EXPECT_EQ(terrain_.MinTU(), -10);
        EXPECT_EQ(terrain_.MaxTU(), 10);
    }
    EXPECT_TRUE(host_.questions.empty());
    EXPECT_EQ(host_.statuses.back(), "Resize Terrain...");
}

TEST_F(ResizeTerrainTest, SaysWhatItCannotDo) {
    EXPECT_EQ(FaultOf([&] { Resize(100); }),
              "a terrain cannot be brought to the size 100, only to 128, 256, 512, 1024, 2048");
    EXPECT_NE(FaultOf([&] { QBTools2::DoubleTerrain(terrain_, host_, 3); }), "no fault");
    terrain_.MaxTU(20000);
    host_.answers = {Answer::Yes};
    EXPECT_NE(FaultOf([&] { Resize(512); }).find("overflow"), std::string::npos);
}

}  // namespace
}  // namespace quillbrand
