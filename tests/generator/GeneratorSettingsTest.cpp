#include "generator/GeneratorSettings.h"

#include <gtest/gtest.h>

#include "base/Fault.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

LoadedGeneratorSettings Parsed(const std::string& keys) {
    return ReadGeneratorSettings(IniFile::Parse(AsBytes("[Generator]\n" + keys)), 2, 4);
}

TEST(GeneratorSettings, ComeBackFromAFileWithEveryValue) {
    const TemporaryFolder folder;
    GeneratorSettings settings;
    settings.set = 3;
    settings.iterations = 7;
    settings.height = 55;
    settings.structure = 4;
    settings.seed = "000042";
    settings.finerStructures = true;
    settings.roughness = 9;
    SaveGeneratorSettings(folder / "a.par", settings, 5);
    EXPECT_EQ(TextOf(folder / "a.par"),
              "[Generator]\nPerlin= 3\nIteration= 7\nHeight= 55\nStructure= 4\nRNDSeed=000042\n"
              "modify= 5\nhighres= 1\nrougness= 9\n");
    const auto [loaded, modify] = LoadGeneratorSettings(folder / "a.par", 0, 4);
    EXPECT_EQ(loaded.set, 3);
    EXPECT_EQ(loaded.iterations, 7);
    EXPECT_EQ(loaded.height, 55);
    EXPECT_EQ(loaded.structure, 4);
    EXPECT_EQ(loaded.seed, "000042");
    EXPECT_TRUE(loaded.finerStructures);
    EXPECT_EQ(loaded.roughness, 9);
    EXPECT_EQ(modify, 5);
}

TEST(GeneratorSettings, AreLimitedToTheirControlsButModifyIsTakenAsItStands) {
    const auto [high, highModify] = Parsed(
        "PERLIN=4\niteration=1e30\nheight=101\nStructure=9\nmodify=77\nHIGHRES=5\nrougness=11\n");
    EXPECT_EQ(high.set, 2);
    EXPECT_EQ(high.iterations, 11);
    EXPECT_EQ(high.height, 100);
    EXPECT_EQ(high.structure, 4);
    EXPECT_TRUE(high.finerStructures);
    EXPECT_EQ(high.roughness, 10);
    EXPECT_EQ(highModify, 77);
    const auto [low, lowModify] = Parsed("iteration=2.5\nmodify=-1\n");
    EXPECT_EQ(low.set, 0);
    EXPECT_EQ(low.iterations, 2);
    EXPECT_EQ(low.height, 1);
    EXPECT_EQ(low.structure, 0);
    EXPECT_EQ(low.seed, "0");
    EXPECT_EQ(lowModify, -1);
}

TEST(GeneratorSettings, KeepWhatElseStandsInTheFile) {
    const TemporaryFolder folder;
    WriteText(folder / "a.par", "[Erosion]\nDropCount=500\n");
    SaveGeneratorSettings(folder / "a.par", {}, 1);
    EXPECT_EQ(IniFile::Read(folder / "a.par").Get("Erosion", "DropCount"), "500");
    EXPECT_THROW(LoadGeneratorSettings(folder / "none.par", 0, 1), Fault);
}

}  // namespace
}  // namespace quillbrand
