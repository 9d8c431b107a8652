#include "shell/Options.h"

#include <gtest/gtest.h>

#include "base/Fault.h"
#include "shell/vbConfig.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

class Options : public testing::Test {
  protected:
    Options() { session.settings.IniPath = folder / "Quillbrand.ini"; }

    TemporaryFolder folder;
    Session session;
};

TEST_F(Options, ShowTheLargestSizeAsTheThird) {
    for (const auto& [stored, shown] : std::vector<std::pair<std::string, int>>{
             {" 0", 0}, {"1", 1}, {"2", 2}, {"3", 3}, {"4", 2}, {"", 2}, {"12", 2}, {"-1", 2}}) {
        WriteText(session.settings.IniPath, "[START]\r\nOPTTER=" + stored + "\r\n");
        EXPECT_EQ(LoadOptions(session.settings).terrainSizeIndex, shown) << stored;
    }
}

TEST_F(Options, ChangeTheirLinesOnly) {
    WriteText(
        session.settings.IniPath,
        "; M\xfcller\r\n[Terrain]\r\nDirectory=/a b\r\n[start]\r\nOptTer=4\r\nCOLOR=0\r\n?\r\n");
    OptionsSettings settings = LoadOptions(session.settings);
    EXPECT_EQ(settings.terrainFolder, "/a b");
    settings.ResizeMode = 2;
    settings.PaletteRow = 5;
    settings.BackColor = 0xff8000;
    SaveOptions(session.settings, settings);
    EXPECT_EQ(TextOf(session.settings.IniPath),
              "; M\xfcller\r\n[Terrain]\r\nDirectory=/a b\r\n[start]\r\nOptTer= 2\r\nCOLOR= 5\r\n"
              "optzoom= 2\r\nBackColor= 16744448\r\n?\r\n");
    EXPECT_EQ(session.settings.ResizeMode, 2);
    EXPECT_EQ(session.settings.PaletteRow, 5);
    EXPECT_EQ(session.settings.BackColor, 0xff8000);
}

TEST_F(Options, LeaveTheSessionAloneWhenTheyCannotBeStored) {
    session.settings.IniPath = folder / "nowhere/Quillbrand.ini";
    EXPECT_THROW(SaveOptions(session.settings, {.ResizeMode = 1, .PaletteRow = 3, .BackColor = 7}),
                 Fault);
    EXPECT_EQ(session.settings.ResizeMode, 0);
    EXPECT_EQ(session.settings.PaletteRow, 0);
    EXPECT_FALSE(session.settings.BackColor.has_value());
    EXPECT_THROW(WriteFolder(session.settings, "Terrain", "/a"), Fault);
}

TEST_F(Options, StoreAFolderAsItIsOrNotAtAll) {
    for (const std::string path : {"/a b/$HOME;#=[x]", "\"/quoted\"", "'"}) {
        EXPECT_EQ(WriteFolder(session.settings, "Terragen", path), path);
        EXPECT_EQ(vbConfig::ReadIni(session.settings, "TERRAGEN", "Directory"), path);
    }
    const std::string before = TextOf(session.settings.IniPath);
    EXPECT_THROW(WriteFolder(session.settings, "Terragen", "/a\n[Start]"), Fault);
    EXPECT_THROW(WriteFolder(session.settings, "Terragen", std::string(512, 'x')), Fault);
    EXPECT_EQ(TextOf(session.settings.IniPath), before);
}

}  // namespace
}  // namespace quillbrand
