#include <gtest/gtest.h>

#include "base/Fault.h"
#include "effects/QBFilter.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/SlowTwins.h"

namespace quillbrand {
namespace {

using QBFilter::Area;

/// Runs effects as the panel does, with an elevator and a river bed of their own.
class ApplyEffect : public ::testing::Test {
  protected:
    void Apply(int code, clsTerrain& terrain, float strength, const Area& area) {
        QBFilter::ApplyEffect(code, terrain, strength, area,
                              {elevator_, riverBed_, [this] { return drops_; }}, host_);
        EXPECT_FALSE(host_.isBusy);
    }

    RecordingHost host_;
    std::optional<ErosionSettings> drops_;  ///< the answer of the dialog
    Elevator elevator_;
    QBFilter::RiverBed riverBed_;
};

TEST_F(ApplyEffect, GivesSmoothTheStrengthPlusTwoAndThePanelsLimits) {
    clsTerrain terrain = GridFrom("100 200 300 / 400 5000 600 / 700 800 900");
    const auto before = AllCells(terrain);
    Apply(1, terrain, 0, {.extent = 3});
    EXPECT_EQ(AllCells(terrain), before);
    Apply(1, terrain, 1, {.extent = 3, .zMin = 100, .zMax = 5000});
    EXPECT_EQ(terrain.GetPoint(1, 1), 5000);
    EXPECT_NE(AllCells(terrain), before);
}

TEST_F(ApplyEffect, ScalesForOptimizedAndDoesNothingForRainAndUnknownCodes) {
    clsTerrain terrain = GridFrom("1 2 / 3 4");
    for (const int code : {9, 0, 13, -1})
        Apply(code, terrain, 5, {.extent = 2});
    EXPECT_EQ(TextOf(terrain), "1 2 / 3 4");
    EXPECT_TRUE(host_.statuses.empty());
    Apply(11, terrain, 5, {.extent = 2});
    EXPECT_EQ(terrain.Range(), 49152);
    EXPECT_EQ(host_.statuses.back(), "Scale Terrain...");
    EXPECT_EQ(host_.screens, 1);
}

TEST_F(ApplyEffect, TakesTheWholeGridAndAllHeightsForTheShiftsWhateverTheArea) {
    struct Case {
        int code;
        float strength;
        void (*body)(clsTerrain&, float&, const Area&, Host&);
        float bodyStrength;
    };
    for (auto [code, strength, body, bodyStrength] :
         {Case{6, 8, QBFilter::FilterGammaShift, 3}, Case{7, 4, QBFilter::FilterGammaShift, 0.2f},
          Case{8, 4, QBFilter::FilterSinusShift, 0}, Case{10, 4, QBFilter::FilterStretch, 0},
          Case{3, 4, QBFilter::FilterInvert, 0}}) {
        clsTerrain shifted = GridFrom("-9000 200 300 / 400 5000 -600 / 700 -800 30000");
        clsTerrain byBody = shifted;
        Apply(code, shifted, strength, {.extent = 1, .startX = 1, .startY = 1, .zMin = 0});
        body(byBody, bodyStrength, {}, host_);
        host_.Busy(false);
        EXPECT_TRUE(AllCells(shifted) == AllCells(byBody)) << code;
    }
}

TEST_F(ApplyEffect, SmoothsAfterTheElevatorEvenWhenThatIsNotArmed) {
    clsTerrain terrain = GridFrom("0 0 0 / 0 5000 0 / 0 0 0");
    Apply(4, terrain, 0, {.extent = 3, .zMin = -1000});
    EXPECT_EQ(host_.statuses, (std::vector<std::string>{"Elevator shift...", "smoothes...."}));
    EXPECT_LT(terrain.GetPoint(1, 1), 1500);
}

TEST_F(ApplyEffect, ErodesAllHeightsByDropsOrOnlyScalesWhenTheUserCancels) {
    const Area none{.extent = 40, .zMin = 0, .zMax = 0};
    clsTerrain terrain = RandomGrid(40, -20000, 30000, host_.chance);
    clsTerrain expected = terrain;
    expected.ScaleTerrain();
    Apply(12, terrain, 3, none);
    EXPECT_TRUE(SameGrid(terrain, expected));
    EXPECT_EQ(host_.statuses.back(), "Terrain erode ...");
    EXPECT_EQ(host_.progress.back(), 0);

    drops_ = ErosionSettings{1000, 1, 4, 3};
    RandomSource chance = host_.chance;
    SlowTwins::FilterNaturalErosion(expected, {.extent = 40}, *drops_, chance);
    EXPECT_FALSE(SameGrid(terrain, expected));
    Apply(12, terrain, 3, none);
    EXPECT_TRUE(SameGrid(terrain, expected));
}

TEST_F(ApplyEffect, NamesTheRiversPicture) {
    clsTerrain terrain = GridFrom("1 2 / 3 4");
    riverBed_.ErodePictureName = "other.flt";
    EXPECT_THROW(Apply(5, terrain, 0, {.extent = 2}), Fault);
    EXPECT_EQ(riverBed_.ErodePictureName, "erode0.flt");
}

}  // namespace
}  // namespace quillbrand
