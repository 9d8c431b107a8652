#include "shell/SubMain.h"

#include <gtest/gtest.h>

#include "base/Fault.h"
#include "shell/vbConfig.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

/// A session that started in a folder with these settings.
struct Started {
    TemporaryFolder folder;
    RandomSource chance{1};
    Session session;

    explicit Started(const std::string& settings, const std::string& startFile = {}) {
        WriteText(folder / "Quillbrand.ini", settings);
        SubMain(session, folder.Path(), startFile, chance);
    }
};

TEST(SubMain, StartsWithAStraightElevatorOverTheSetsOfTheSettings) {
    const Started named("[elevator]\nNAME=sub\\curves.dat\n");
    const Elevator& elevator = named.session.tools.elevator;
    EXPECT_EQ(elevator.ElevatorSetFile, named.folder / "sub/curves.dat");
    EXPECT_EQ(elevator.grid(256, 0), 1);
    EXPECT_FALSE(elevator.grid.IsArmed());
    EXPECT_EQ(named.session.tools.gaussTable.At(256, 256), 0.36f);
    const Started unnamed("");
    EXPECT_EQ(unnamed.session.tools.elevator.ElevatorSetFile, unnamed.folder / "Elevator.dat");
}

TEST(SubMain, TakesTheGridFromTheSettings) {
    const std::pair<std::string, int> cases[] = {{"0", 129}, {" 2", 513}, {"3", 1025}, {"4", 2049},
                                                 {"5", 257}, {"44", 257}, {"x", 257}};
    for (const auto& [optTer, points] : cases)
        EXPECT_EQ(Started("[start]\nopTter=" + optTer).session.document.CurrentTerrain.XPoints(),
                  points)
            << optTer;
}

TEST(SubMain, LimitsWhatDamagedSettingsChoose) {
    const Started good("[Start]\ncolor= 5\noptzoom= 1\n[Terrain]\ndirectory= /a b \n");
    EXPECT_EQ(good.session.settings.PaletteRow, 5);
    EXPECT_EQ(good.session.settings.ResizeMode, 1);
    EXPECT_EQ(good.session.settings.TerrainDirectory, "/a b");
    const Started bad("[Start]\nCOLOR=1e99\nOptZoom=-7\n");
    EXPECT_EQ(bad.session.settings.PaletteRow, 7);
    EXPECT_EQ(bad.session.settings.ResizeMode, 0);
}

TEST(SubMain, DrawsOneNumberForTheSeed) {
    Started started("");
    RandomSource same(1);
    EXPECT_EQ(started.session.tools.RandomSeedValue, static_cast<int>(999999 * same.Uniform()));
    EXPECT_EQ(started.chance.Uniform(), same.Uniform());
}

TEST(SubMain, KeepsOnlyAStartFileThatExists) {
    const TemporaryFolder folder;
    WriteText(folder / "hill.ter", "");
    EXPECT_EQ(Started("", folder / "hill.ter").session.StartFile, folder / "hill.ter");
    EXPECT_EQ(Started("", folder / "none.ter").session.StartFile, "");
}

TEST(vbConfig, ReadsBackTrimmedWhatItWrote) {
    const Started started("; mine\n[Start]\nOptTer=0\n");
    EXPECT_EQ(vbConfig::WriteIni(started.session.settings, "start", "COLOR", " 3 "), "3");
    EXPECT_EQ(vbConfig::ReadIni(started.session.settings, "Start", "color"), "3");
    EXPECT_EQ(vbConfig::ReadIni(started.session.settings, "START", "optter"), "0");
    EXPECT_NE(TextOf(started.folder / "Quillbrand.ini").find("; mine"), std::string::npos);
}

}  // namespace
}  // namespace quillbrand
