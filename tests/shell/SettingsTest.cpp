#include <gtest/gtest.h>

#include "base/Fault.h"
#include "shell/Options.h"
#include "shell/SubMain.h"
#include "shell/vbConfig.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

/// Sessions that start in one folder.
class StoredSettings : public testing::Test {
  protected:
    /// A session that starts with these settings.
    Session Started(const std::string& settings, const std::string& startFile = {}) {
        WriteText(ini, settings);
        Session session;
        SubMain(session, folder.Path(), startFile, chance);
        return session;
    }

    TemporaryFolder folder;
    std::filesystem::path ini = folder / "Quillbrand.ini";
    RandomSource chance{1};
};

TEST_F(StoredSettings, StartAStraightElevatorAndADrawnSeed) {
    const Session session = Started("[elevator]\nNAME=sub\\curves.dat\n");
    EXPECT_EQ(session.tools.elevator.ElevatorSetFile, folder / "sub/curves.dat");
    EXPECT_EQ(session.tools.elevator.grid(256, 0), 1);
    EXPECT_FALSE(session.tools.elevator.grid.IsArmed());
    EXPECT_EQ(session.tools.gaussTable.At(256, 256), 0.36f);
    EXPECT_EQ(session.document.CurrentTerrain.ScaleT(), 30);
    EXPECT_EQ(session.document.CurrentTerrain.MinTU(), -10);
    EXPECT_EQ(session.document.CurrentTerrain.MaxTU(), 30);
    RandomSource same(1);
    EXPECT_EQ(session.tools.RandomSeedValue, static_cast<int>(999999 * same.Uniform()));
    EXPECT_EQ(chance.Uniform(), same.Uniform());

    EXPECT_EQ(Started("").tools.elevator.ElevatorSetFile, folder / "Elevator.dat");
    EXPECT_EQ(Started("", ini).StartFile, ini);
    EXPECT_EQ(Started("", folder / "none.ter").StartFile, "");
}

TEST_F(StoredSettings, ChooseOnlyWhatExists) {
    struct Case {
        const char* optTer;
        int points;
        int shown;
    };
    for (const auto& [optTer, points, shown] :
         {Case{"0", 129, 0}, Case{" 3", 1025, 3}, Case{"4", 2049, 2}, Case{"5", 257, 2},
          Case{"44", 257, 2}, Case{"-1", 257, 2}}) {
        const Session session = Started(std::string("[start]\nopTter=") + optTer);
        EXPECT_EQ(session.document.CurrentTerrain.XPoints(), points) << optTer;
        EXPECT_EQ(LoadOptions(session.settings).terrainSizeIndex, shown) << optTer;
    }
    const Settings bad =
        Started("[Start]\nCOLOR=1e99\nOptZoom=-7\nBackColor=-1\n[History]\nMegabytes=1e9\n")
            .settings;
    EXPECT_EQ(bad.PaletteRow, 7);
    EXPECT_EQ(bad.ResizeMode, 0);
    EXPECT_FALSE(bad.BackColor.has_value());
    EXPECT_EQ(bad.historyMegabytes, 16384);
}

TEST_F(StoredSettings, ChangeTheirLinesOnlyAndComeBackAtTheNextStart) {
    const std::string mine =
        "; M\xfcller\r\n[Terrain]\r\nDirectory=/a b\r\n[Objects]\r\nDirectory=/o\r\n"
        "[Terragen]\r\nDirectory=/t\r\n";
    Session session = Started(mine + "[start]\r\nOptTer=4\r\nCOLOR=0\r\n?\r\n");
    OptionsSettings options = LoadOptions(session.settings);
    EXPECT_EQ(options.terrainFolder + options.objectFolder + options.terragenFolder, "/a b/o/t");
    options.ResizeMode = 2;
    options.PaletteRow = 5;
    options.BackColor = 0xff8000;
    SaveOptions(session.settings, options);
    const std::string lines = mine +
                              "[start]\r\nOptTer= 2\r\nCOLOR= 5\r\noptzoom= 2\r\n"
                              "BackColor= 16744448\r\n?\r\n";
    EXPECT_EQ(TextOf(ini), lines);
    options.historyMegabytes = 9;
    SaveOptions(session.settings, options);
    EXPECT_EQ(TextOf(ini), lines + "\r\n[History]\r\nMegabytes= 9\r\n");
    const Settings next = Started(TextOf(ini)).settings;
    for (const Settings& settings : {session.settings, next}) {
        EXPECT_EQ(settings.ResizeMode, 2);
        EXPECT_EQ(settings.PaletteRow, 5);
        EXPECT_EQ(settings.BackColor, 0xff8000);
        EXPECT_EQ(settings.historyMegabytes, 9);
    }
    EXPECT_EQ(next.TerrainDirectory, "/a b");
    EXPECT_EQ(next.ObjectDirectory, "/o");
}

TEST_F(StoredSettings, StayAsTheyWereWhenTheyCannotBeStored) {
    Settings stored;
    stored.IniPath = ini;
    EXPECT_EQ(WriteFolder(stored, "Terragen", "'/a b;'"), "'/a b;'");
    EXPECT_EQ(vbConfig::ReadIni(stored, "TERRAGEN", "Directory"), "'/a b;'");
    const std::string before = TextOf(ini);
    EXPECT_THROW(WriteFolder(stored, "Terragen", "/a\n[Start]"), Fault);
    EXPECT_THROW(WriteFolder(stored, "Terragen", std::string(512, 'x')), Fault);
    EXPECT_EQ(TextOf(ini), before);
    stored.IniPath = folder / "nowhere/Quillbrand.ini";
    EXPECT_THROW(SaveOptions(stored, {.ResizeMode = 1, .PaletteRow = 3, .BackColor = 7}), Fault);
    EXPECT_EQ(stored.ResizeMode + stored.PaletteRow, 0);
    EXPECT_FALSE(stored.BackColor.has_value());
}

}  // namespace
}  // namespace quillbrand
