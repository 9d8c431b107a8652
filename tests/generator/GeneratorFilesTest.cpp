#include <gtest/gtest.h>

#include <algorithm>

#include "base/Fault.h"
#include "generator/GeneratorSettings.h"
#include "generator/PerlinSetFile.h"
#include "generator/PerlinSets.h"
#include "terrain/ReliefPicture.h"
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
    const std::string pictures[] = {"b1.png", "", "", "", "b5.png"};
    EXPECT_TRUE(std::ranges::equal(table.rows[1].pictures, pictures));
    EXPECT_EQ(table.ListedRows(), 2);
    EXPECT_EQ(table.FindRow(" beta"), 1);
    EXPECT_EQ(table.FindRow("Omega"), -1);

    EXPECT_TRUE(ScanPerlinSets(folder / "none").rows.empty());
    for (int i = 5; i <= 33; ++i)
        WriteText(folder / (std::to_string(i) + ".ini"), "[SET]\nNAME=x\n");
    EXPECT_EQ(ScanPerlinSets(folder.Path()).rows.size(), 33u);
    WriteText(folder / "34.ini", "");
    EXPECT_THROW(ScanPerlinSets(folder.Path()), Fault);
}

TEST(ReliefPicture, IsReadAgainWhenTimeOrSizeOfItsFileIsAnother) {
    const TemporaryFolder folder;
    auto path = folder / "a.bmp";
    std::filesystem::file_time_type time;
    const auto loaded = [&](int width, QRgb blue) {
        Picture picture(width, 1);
        std::fill_n(picture.Row(0), width, 0xff000000u | blue);
        picture.Save(path);
        std::filesystem::last_write_time(path, time);
        return LoadReliefPicture(path)->At(0, 0) / 256;
    };
    time = std::filesystem::file_time_type::clock::now();
    EXPECT_EQ(loaded(4, 1), 1);
    EXPECT_EQ(loaded(4, 2), 1) << "nothing tells that this is another";
    time += std::chrono::nanoseconds(1);
    EXPECT_EQ(loaded(4, 3), 3);
    EXPECT_EQ(loaded(9, 4), 4);
    path = folder / "b.bmp";
    EXPECT_EQ(loaded(9, 5), 5);
}

TEST(PerlinSetFile, HoldsTheScaledGridWithItsMarginAndACutName) {
    const TemporaryFolder folder;
    RecordingHost host;
    clsTerrain terrain = GridFrom("-100 2 3 / 4 5 6 / 7 8 100");
    terrain.SetPoint(4, 4, 100000);
    terrain.SetPoint(0, 4, 100000);
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
    EXPECT_EQ(cell(0, 4), 32767);
    EXPECT_EQ(cell(4, 4), 32767) << "the margin is limited";

    terrain.FixHeight(true);  // which puts the cell 1,1 back as it was
    terrain.SetPoint(1, 1, 100000);
    EXPECT_THROW(SavePerlinSet(terrain, folder / "b.QPS", "cell", host), Fault);
    EXPECT_FALSE(std::filesystem::exists(folder / "b.QPS"));
}

/// What stands in a settings file, written over what else it holds, after these keys were read for
/// a list of four sets.
std::string StoredAfter(const std::string& keys) {
    const TemporaryFolder folder;
    WriteText(folder / "in.par", "[Generator]\n" + keys);
    const auto [settings, modify] = LoadGeneratorSettings(folder / "in.par", 2, 4);
    const std::string others = "[Erosion]\nDropCount=500\n\n[Generator]\n";
    WriteText(folder / "out.par", others);
    SaveGeneratorSettings(folder / "out.par", settings, modify);
    const std::string text = TextOf(folder / "out.par");
    EXPECT_TRUE(text.starts_with(others)) << text;
    return text.substr(std::min(text.size(), others.size()));
}

TEST(GeneratorSettings, AreLimitedToTheirControlsButModifyIsTakenAsItStands) {
    EXPECT_EQ(StoredAfter("PERLIN=4\niteration=1e30\nheight=101\nStructure=9\nmodify=77\n"
                          "HIGHRES=5\nrougness=11\n"),
              "Perlin= 2\nIteration= 11\nHeight= 100\nStructure= 4\nRNDSeed=0\n"
              "modify= 77\nhighres= 1\nrougness= 10\n");
    EXPECT_EQ(StoredAfter("Perlin= 3\niteration=2.5\nRndSeed=000042\nmodify=-1\n"),
              "Perlin= 3\nIteration= 2\nHeight= 1\nStructure= 0\nRNDSeed=000042\n"
              "modify=-1\nhighres= 0\nrougness= 0\n");
}

}  // namespace
}  // namespace quillbrand
