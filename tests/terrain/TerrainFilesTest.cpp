#include <gtest/gtest.h>

#include "terrain/Backup.h"
#include "terrain/TerWriter.h"
#include "terrain/mTerLoad.h"
#include "tests/support/Faults.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

/// A TER file in a folder of its own, with a vocabulary for damage.
class TerFile : public ::testing::Test {
  protected:
    void SetUp() override {
        clsTerrain terrain = GridFrom("-30000 2 3 4 / 5 6 7 8 / 9 10 11 12 / 13 14 15 30000");
        terrain.ScaleT(20);
        terrain.HeightScale(77);
        terrain.BaseHeight(-3);
        terrain.CRVM(1);
        terrain.CRAD(1234);
        SaveT(terrain, path_, host_);
        text_ = TextOf(path_);
    }

    void SetShort(std::size_t offset, int value) {
        text_[offset] = static_cast<char>(value & 255);
        text_[offset + 1] = static_cast<char>(value >> 8);
    }

    bool Load() {
        WriteText(path_, text_);
        return mTerLoad::LoadTerrain(path_, terrain_, memory_, host_);
    }

    TemporaryFolder folder_;
    std::filesystem::path path_ = folder_ / "a.ter";
    RecordingHost host_;
    std::string text_;
    clsTerrain terrain_ = GridFrom("9 8 / 7 6");
    mTerLoad::Memory memory_;
};

TEST_F(TerFile, HasTheChunksAtTheirPlacesAndTheBottomRowFirst) {
    EXPECT_EQ(text_.size(), 80u + 2 * 16 + 4);
    EXPECT_EQ(text_.substr(0, 24), std::string("TERRAGENTERRAIN SIZE\x03\0\0\0", 24));
    EXPECT_EQ(text_.substr(24, 16), std::string("XPTS\x04\0\0\0YPTS\x04\0\0\0", 16));
    EXPECT_EQ(text_.substr(40, 20), std::string("SCAL\0\0\xa0\x41\0\0\xa0\x41\0\0\xa0\x41"
                                                "CRAD",
                                                20));
    EXPECT_EQ(text_.substr(64, 6), std::string("CRVM\x01\0", 6));
    EXPECT_EQ(text_.substr(72, 8), std::string("ALTW\x4d\0\xfd\xff", 8));
    EXPECT_EQ(text_.substr(80, 4), std::string("\x0d\0\x0e\0", 4));
    EXPECT_EQ(text_.substr(112), std::string("EOF\0", 4));
}

TEST_F(TerFile, ComesBackWithAllItsValues) {
    EXPECT_TRUE(Load());
    EXPECT_EQ(TextOf(terrain_), "-30000 2 3 4 / 5 6 7 8 / 9 10 11 12 / 13 14 15 30000");
    EXPECT_EQ(HeaderText(terrain_),
              "XPoints 4 ScaleT 20 CRAD 1234 CRVM 1 HeightScale 77 BaseHeight -3");
    EXPECT_EQ((std::pair(terrain_.min(), terrain_.max())), (std::pair(-30000, 30000)));
    EXPECT_TRUE(host_.questions.empty() && !host_.isBusy);
}

TEST_F(TerFile, FindsChunksInAnyOrderAndHasDefaultsForMissingOnes) {
    // The chunk of 8 bytes with the curvature goes in front of the one with the scale.
    const std::string curvature = text_.substr(64, 8);
    text_.erase(64, 8);
    text_.insert(40, curvature);
    text_.replace(text_.find("CRAD"), 4, "NONE");
    text_.replace(text_.find("SCAL"), 4, "NONE");
    EXPECT_TRUE(Load());
    EXPECT_EQ(HeaderText(terrain_),
              "XPoints 4 ScaleT 30 CRAD 6370 CRVM 1 HeightScale 77 BaseHeight -3");
    terrain_.CRVM(0);
    text_.replace(text_.find("CRVM"), 4, "NONE");
    EXPECT_TRUE(Load());
    EXPECT_EQ(terrain_.CRVM(), 1) << "of the last file that told it";
}

TEST_F(TerFile, TakesItsPointsFromXptsAndWithoutAltwItsSamplesFromTheEighthByte) {
    SetShort(28, 3);
    EXPECT_TRUE(Load());
    EXPECT_EQ(TextOf(terrain_), "11 12 5 / 30000 9 10 / 13 14 15");
    SetShort(28, 4);
    text_.replace(text_.find("ALTW"), 4, "NONE");
    EXPECT_TRUE(Load());
    EXPECT_EQ(terrain_.HeightScale(), 30);
    EXPECT_EQ(terrain_.BaseHeight(), 5);
    EXPECT_EQ(terrain_.GetPoint(0, 3), 'N' + 256 * 'T') << "of the magic, at the bottom left";
}

TEST_F(TerFile, LeavesTheTerrainAloneWhenItIsDamaged) {
    const std::string whole = text_;
    const auto expectFault = [&](const std::string& part) {
        const std::string fault = FaultOf([&] { Load(); });
        EXPECT_NE(fault.find(part), std::string::npos) << part << " | " << fault;
        EXPECT_EQ(TextOf(terrain_), "9 8 / 7 6");
        EXPECT_EQ(terrain_.HeightScale(), 30);
        text_ = whole;
    };
    text_.resize(111);
    expectFault("a.ter is cut short: it has 111 bytes, but at least 112 are needed");
    text_.resize(99);
    expectFault("at least 100 are needed");
    SetShort(20, 2050);
    expectFault("Terrain to big");
    SetShort(28, 2051);
    expectFault("Terrain to big");
    SetShort(20, 0);
    expectFault("a size of 0");
    SetShort(28, -7);
    expectFault("a size of -8 intervals per side (XPTS)");
    text_.replace(52, 4, std::string("\0\0\xc0\x7f", 4));
    expectFault("metres per point (nan)");
}

TEST_F(TerFile, IsNoneWithoutTheMagicAndTheRefineQuestionComesAllTheSame) {
    text_[0] = 'X';
    EXPECT_FALSE(Load());
    EXPECT_EQ(TextOf(terrain_), "9 8 / 7 6");
    ASSERT_EQ(host_.questions.size(), 1u);
    EXPECT_EQ(host_.questions[0].title, "load terrain ....");
    EXPECT_EQ(host_.questions[0].text,
              "Terrain doesn't use the maximum extension of 65538 steps. Shall it be refined?\n\r"
              "(Attention: Other height value could arise than in the original file!)");
}

TEST_F(TerFile, IsNotWrittenWhenAHeightLeaves16Bits) {
    clsTerrain terrain = GridFrom("1 2 / 3 32768");
    const std::string fault = FaultOf([&] { SaveT(terrain, path_, host_); });
    EXPECT_NE(fault.find("the height 32768 at 1,1"), std::string::npos) << fault;
    EXPECT_EQ(TextOf(path_), text_);
}

TEST_F(TerFile, OfTheLargestSizeLoadsAndTheNextDoesNot) {
    clsTerrain large;
    large.Init(2050);
    large.SetPoint(2049, 2049, -32767);
    SaveT(large, path_, host_);
    EXPECT_TRUE(mTerLoad::LoadTerrain(path_, terrain_, memory_, host_));
    EXPECT_EQ(terrain_.Size(), 2049);
    EXPECT_EQ(terrain_.GetPoint(2049, 2049), -32767);
}

TEST(Backup, BringsBackHeightsMarginAndHeaderIntoATerrainOfAnotherSize) {
    const TemporaryFolder folder;
    RandomSource chance(4);
    clsTerrain saved = RandomGrid(9, -2000000, 2000000, chance);
    saved.ScaleT(12.5f);
    saved.CRAD(1000);
    saved.CRVM(1);
    saved.HeightScale(77);
    saved.BaseHeight(-5);
    SaveBackup(saved, folder / "b.qbt");
    EXPECT_EQ(Contents(folder / "b.qbt").size(), 80u + 4 * 11 * 11);

    clsTerrain terrain;
    LoadBackup(terrain, folder / "b.qbt");
    EXPECT_TRUE(AllCells(terrain) == AllCells(saved));
    EXPECT_EQ(HeaderText(terrain),
              "XPoints 9 ScaleT 12.5 CRAD 1000 CRVM 1 HeightScale 77 BaseHeight -5");
    EXPECT_EQ(terrain.max(), -400000);
    EXPECT_EQ(terrain.Range(), saved.Range());
}

TEST(Backup, HasOnlyTheMagicAmongItsTagsAndIsRefusedWhenCutShortOrForeign) {
    const TemporaryFolder folder;
    SaveBackup(GridFrom("1 2 / 3 4"), folder / "b.qbt");
    const std::string whole = TextOf(folder / "b.qbt");
    EXPECT_EQ(whole.substr(0, 20), "TERRAGENTERRAIN SIZE");
    EXPECT_EQ(whole.substr(22, 6), std::string(6, '\0'));
    EXPECT_EQ(whole.substr(70, 6), std::string(6, '\0'));

    std::string negativeSize = whole;
    negativeSize[21] = '\xff';
    clsTerrain terrain = GridFrom("9 8 / 7 6");
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
