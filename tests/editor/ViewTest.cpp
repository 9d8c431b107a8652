#include "editor/View.h"

#include <gtest/gtest.h>

#include "editor/HeightPicture.h"
#include "editor/Palette.h"
#include "editor/PointTexts.h"
#include "editor/ZView.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"

namespace quillbrand {
namespace {

TEST(NextZoom, StaysWithinItsLimitsAndTheWindow) {
    EXPECT_EQ(NextZoom(1, 2, 128, 700), 2);
    EXPECT_EQ(NextZoom(4, 2, 128, 700), 4);
    EXPECT_EQ(NextZoom(0.25, 0.5, 128, 700), 0.25);
    EXPECT_EQ(NextZoom(3, 0, 128, 700), 1);
    EXPECT_EQ(NextZoom(1, 0, 2048, 700), 700.0 / 2048) << "100 % has to fit as well";
}

TEST(View, HasItsSizesInTextPixelsAndPoints) {
    EXPECT_EQ(ZoomText(1, 256), "256 x 256   Zoom =100.%");
    EXPECT_EQ(ZoomText(717.0 / 2048, 2048), "2048 x 2048   Zoom =35.01%");
    EXPECT_EQ(PictureSide(0.25, 128), 33);
    EXPECT_EQ(LineWidth(259, 256), 2);
    EXPECT_EQ(WidthInPoints(2, 2049, 717), 6);
    EXPECT_EQ(WidthInPoints(1, 129, 524), 1);
    EXPECT_EQ(TrailWidth(2.5), 4) << "halves to even";
}

std::string JoinedTexts(const clsTerrain& terrain, double x, double y) {
    std::string joined;
    if (const auto texts = PointTexts(terrain, x, y))
        for (const std::string& text : *texts)
            joined += (joined.empty() ? "" : "|") + text;
    return joined;
}

TEST(PointTexts, CountYFromTheBottomRoundThePlaceAndLieWithinTheTerrain) {
    clsTerrain terrain =
        GridFrom("0 0 0 0 0 / 0 1 200 -300 0 / 0 1 32767 0 0 / 0 5000 0 0 0 / 0 0 0 0 0");
    EXPECT_EQ(JoinedTexts(terrain, 1, 3), "7.29 TU|5000 Pixel|X=1|Y=1|218.665 m");
    EXPECT_EQ(JoinedTexts(terrain, 3.4, 0.6), "4.86 TU|-300 Pixel|X=3|Y=3|145.88 m");
    EXPECT_EQ(JoinedTexts(terrain, 1.5, 1.2), "5.09 TU|200 Pixel|X=2|Y=3|152.747 m");
    for (const auto& [x, y] : {std::pair{0.0, 2.0}, {2.0, 0.0}, {4.0, 2.0}, {2.0, 4.0}})
        EXPECT_EQ(JoinedTexts(terrain, x, y), "") << x << " " << y;
    EXPECT_NE(JoinedTexts(terrain, 0.01, 3.99), "");
    terrain.ScaleT(3e38f);
    EXPECT_EQ(PointTexts(terrain, 2, 2)->back(), "?") << "a number that cannot be shown";
}

/// How many pixels from the bottom up are black in a column of the picture.
int BlackIn(const Picture& picture, int x) {
    int black = 0;
    while (black < picture.Height() && picture.Point(x, picture.Height() - 1 - black) == 0)
        ++black;
    return black;
}

TEST(ZView, FillsItsHeightWithTheSpanOfTheTerrainOrKeepsOneScale) {
    clsTerrain terrain =
        GridFrom("0 0 0 0 0 / 0 -32768 -16384 0 32767 / 0 32767 0 0 0 / 0 0 0 0 0 / 0 0 0 0 0");
    terrain.HeightScale(4);
    terrain.BaseHeight(50);
    const struct {
        Section section;
        double range;
        std::array<int, 3> black;  ///< at the points 1 to 3
    } cases[] = {{{1, true, false}, 65535, {0, 75, 150}},
                 {{1, false, false}, 65535, {0, 300, 150}},
                 // 4 TU from the lowest height to the highest are as wide as 4 points.
                 {{1, true, true}, 30.0 * 4 * 300 / 400, {0, 100, 200}},
                 {{1, false, true}, 30.0 * 4 * 300 / 400, {0, 300, 200}}};
    for (const auto& [section, range, black] : cases) {
        Picture picture(400, 300);
        ASSERT_EQ(SectionRange(terrain, section, picture), range);
        DrawSection(picture, terrain, section, range);
        for (int i = 0; i < 3; ++i)
            EXPECT_NEAR(BlackIn(picture, 100 + 100 * i), black[static_cast<std::size_t>(i)], 1);
    }
    EXPECT_EQ(SectionRange(GridFrom("7 7 / 7 7"), {1, true, false}, Picture(4, 3)), 0);
}

TEST(HeightPicture, HasOnePixelAPointInTheColourOfItsBandOf256Heights) {
    EXPECT_EQ(PaletteTable(0, 1), 0x1C5371);
    EXPECT_EQ(PaletteTable(224, 7), 0x95FAFD);
    EXPECT_EQ(PaletteTable(16, 4), 0x7400FF) << "on a straight ramp";
    EXPECT_EQ(HeightToPaletteIndex(-32513), 0);
    EXPECT_EQ(HeightToPaletteIndex(-32512), 1);
    EXPECT_EQ(HeightToPaletteIndex(INT32_MAX), 255);
    RandomSource chance(4);
    RecordingHost host;
    clsTerrain terrain = RandomGrid(37, -50000, 50000, chance);
    terrain.SetPoint(3, 3, INT32_MIN);
    Picture raster;
    for (int row = 0; row < paletteRows; ++row) {
        BuildHeightPicture(raster, terrain, row, host);
        ASSERT_EQ(raster.Width(), 37);
        for (int i = 0; i < 37 * 37; ++i) {
            const int index = HeightToPaletteIndex(terrain.GetPoint(i % 37, i / 37));
            ASSERT_EQ(raster.Point(i % 37, i / 37), PaletteTable(index, row));
        }
    }
    EXPECT_EQ(host.statuses[0] + host.statuses[1], "copy Highmap ...create Picture ...");
    EXPECT_EQ(host.progress.back(), 0);
}

}  // namespace
}  // namespace quillbrand
