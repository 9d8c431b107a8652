#include "shell/LandscapeArea.h"

#include <gtest/gtest.h>

#include "base/NumberText.h"

namespace quillbrand {
namespace {

TEST(LandscapeArea, TakesEndsInMetresAndGivesANewSideToTheUnitsOrToTheMetres) {
    clsTerrain terrain;  // 257 points, 30 m apart
    const auto window = [&] {
        return std::to_string(terrain.MinTU()) + ".." + std::to_string(terrain.MaxTU());
    };
    SetLowest(terrain, "-615");
    SetHighest(terrain, "1500");
    EXPECT_EQ(window(), "-20..50") << "a half goes to the even unit";
    SetLowest(terrain, "-300");
    SetHighest(terrain, "900");
    const auto side = [&](const LandscapeTexts& texts, KeepHeights keep) {
        SetSide(terrain, texts, keep);
        return ShortestText(terrain.ScaleT()) + " m, " + window();
    };
    EXPECT_EQ(side({"15360", "", ""}, KeepHeights::InUnits), "60 m, -10..30");
    EXPECT_EQ(side({"15360", "-300", "900"}, KeepHeights::InMetres), "60 m, -6..14");
    EXPECT_EQ(side({"768", "3000", "6000"}, KeepHeights::InMetres), "3 m, 14..2000")
        << "the old highest holds the lowest back";
    EXPECT_EQ(side({"128", "", ""}, KeepHeights::InUnits), "0.5 m, 14..2000");
    EXPECT_EQ(side({"128", "0", "9"}, KeepHeights::InMetres), "1.0039062 m, 0..8") << "limited";
}

}  // namespace
}  // namespace quillbrand
