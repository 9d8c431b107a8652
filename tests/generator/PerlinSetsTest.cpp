#include "generator/PerlinSets.h"

#include <gtest/gtest.h>

#include "base/Fault.h"
#include "generator/PerlinSetFile.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

TEST(PerlinSets, StandInTheOrderOfTheirFileNamesAndEndAtAnEmptyName) {
    const TemporaryFolder folder;
    WriteText(folder / "beta.INI", "[SET]\nNAME= Beta \n[PERLIN]\n01=b1.png\n05=b5.png\n");
    WriteText(folder / "Alpha.ini", "[set]\nname=Alpha\n");
    WriteText(folder / "gamma.ini", "[SET]\n");
    WriteText(folder / "omega.ini", "[SET]\nNAME=Omega\n");
    std::filesystem::create_directory(folder / "aaa.ini");
    WriteText(folder / "readme.txt", "[SET]\nNAME=None\n");
    const PerlinSetTable table = ScanPerlinSets(folder.Path());
    ASSERT_EQ(table.rows.size(), 4u);
    EXPECT_EQ(table.rows[0].name, "Alpha");
    EXPECT_EQ(table.rows[1].name, "Beta");
    EXPECT_EQ(table.rows[1].pictures[0], "b1.png");
    EXPECT_EQ(table.rows[1].pictures[1], "");
    EXPECT_EQ(table.rows[1].pictures[4], "b5.png");
    EXPECT_EQ(table.ListedRows(), 2);
    EXPECT_EQ(table.FindRow(" beta"), 1);
    EXPECT_EQ(table.FindRow("Omega"), -1);
}

TEST(PerlinSets, AreThirtyThreeAtMostAndNoneWithoutAFolder) {
    const TemporaryFolder folder;
    for (int i = 0; i < 33; ++i)
        WriteText(folder / (std::to_string(i) + ".ini"), "[SET]\nNAME=x\n");
    EXPECT_EQ(ScanPerlinSets(folder.Path()).ListedRows(), 33);
    WriteText(folder / "33.ini", "");
    EXPECT_THROW(ScanPerlinSets(folder.Path()), Fault);
    EXPECT_TRUE(ScanPerlinSets(folder / "none").rows.empty());
    EXPECT_FALSE(PerlinPathExists(folder / "none"));
    EXPECT_TRUE(PerlinPathExists(folder.Path()));
}

TEST(PerlinSetFile, HoldsTheScaledGridWithItsMarginAndACutName) {
    const TemporaryFolder folder;
    RecordingHost host;
    clsTerrain terrain = GridFrom("-100 2 3 / 4 5 6 / 7 8 100");
    SavePerlinSet(terrain, folder / "a.QPS", "A name of thirty characters, no", host);
    const std::string text = TextOf(folder / "a.QPS");
    ASSERT_EQ(text.size(), 61u + 2 * 13 * 13);
    EXPECT_EQ(text.substr(0, 61), "QUILLBRAND PERLINSET NAMEA name of thirty charactSIZE" +
                                      std::string("\x0c\0\0\0", 4) + "ARRA");
    const auto cell = [&](int x, int y) {
        const auto at = static_cast<std::size_t>(61 + 2 * (13 * y + x));
        return static_cast<std::int16_t>((text[at] & 255) | (text[at + 1] << 8));
    };
    EXPECT_EQ(cell(0, 0), terrain.GetPoint(0, 0));
    EXPECT_EQ(cell(2, 1), terrain.GetPoint(2, 1));
    EXPECT_GT(terrain.Range(), 60000);
    EXPECT_EQ(cell(5, 5), 0);
}

TEST(PerlinSetFile, LimitsTheMarginButNoHeightOfTheTerrain) {
    const TemporaryFolder folder;
    RecordingHost host;
    clsTerrain terrain = GridFrom("-100 2 3 / 4 5 6 / 7 8 100");
    terrain.SetPoint(4, 4, 100000);
    SavePerlinSet(terrain, folder / "a.QPS", "margin", host);
    EXPECT_EQ(TextOf(folder / "a.QPS").substr(61 + 2 * (13 * 4 + 4), 2), "\xff\x7f");
    terrain.FixHeight(true);  // which puts the cell 1,1 back as it was
    terrain.SetPoint(1, 1, 100000);
    EXPECT_THROW(SavePerlinSet(terrain, folder / "b.QPS", "cell", host), Fault);
    EXPECT_FALSE(std::filesystem::exists(folder / "b.QPS"));
}

}  // namespace
}  // namespace quillbrand
