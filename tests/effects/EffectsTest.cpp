#include <gtest/gtest.h>

#include "base/Fault.h"
#include "effects/QBFilter.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"

namespace quillbrand {
namespace {

/// Runs effects as the panel does, with an elevator and a river bed of their own.
class ApplyEffect : public ::testing::Test {
  protected:
    void Apply(int code, clsTerrain& terrain, float strength, const QBFilter::Area& area) {
        QBFilter::ApplyEffect(code, terrain, strength, area,
                              {elevator_, riverBed_, [] { return std::nullopt; }}, host_);
        EXPECT_FALSE(host_.isBusy);
    }

    RecordingHost host_;
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
    EXPECT_EQ(host_.statuses.back(), "smoothes....");
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
    const auto shifted = [&](int code, float strength) {
        clsTerrain terrain = GridFrom("-9000 200 300 / 400 5000 -600 / 700 -800 30000");
        Apply(code, terrain, strength, {.extent = 1, .startX = 1, .startY = 1, .zMin = 0});
        return AllCells(terrain);
    };
    const auto byBody = [&](auto body, float strength) {
        clsTerrain terrain = GridFrom("-9000 200 300 / 400 5000 -600 / 700 -800 30000");
        body(terrain, strength, {}, host_);
        host_.Busy(false);
        return AllCells(terrain);
    };
    EXPECT_EQ(shifted(6, 8), byBody(QBFilter::FilterGammaShift, 3));
    EXPECT_EQ(shifted(7, 4), byBody(QBFilter::FilterGammaShift, 0.2f));
    EXPECT_EQ(shifted(8, 4), byBody(QBFilter::FilterSinusShift, 0));
    EXPECT_EQ(shifted(10, 4), byBody(QBFilter::FilterStretch, 0));
    EXPECT_EQ(shifted(3, 4), byBody(QBFilter::FilterInvert, 0));
}

TEST_F(ApplyEffect, SmoothsAfterTheElevatorEvenWhenThatIsNotArmed) {
    clsTerrain terrain = GridFrom("0 0 0 / 0 5000 0 / 0 0 0");
    Apply(4, terrain, 0, {.extent = 3, .zMin = -1000});
    EXPECT_EQ(host_.statuses, (std::vector<std::string>{"Elevator shift...", "smoothes...."}));
    EXPECT_LT(terrain.GetPoint(1, 1), 1500);
}

TEST_F(ApplyEffect, ErodesAllHeightsByDropsAndNamesTheRiversPicture) {
    clsTerrain terrain = GridFrom("1 2 / 3 4");
    Apply(12, terrain, 0, {.extent = 2, .zMin = 0, .zMax = 0});
    EXPECT_EQ(host_.statuses.back(), "Terrain erode ...");
    EXPECT_THROW(Apply(5, terrain, 0, {.extent = 2}), Fault);
    EXPECT_EQ(riverBed_.ErodePictureName, "erode0.flt");
}

}  // namespace
}  // namespace quillbrand
