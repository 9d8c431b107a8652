#include "generator/Overlay.h"

#include <gtest/gtest.h>

#include "base/Fault.h"
#include "generator/GeneratorSettings.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"

namespace quillbrand {
namespace {

/// The heights of a 2 x 2 terrain after a relief was laid over them.
std::string Overlaid(int mode, int height, const std::string& old, const std::string& relief) {
    clsTerrain terrain = GridFrom(old);
    const clsTerrain source = GridFrom(relief);
    RecordingHost host;
    OverlayRelief(terrain, source.GetTerrain(), 1, height, mode, host);
    return TextOf(terrain);
}

TEST(OverlayRelief, MeetsTheOldHeightsByTheMode) {
    const std::string old = "100 -100 / 50 7";
    const std::string relief = "10 20 / 50 -3";
    EXPECT_EQ(Overlaid(ModifyModes::none, 100, old, relief), "110 -80 / 100 4");
    EXPECT_EQ(Overlaid(ModifyModes::Add, 50, old, relief), "105 -90 / 75 6");
    EXPECT_EQ(Overlaid(ModifyModes::Subtraction, 100, old, relief), "90 -120 / 0 10");
    EXPECT_EQ(Overlaid(ModifyModes::Multiplication, 10, old, relief), "100 -200 / 250 -2");
    EXPECT_EQ(Overlaid(ModifyModes::Division, 100, old, relief), "9 -5 / 1 -4");
    EXPECT_EQ(Overlaid(ModifyModes::highest, 100, old, relief), "100 20 / 50 7");
    EXPECT_EQ(Overlaid(ModifyModes::lowest, 100, old, relief), "10 -100 / 50 -3");
    EXPECT_EQ(Overlaid(7, 100, old, relief), old);
    EXPECT_EQ(Overlaid(-1, 100, old, relief), old);
}

TEST(OverlayRelief, FaultsAtADivisionByZeroAndBeyond32Bits) {
    using namespace ModifyModes;
    EXPECT_EQ(Overlaid(Division, 100, "5 5 / 5 5", "-2 0 / 1 4"), "-5 5 / 2 1");
    EXPECT_THROW(Overlaid(Division, 100, "5 5 / 5 5", "0 0 / 0 -1"), Fault);
    EXPECT_THROW(Overlaid(Division, 1, "5 5 / 5 0", "0 0 / 0 -100"), Fault);
    EXPECT_EQ(Overlaid(Add, 100, "2147483640 0 / 0 0", "7 0 / 0 0"), "2147483647 0 / 0 0");
    EXPECT_THROW(Overlaid(Add, 100, "2147483640 0 / 0 0", "8 0 / 0 0"), Fault);
    EXPECT_THROW(Overlaid(Subtraction, 100, "-2147483640 0 / 0 0", "9 0 / 0 0"), Fault);
}

TEST(OverlayRelief, ReachesOneRowOfTheMarginAndNothingBeyondTheTerrain) {
    clsTerrain terrain = GridFrom("0 0 / 0 0");
    RecordingHost host;
    OverlayRelief(terrain, SquareArray(20, 3), 1, 100, ModifyModes::Add, host);
    EXPECT_EQ(terrain.GetPoint(2, 2), 3);
    EXPECT_EQ(terrain.GetPoint(3, 3), 0);
    OverlayRelief(terrain, SquareArray(20, 3), 10, 100, ModifyModes::Add, host);
    EXPECT_EQ(terrain.GetPoint(3, 3), 3);
    EXPECT_EQ(terrain.max(), 6);
}

TEST(OverlayPreview, MultipliesByThePercentageBeforeItDivides) {
    const auto laid = [](int mode, int height) {
        clsTerrain preview = GridFrom("9 9 9 / 9 10 9 / 9 9 9");
        const clsTerrain current =
            GridFrom("0 0 0 0 0 / 0 0 0 0 0 / 0 0 40 0 0 / 0 0 0 0 0 / 0 0 0 0 0");
        OverlayPreview(preview, current, height, mode);
        EXPECT_EQ(preview.GetPoint(0, 0), 9);
        return preview.GetPoint(1, 1);
    };
    const int expected[] = {10, 45, 35, 200, 7, 40, 5};
    for (int mode = ModifyModes::none; mode <= ModifyModes::lowest; ++mode)
        EXPECT_EQ(laid(mode, 50), expected[mode]) << mode;
}

}  // namespace
}  // namespace quillbrand
