#include <gtest/gtest.h>

#include <cstring>

#include "base/Fault.h"
#include "terrain/TerWriter.h"
#include "terrain/mTerLoad.h"
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

    std::string FaultOfLoad() {
        try {
            Load();
        } catch (const Fault& fault) {
            return fault.what();
        }
        return "no fault";
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
    EXPECT_EQ(text_.substr(24, 6), std::string("XPTS\x04\0", 6));
    EXPECT_EQ(text_.substr(30, 8), std::string("\0\0YPTS\x04\0", 8));
    EXPECT_EQ(text_.substr(40, 4), "SCAL");
    float scale[3];
    std::memcpy(scale, &text_[44], sizeof scale);
    EXPECT_EQ(scale[0], 20.0f);
    EXPECT_EQ(scale[2], 20.0f);
    EXPECT_EQ(text_.substr(56, 4), "CRAD");
    EXPECT_EQ(text_.substr(64, 6), std::string("CRVM\x01\0", 6));
    EXPECT_EQ(text_.substr(72, 8), std::string("ALTW\x4d\0\xfd\xff", 8));
    EXPECT_EQ(text_.substr(80, 4), std::string("\x0d\0\x0e\0", 4));
    EXPECT_EQ(text_.substr(112), std::string("EOF\0", 4));
}

TEST_F(TerFile, ComesBackWithAllItsValues) {
    EXPECT_TRUE(Load());
    EXPECT_EQ(TextOf(terrain_), "-30000 2 3 4 / 5 6 7 8 / 9 10 11 12 / 13 14 15 30000");
    EXPECT_EQ(terrain_.ScaleT(), 20.0f);
    EXPECT_EQ(terrain_.HeightScale(), 77);
    EXPECT_EQ(terrain_.BaseHeight(), -3);
    EXPECT_EQ(terrain_.CRVM(), 1);
    EXPECT_EQ(terrain_.CRAD(), 1234.0f);
    EXPECT_EQ(terrain_.min(), -30000);
    EXPECT_EQ(terrain_.max(), 30000);
    EXPECT_FALSE(host_.isBusy);
    EXPECT_TRUE(host_.questions.empty());
}

TEST_F(TerFile, FindsChunksInAnyOrderAndHasDefaultsForMissingOnes) {
    // The chunk of 8 bytes with the curvature goes in front of the one with the scale.
    const std::string curvature = text_.substr(64, 8);
    text_.erase(64, 8);
    text_.insert(40, curvature);
    text_.replace(text_.find("CRAD"), 4, "XXXX");
    text_.replace(text_.find("SCAL"), 4, "XXXX");
    EXPECT_TRUE(Load());
    EXPECT_EQ(terrain_.CRAD(), 6370.0f);
    EXPECT_EQ(terrain_.ScaleT(), 30.0f);
    EXPECT_EQ(terrain_.CRVM(), 1);
    EXPECT_EQ(terrain_.HeightScale(), 77);
}

TEST_F(TerFile, RemembersTheCurvatureOfTheLastFileThatToldIt) {
    EXPECT_TRUE(Load());
    terrain_.CRVM(0);
    text_.replace(text_.find("CRVM"), 4, "XXXX");
    EXPECT_TRUE(Load());
    EXPECT_EQ(terrain_.CRVM(), 1);
}

TEST_F(TerFile, WithoutAltwHasItsSamplesAtTheEighthByte) {
    text_.replace(text_.find("ALTW"), 4, "XXXX");
    EXPECT_TRUE(Load());
    EXPECT_EQ(terrain_.HeightScale(), 30);
    EXPECT_EQ(terrain_.BaseHeight(), 5);
    // Bytes 7 and 8 of the magic, "N" and "T", are the first sample: bottom left.
    EXPECT_EQ(terrain_.GetPoint(0, 3), 'N' + 256 * 'T');
}

TEST_F(TerFile, TakesTheNumberOfPointsFromXptsWhereTheTwoDisagree) {
    SetShort(28, 3);
    EXPECT_TRUE(Load());
    EXPECT_EQ(terrain_.XPoints(), 3);
    EXPECT_EQ(terrain_.GetPoint(0, 2), 13);
    EXPECT_EQ(terrain_.GetPoint(0, 1), 30000);
}

TEST_F(TerFile, LeavesTheTerrainAloneWhenItIsDamaged) {
    const std::string whole = text_;
    const auto expectFault = [&](const std::string& part) {
        EXPECT_NE(FaultOfLoad().find(part), std::string::npos) << part << " | " << FaultOfLoad();
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

TEST_F(TerFile, IsRefinedOnlyWhenTheUserSaysYes) {
    SetShort(86, 0);
    const auto load = [&](Answer answer) {
        host_.answers = {answer};
        EXPECT_TRUE(Load());
        return terrain_.Range();
    };
    EXPECT_EQ(load(Answer::No), 30015);
    EXPECT_GT(load(Answer::Yes), 65000);
}

TEST_F(TerFile, IsNotWrittenWhenAHeightLeaves16Bits) {
    clsTerrain terrain = GridFrom("1 2 / 3 32768");
    try {
        SaveT(terrain, path_, host_);
        FAIL();
    } catch (const Fault& fault) {
        EXPECT_NE(std::string(fault.what()).find("the height 32768 at 1,1"), std::string::npos);
    }
    EXPECT_EQ(TextOf(path_), text_);
}

TEST_F(TerFile, OfTheLargestSizeLoadsAndTheNextDoesNot) {
    clsTerrain large;
    large.Init(2050);
    large.SetPoint(0, 0, 32767);
    large.SetPoint(2049, 2049, -32767);
    SaveT(large, path_, host_);
    EXPECT_TRUE(mTerLoad::LoadTerrain(path_, terrain_, memory_, host_));
    EXPECT_EQ(terrain_.Size(), 2049);
    EXPECT_EQ(terrain_.GetPoint(2049, 2049), -32767);
}

}  // namespace
}  // namespace quillbrand
