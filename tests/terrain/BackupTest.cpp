#include "terrain/Backup.h"

#include <gtest/gtest.h>

#include "base/Fault.h"
#include "tests/support/Grids.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

TEST(Backup, BringsBackHeightsMarginAndHeaderIntoATerrainOfAnotherSize) {
    const TemporaryFolder folder;
    RandomSource chance(4);
    clsTerrain saved;
    saved.Init(9);
    FillWithChance(saved, -2000000, 2000000, chance);
    saved.ScaleT(12.5f);
    saved.CRAD(1000);
    saved.CRVM(1);
    saved.HeightScale(77);
    saved.BaseHeight(-5);
    SaveBackup(saved, folder / "b.qbt");
    EXPECT_EQ(Contents(folder / "b.qbt").size(), 80u + 4 * 11 * 11);

    clsTerrain terrain;
    LoadBackup(terrain, folder / "b.qbt");
    EXPECT_EQ(AllCells(terrain), AllCells(saved));
    EXPECT_EQ(terrain.XPoints(), 9);
    EXPECT_EQ(terrain.ScaleT(), 12.5f);
    EXPECT_EQ(terrain.CRAD(), 1000.0f);
    EXPECT_EQ(terrain.CRVM(), 1);
    EXPECT_EQ(terrain.HeightScale(), 77);
    EXPECT_EQ(terrain.BaseHeight(), -5);
    EXPECT_EQ(terrain.max(), -400000);
    EXPECT_EQ(terrain.Range(), saved.Range());
}

TEST(Backup, HasOnlyTheMagicAmongItsTagsBeforeTheFirstSave) {
    const TemporaryFolder folder;
    clsTerrain terrain = GridFrom("1 2 / 3 4");
    SaveBackup(terrain, folder / "b.qbt");
    const std::string text = TextOf(folder / "b.qbt");
    EXPECT_EQ(text.substr(0, 20), "TERRAGENTERRAIN SIZE");
    EXPECT_EQ(text.substr(22, 6), std::string(6, '\0'));
    EXPECT_EQ(text.substr(70, 6), std::string(6, '\0'));
}

TEST(Backup, IsRefusedWithTheTerrainUnchangedWhenCutShortOrForeign) {
    const TemporaryFolder folder;
    const clsTerrain saved = GridFrom("1 2 / 3 4");
    SaveBackup(saved, folder / "b.qbt");
    const std::string whole = TextOf(folder / "b.qbt");
    clsTerrain terrain = GridFrom("9 8 / 7 6");
    std::string negativeSize = whole;
    negativeSize[21] = '\xff';
    for (const std::string& damaged :
         {std::string(), whole.substr(0, 79), whole.substr(0, whole.size() - 1),
          "X" + whole.substr(1), negativeSize}) {
        WriteText(folder / "b.qbt", damaged);
        EXPECT_THROW(LoadBackup(terrain, folder / "b.qbt"), Fault) << damaged.size();
        EXPECT_EQ(TextOf(terrain), "9 8 / 7 6");
    }
}

}  // namespace
}  // namespace quillbrand
