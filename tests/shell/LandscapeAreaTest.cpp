#include "shell/LandscapeArea.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/Fault.h"
#include "base/NumberText.h"

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

TEST_F(LandscapeArea, TakesEndsInMetresAndGivesANewSideToTheUnitsOrToTheMetres) {
    SetLowest(terrain, "-615");
    SetHighest(terrain, "1500");
    EXPECT_EQ(Window(), "-20..50") << "a half goes to the even unit";
    SetLowest(terrain, "-300");
    SetHighest(terrain, "900");
    const auto side = [&](const LandscapeTexts& texts, KeepHeights keep) {
        SetSide(terrain, texts, keep);
        return ShortestText(terrain.ScaleT()) + " m, " + Window();
    };
    EXPECT_EQ(side({"15360", "", ""}, KeepHeights::InUnits), "60 m, -10..30");
    EXPECT_EQ(side({"15360", "-300", "900"}, KeepHeights::InMetres), "60 m, -6..14");
    EXPECT_EQ(side({"768", "3000", "6000"}, KeepHeights::InMetres), "3 m, 14..2000")
        << "the old highest holds the lowest back";
    EXPECT_EQ(side({"128", "", ""}, KeepHeights::InUnits), "0.5 m, 14..2000");
    EXPECT_EQ(side({"128", "0", "9"}, KeepHeights::InMetres), "1.0039062 m, 0..8") << "limited";
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
