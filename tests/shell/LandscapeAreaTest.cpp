#include "shell/LandscapeArea.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/Fault.h"

namespace quillbrand {
namespace {

/// 257 points, 30 m apart, heights from -300 to 900 m.
class LandscapeArea : public testing::Test {
  protected:
    LandscapeArea() {
        terrain.MinTU(-10);
        terrain.MaxTU(30);
    }

    std::string Window() const {
        return std::to_string(terrain.MinTU()) + ".." + std::to_string(terrain.MaxTU());
    }

    clsTerrain terrain;
};

TEST_F(LandscapeArea, WritesTheEndsOfTheHeightsInMetres) {
    SetLowest(terrain, "-615");
    SetHighest(terrain, "1500");
    EXPECT_EQ(Window(), "-20..50") << "a half goes to the even unit";
    SetLowest(terrain, "9000");
    EXPECT_EQ(terrain.HeightScale(), 1) << "just below the other end";
}

TEST_F(LandscapeArea, GivesANewSideToTheUnitsOrToTheMetres) {
    const LandscapeTexts texts{"15360", "-300", "900"};
    SetSide(terrain, texts, KeepHeights::InUnits);
    EXPECT_EQ(terrain.ScaleT(), 60);
    EXPECT_EQ(Window(), "-10..30");
    SetSide(terrain, texts, KeepHeights::InMetres);
    EXPECT_EQ(terrain.ScaleT(), 60);
    EXPECT_EQ(Window(), "-6..14") << "an odd window rounds";
    SetSide(terrain, {"768", "3000", "6000"}, KeepHeights::InMetres);
    EXPECT_EQ(Window(), "14..2000") << "the old highest holds the lowest back";

    SetSide(terrain, {"128", "", ""}, KeepHeights::InUnits);
    EXPECT_EQ(terrain.ScaleT(), 0.5F) << "as it stands";
    SetSide(terrain, {"128", "-100", "100"}, KeepHeights::InMetres);
    EXPECT_EQ(terrain.ScaleT(), 257 / 256.0F) << "limited";
}

TEST_F(LandscapeArea, StaysAsItWasWhenAHeightDoesNotFit) {
    EXPECT_THROW(SetLowest(terrain, "-1000000"), Fault);
    EXPECT_THROW(SetHighest(terrain, "983000"), Fault) << "too far from the other end";
    for (const char* highest : {"40000", "-33000", "32767"})
        EXPECT_THROW(SetSide(terrain, {"257", "-300", highest}, KeepHeights::InMetres), Fault);
    EXPECT_EQ(terrain.ScaleT(), 30);
    for (const float scale : {0.0F, -1.0F, std::numeric_limits<float>::quiet_NaN()}) {
        terrain.ScaleT(scale);
        EXPECT_THROW(SetLowest(terrain, "1"), Fault);
    }
    EXPECT_EQ(Window(), "-10..30");
    terrain.Init(1);
    EXPECT_THROW(SetSide(terrain, {"100", "0", "0"}, KeepHeights::InUnits), Fault);
}

}  // namespace
}  // namespace quillbrand
