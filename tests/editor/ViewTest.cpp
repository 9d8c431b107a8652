#include "editor/View.h"

#include <gtest/gtest.h>

#include "editor/PointTexts.h"
#include "editor/ZView.h"
#include "tests/support/Grids.h"

namespace quillbrand {
namespace {

TEST(NextZoom, StaysWithinItsLimitsAndTheWindow) {
    EXPECT_EQ(NextZoom(1, 2, 128, 700), 2);
    EXPECT_EQ(NextZoom(4, 2, 128, 700), 4);
    EXPECT_EQ(NextZoom(0.25, 0.5, 128, 700), 0.25);
    EXPECT_EQ(NextZoom(3, 0, 128, 700), 1);
    EXPECT_EQ(NextZoom(1, 1, 2048, 700), 700.0 / 2048);
    EXPECT_EQ(NextZoom(1, 0, 2048, 700), 700.0 / 2048) << "100 % has to fit as well";
    EXPECT_EQ(NextZoom(700.0 / 2048, 1, 2048, 900), 700.0 / 2048) << "lowered for good";
}

TEST(ZoomText, ShowsSizeAndPercent) {
    EXPECT_EQ(ZoomText(1, 256), "256 x 256   Zoom =100.%");
    EXPECT_EQ(ZoomText(717.0 / 2048, 2048), "2048 x 2048   Zoom =35.01%");
    EXPECT_EQ(PictureSide(1, 256), 259);
    EXPECT_EQ(PictureSide(0.25, 128), 33);
    EXPECT_EQ(LineWidth(259, 256), 2);
    EXPECT_EQ(LineWidth(717, 2048), 1);
}

TEST(WidthInPoints, IsTheSameOnTheScreenAtEveryZoom) {
    EXPECT_EQ(WidthInPoints(2, 257, 259), 2);
    EXPECT_EQ(WidthInPoints(2, 2049, 717), 6);
    EXPECT_EQ(WidthInPoints(6, 129, 524), 1);
    EXPECT_EQ(WidthInPoints(1, 129, 524), 1);
    EXPECT_EQ(TrailWidth(1), 2);
    EXPECT_EQ(TrailWidth(0.35), 1);
    EXPECT_EQ(TrailWidth(2.5), 4) << "halves to even";
}

/// Five points per side; height scale 30, base 5, 30 metres a point.
clsTerrain SmallTerrain() {
    return GridFrom(
        "0 0 0 0 0 / 0 100 200 -300 0 / 0 -32768 32767 0 0 / 0 5000 0 0 0 / "
        "0 0 0 0 0");
}

std::string JoinedTexts(const clsTerrain& terrain, double x, double y) {
    const auto texts = PointTexts(terrain, x, y);
    std::string joined;
    if (texts)
        for (const std::string& text : *texts)
            joined += (joined.empty() ? "" : "|") + text;
    return joined;
}

TEST(PointTexts, CountYFromTheBottomAndRoundThePlace) {
    const clsTerrain terrain = SmallTerrain();
    EXPECT_EQ(JoinedTexts(terrain, 1, 3), "7.29 TU|5000 Pixel|X=1|Y=1|218.665 m");
    EXPECT_EQ(JoinedTexts(terrain, 3.4, 0.6), "4.86 TU|-300 Pixel|X=3|Y=3|145.88 m");
    EXPECT_EQ(JoinedTexts(terrain, 1.5, 1.2), "5.09 TU|200 Pixel|X=2|Y=3|152.747 m");
}

TEST(PointTexts, AreOnlyThereWithinTheTerrain) {
    const clsTerrain terrain = SmallTerrain();
    for (const auto& [x, y] :
         {std::pair{0.0, 2.0}, {2.0, 0.0}, {4.0, 2.0}, {2.0, 4.0}, {-1.0, 2.0}})
        EXPECT_EQ(PointTexts(terrain, x, y), std::nullopt) << x << " " << y;
    EXPECT_TRUE(PointTexts(terrain, 0.01, 3.99));
}

TEST(PointTexts, QueryNumbersThatCannotBeShown) {
    clsTerrain terrain = SmallTerrain();
    terrain.ScaleT(3e38f);
    EXPECT_EQ(JoinedTexts(terrain, 2, 2).substr(0, 8), "20. TU|3");
    EXPECT_EQ(PointTexts(terrain, 2, 2)->back(), "?");
}

/// How many pixels from the bottom up are black in a column of the picture.
int BlackIn(const Picture& picture, int x) {
    int black = 0;
    while (black < picture.Height() && picture.Point(x, picture.Height() - 1 - black) == 0)
        ++black;
    for (int y = 0; y < picture.Height() - black; ++y)
        EXPECT_NE(picture.Point(x, y), 0) << "a gap at " << x << " " << y;
    return black;
}

TEST(ZView, FillsItsHeightWithTheSpanOfTheTerrain) {
    clsTerrain terrain =
        GridFrom("0 0 0 0 0 / 0 -32768 -16384 0 32767 / 0 32767 0 0 0 / 0 0 0 0 0 / 0 0 0 0 0");
    Picture picture(400, 200);
    const Section row{1, true, false};
    const double range = SectionRange(terrain, row, picture);
    EXPECT_EQ(range, 65535);
    DrawSection(picture, terrain, row, range);
    EXPECT_NEAR(BlackIn(picture, 100), 0, 1);
    EXPECT_NEAR(BlackIn(picture, 200), 50, 1);
    EXPECT_NEAR(BlackIn(picture, 300), 100, 1);
    EXPECT_NEAR(BlackIn(picture, 399), 200, 1);

    const Section column{1, false, false};
    DrawSection(picture, terrain, column, range);
    EXPECT_NEAR(BlackIn(picture, 100), 0, 1);
    EXPECT_NEAR(BlackIn(picture, 200), 200, 1);
    EXPECT_NEAR(BlackIn(picture, 300), 100, 1);
}

TEST(ZView, HasOneScaleForBothDirectionsInTheRealView) {
    clsTerrain terrain =
        GridFrom("0 0 0 0 0 / 0 -32768 0 32767 0 / 0 0 0 0 0 / 0 0 0 0 0 / 0 0 0 0 0");
    terrain.HeightScale(4);
    terrain.BaseHeight(50);
    Picture picture(400, 300);
    const Section row{1, true, true};
    const double range = SectionRange(terrain, row, picture);
    EXPECT_EQ(range, 30.0 * 4 * 300 / 400);  // 4 intervals of 30 metres on 400 pixels
    DrawSection(picture, terrain, row, range);
    // 100 pixels a point, and 4 TU, as wide as 4 points, from the lowest height to the highest.
    EXPECT_NEAR(BlackIn(picture, 100), 0, 1);
    EXPECT_NEAR(BlackIn(picture, 200), 200, 1);
    EXPECT_EQ(BlackIn(picture, 300), 300) << "cut at the picture's edge";
}

TEST(ZView, HasNoSpanForAFlatTerrain) {
    clsTerrain terrain = GridFrom("7 7 7 / 7 7 7 / 7 7 7");
    const Picture picture(400, 300);
    EXPECT_EQ(SectionRange(terrain, {1, true, false}, picture), 0);
    EXPECT_EQ(SectionRange(terrain, {1, true, true}, picture), 30.0 * 2 * 300 / 400);
}

}  // namespace
}  // namespace quillbrand
