#include "editor/HeightPicture.h"

#include <gtest/gtest.h>

#include "editor/Palette.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"

namespace quillbrand {
namespace {

TEST(HeightToPaletteIndex, HasBandsOf256HeightsAndEnds) {
    const std::pair<Height, int> cases[] = {{-2147483647 - 1, 0}, {-40000, 0},      {-32768, 0},
                                            {-32513, 0},          {-32512, 1},      {0, 128},
                                            {32767, 255},         {2147483647, 255}};
    for (const auto& [height, index] : cases)
        EXPECT_EQ(HeightToPaletteIndex(height), index) << height;
}

TEST(PaletteTable, HasTheGivenColoursAndStraightRampsBetweenThem) {
    EXPECT_EQ(PaletteTable(0, 1), 0x1C5371);
    EXPECT_EQ(PaletteTable(255, 0), 0xFBFBFC);
    EXPECT_EQ(PaletteTable(224, 7), 0x95FAFD);
    EXPECT_EQ(PaletteTable(16, 4), 0x7400FF);
    EXPECT_EQ(PaletteNames()[2], "Deset");
}

TEST(HeightPicture, HasOnePixelAPointInTheColourOfItsHeight) {
    RandomSource chance(4);
    RecordingHost host;
    clsTerrain terrain = RandomGrid(37, -50000, 50000, chance);
    Picture raster;
    for (int row = 0; row < paletteRows; ++row) {
        BuildHeightPicture(raster, terrain, row, host);
        ASSERT_EQ(raster.Width(), 37);
        ASSERT_EQ(raster.Height(), 37);
        for (int y = 0; y < 37; ++y)
            for (int x = 0; x < 37; ++x)
                ASSERT_EQ(raster.Point(x, y),
                          PaletteTable(HeightToPaletteIndex(terrain.GetPoint(x, y)), row));
    }
    EXPECT_EQ(host.statuses[0], "copy Highmap ...");
    EXPECT_EQ(host.statuses[1], "create Picture ...");
    EXPECT_EQ(host.progress.back(), 0);
}

}  // namespace
}  // namespace quillbrand
