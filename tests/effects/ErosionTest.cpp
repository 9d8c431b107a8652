#include <gtest/gtest.h>

#include "effects/Gauss.h"
#include "terrain/ScaleTerrainStep.h"
#include "tests/support/Faults.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/SlowTwins.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

using QBFilter::Area;
using QBFilter::RiverBed;

TEST(Gauss, PeaksInTheMiddleAndTheTableHoldsTheVeryWeights) {
    EXPECT_FLOAT_EQ(GaussWeight(15, 25, 10, 20, 10, 10), 0.36f);
    EXPECT_FLOAT_EQ(GaussWeight(15, 30, 10, 20, 10, 10), 0.36f * std::exp(-8.0f));
    const GaussTable table(64);
    for (int i = 0; i <= 64; ++i)
        for (int j = 0; j <= 64; ++j)
            ASSERT_EQ(table.At(i, j), GaussWeight(i, j, 0, 0, 64, 64)) << i << "," << j;
    EXPECT_EQ(table.Weight(7, 9, 5, 5, 8, 16, 2.5), 2.5f * table.At(16, 16));
    EXPECT_THROW(table.Weight(4, 9, 5, 5, 8, 16, 1), Fault);
}

/// A river bed with a picture of random colours.
class RiverTest : public ::testing::Test {
  protected:
    void WritePicture(int width, int height) {
        picture_ = Picture(width, height);
        RandomSource chance(4);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                picture_.Row(y)[x] = 0xff000000u | static_cast<QRgb>(chance.Uniform() * 16777216.0);
        picture_.Save(folder_ / "bed.png");
        bed_ = {.programFolder = folder_.Path(), .ErodePictureName = "bed.png", .seed = "500999"};
    }

    void Erode(clsTerrain& terrain, float strength, const Area& area) {
        QBFilter::FilterRiverErosion(terrain, strength, area, bed_, host_);
    }

    TemporaryFolder folder_;
    Picture picture_;
    RiverBed bed_;
    RecordingHost host_;
};

TEST_F(RiverTest, AgreesWithTheSlowTwinOnGridsSmallerAndLargerThanThePicture) {
    WritePicture(1025, 1025);
    RandomSource chance(5);
    for (const int points : {2, 60, 257, 300, 1025, 1026, 1027, 1200}) {
        clsTerrain fast = RandomGrid(points, -40000, 40000, chance);
        const Area areas[] = {{.extent = points}, {points / 2, -3, points / 2 + 3, 0, 1}};
        for (const Area& area : areas) {
            const float strength = static_cast<float>(points % 21) / 2;
            clsTerrain slow = fast;
            Erode(fast, strength, area);
            const int offset =
                points < 1025 ? static_cast<int>(RoundHalfEven((1026 - points) / 2.0)) : 0;
            SlowTwins::FilterRiverErosion(slow, strength, area, picture_, offset);
            ASSERT_TRUE(SameGrid(fast, slow)) << points;
        }
    }
}

TEST_F(RiverTest, TakesTheWindowFromTheFirstThreeCharactersOfTheSeed) {
    WritePicture(1025, 1025);
    const auto raised = [&](const std::string& seed) {
        clsTerrain terrain;
        bed_.seed = seed;
        Erode(terrain, 10, {.extent = 0});
        return terrain.GetPoint(0, 0);
    };
    const auto pixel = [&](int x) { return static_cast<Height>(picture_.Point(x, x) >> 8) + 3; };
    EXPECT_EQ(raised("500123"), pixel(384)) << "769 * 0.5, rounded";
    EXPECT_EQ(raised("1"), pixel(1));
    EXPECT_EQ(raised("-50"), pixel(0));
    EXPECT_EQ(raised("abc"), pixel(0));
    EXPECT_THROW(raised("9e9"), Fault) << "beyond 16 bits";
}

TEST_F(RiverTest, RaisesByThreeOutsideThePicture) {
    WritePicture(400, 300);
    bed_.seed = "0";
    clsTerrain terrain;
    terrain.Init(1025);
    Erode(terrain, 0, {.extent = 1025});
    EXPECT_EQ(terrain.GetPoint(1025, 0), 3);
    EXPECT_EQ(terrain.GetPoint(1024, 1024), (picture_.Point(399, 299) >> 8) / 11 + 3)
        << "the picture is spread over 1025 units";
}

TEST_F(RiverTest, FailsWithoutAPictureAndAtAStrengthOfEleven) {
    WritePicture(5, 5);
    clsTerrain terrain = GridFrom("1 2 / 3 4");
    EXPECT_THROW(Erode(terrain, 11, {.extent = 2}), Fault);
    terrain.SetPoint(0, 0, INT32_MAX - 5959);
    EXPECT_THROW(Erode(terrain, 0, {.extent = 2}), Fault) << "5957 + 3 is what it may add";
    terrain.SetPoint(0, 0, 1);
    bed_.ErodePictureName.clear();
    const std::string fault = FaultOf([&] { Erode(terrain, 1, {.extent = 2}); });
    EXPECT_NE(fault.find("erode0.flt"), std::string::npos) << fault;
    EXPECT_EQ(TextOf(terrain), "1 2 / 3 4");
}

TEST(NaturalErosion, AgreesWithTheSlowTwinOnRandomHillsAndLimits) {
    for (int turn = 0; turn < 40; ++turn) {
        RandomSource chance(static_cast<std::uint32_t>(turn));
        const auto any = [&](int low, int high) { return AnyOf(low, high, chance); };
        clsTerrain fast = RandomGrid(2 + 7 * turn % 89, -32767, 32767, chance);
        for (int x = 0; x <= fast.Size() + 2; ++x)
            for (int y = 0; y <= fast.Size() + 2; ++y)
                fast.SetPoint(x, y, fast.GetPoint(x, y) / any(1, 9) + x * any(0, 300) - y * y);
        Area area{.extent = turn % 2 == 0 ? fast.XPoints() : fast.XPoints() - 2};
        if (turn % 3 == 0) {
            area.zMin = -20000;
            area.zMax = 15000;
        }
        const ErosionSettings settings{1000, 9, turn % 10 + 1, turn % 8 + 1};
        RecordingHost host(7);
        clsTerrain slow = fast;
        float strength = 3;
        QBFilter::FilterNaturalErosion(
            fast, strength, area, [&] { return settings; }, host);
        ScaleTerrainStep(slow, host);
        RandomSource other(7);
        SlowTwins::FilterNaturalErosion(slow, area, settings, other);
        ASSERT_EQ(strength, 1000.0f);
        ASSERT_TRUE(SameGrid(fast, slow)) << turn;
        ASSERT_EQ(host.chance.Uniform(), other.Uniform()) << turn;
    }
}

TEST(ErosionSettings, SurviveAFileAndFallBackToItsOwnDefaults) {
    TemporaryFolder folder;
    const ErosionSettings settings{12300, 7, 10, 8};
    WriteText(folder / "a.par", "[Other]\nkey=1\n");
    SaveErosionSettings(folder / "a.par", settings);
    EXPECT_EQ(LoadErosionSettings(folder / "a.par"), settings);
    EXPECT_NE(TextOf(folder / "a.par").find("key=1"), std::string::npos);
    EXPECT_NE(TextOf(folder / "a.par").find("DropCount=12300"), std::string::npos);
    WriteText(folder / "b.par", "[EROSION]\nDropCount=9\nLLDEPHT= 2.5 points\nEroDepht=99\n");
    EXPECT_EQ(LoadErosionSettings(folder / "b.par"), (ErosionSettings{1000, 1, 2, 8}));
    WriteText(folder / "c.par", "");
    EXPECT_EQ(LoadErosionSettings(folder / "c.par"), (ErosionSettings{1000, 1, 1, 4}));
    EXPECT_THROW(LoadErosionSettings(folder / "none.par"), Fault);
}

}  // namespace
}  // namespace quillbrand
