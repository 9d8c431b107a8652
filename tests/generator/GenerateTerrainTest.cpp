#include "generator/GenerateTerrain.h"

#include <gtest/gtest.h>

#include <cmath>

#include "terrain/Doubling.h"
#include "tests/support/Faults.h"
#include "tests/support/Grids.h"
#include "tests/support/NoiseSet.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/SlowTwins.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

clsTerrain EmptyTerrain(int points) {
    clsTerrain terrain;
    terrain.Init(points);
    return terrain;
}

/// A set of small pictures, and runs with it.
class Generator : public ::testing::Test {
  protected:
    static constexpr int side = 300;

    void SetUp() override {
        WriteNoiseSet(folder_.Path(), "Test", side);
        sets_ = ScanPerlinSets(folder_.Path());
        settings_.seed = "123456";
    }

    /// A terrain of `size` intervals with nothing but the relief.
    clsTerrain Generated(int size) {
        clsTerrain terrain = EmptyTerrain(size + 1);
        GenerateTerrain(terrain, size, settings_, {sets_, resizeMode_, mode_}, host_);
        return terrain;
    }

    /// The raw height of a picture's pixel, 1..5.
    int Noise(int picture, int x, int y) {
        Picture& loaded = pictures_[picture - 1];
        if (loaded.Width() == 0)
            loaded = Picture::Load(folder_ / ("Test0" + std::to_string(picture) + ".png"));
        return loaded.Point(x, y) / 256 - 32768;
    }

    /// What the layers add up to, the plain way.
    int Layers(int i, int j, int offX, int offY) {
        int sum = 0;
        int k = settings_.structure;
        for (int n = 1; n <= settings_.iterations; ++n, ++k) {
            if (k > 5)
                k = 1;
            const int v = k == 0 ? -32768 : Noise(k, i + offX, j + offY);
            sum += (n % 2 == 1 ? v : -v) / n;
        }
        return sum;
    }

    TemporaryFolder folder_;
    PerlinSetTable sets_;
    GeneratorSettings settings_;
    int resizeMode_ = Bilinear;
    int mode_ = ModifyModes::Add;
    RecordingHost host_;
    Picture pictures_[5];
};

TEST_F(Generator, AddsWindowsWithFallingWeightsAndChangingSigns) {
    settings_.iterations = 11;
    settings_.structure = 3;
    settings_.height = 37;
    const clsTerrain terrain = Generated(128);
    clsTerrain expected = EmptyTerrain(129);
    // 296 - 129 free places; 123 and 456 thousandths of them from the top and from the left.
    const int offX = 1 + 76;
    const int offY = 1 + 20;
    for (int y = 0; y <= 129; ++y)
        for (int x = 0; x <= 129; ++x)
            expected.SetPoint(x, y,
                              static_cast<int>(std::nearbyint(0.37 * Layers(x, y, offX, offY))));
    SlowTwins::ScaleTerrain(expected);
    EXPECT_TRUE(AllCells(terrain) == AllCells(expected));
    EXPECT_EQ(host_.questions.size(), 0u);
}

TEST_F(Generator, EnlargesUntilTheTargetIsReachedAndThenSmoothes) {
    for (const bool finer : {false, true}) {
        settings_.finerStructures = finer;
        const int width = finer ? 257 : 129;
        const clsTerrain terrain = Generated(512);
        clsTerrain expected = EmptyTerrain(513);

        const int free = side - 4 - width;
        SquareArray grid(width + 9, 0);
        for (int j = 0; j <= width; ++j)
            for (int i = 0; i <= width; ++i)
                grid(i, j) = Layers(i, j, static_cast<int>(std::floor(1 + free * 0.456)),
                                    static_cast<int>(std::floor(1 + free * 0.123)));
        RandomSource chance(1);
        for (int n = width - 1; n < 512;)
            SlowTwins::DoubleGrid(grid, n, 1, 0, chance);
        for (int y = 0; y <= 513; ++y)
            for (int x = 0; x <= 513; ++x)
                expected.SetPoint(x, y, grid(x, y));
        SlowTwins::FilterSmooth(expected, {.extent = 512});
        SlowTwins::ScaleTerrain(expected);
        EXPECT_TRUE(AllCells(terrain) == AllCells(expected)) << finer;
    }
}

TEST_F(Generator, PlacesTheWindowByTheLastSixDigitsOfTheSeed) {
    const auto cells = [&](const std::string& seed) {
        settings_.seed = seed;
        return AllCells(Generated(128));
    };
    EXPECT_EQ(cells("42"), cells("000042"));
    EXPECT_EQ(cells("1234567"), cells("234567"));
    EXPECT_EQ(cells(""), cells("0"));
    EXPECT_NE(cells("42"), cells("42000"));
}

TEST_F(Generator, BeginsWithTheImportedPictureAtStructureZero) {
    settings_.structure = 0;
    EXPECT_EQ(Generated(128).Range(), 0);

    const Picture imported = Picture::Load(folder_ / "Test02.png");
    clsTerrain with = EmptyTerrain(129);
    GenerateTerrain(with, 128, settings_, {sets_, resizeMode_, mode_, &imported}, host_);
    EXPECT_GT(with.Range(), 60000);
}

TEST_F(Generator, LeavesTheTerrainAsItWasWhenARunFails) {
    RandomSource chance(2);
    clsTerrain terrain = RandomGrid(129, 1, 2000000000, chance);
    const auto before = AllCells(terrain);
    const auto expectFault = [&](const std::string& part) {
        settings_.clearTerrain = true;
        for (int turn = 0; turn < 2; ++turn, settings_.clearTerrain = false) {
            const std::string fault = FaultOf([&] {
                ProduceTerrain(terrain, 128, settings_, {sets_, 1, mode_}, host_);
            });
            EXPECT_NE(fault.find(part), std::string::npos) << fault;
            EXPECT_EQ(AllCells(terrain), before);
        }
    };
    settings_.set = 1;
    expectFault("no Perlin set in row 1");
    settings_.set = 0;
    const std::string picture = TextOf(folder_ / "Test05.png");
    WriteText(folder_ / "Test05.png", picture.substr(0, picture.size() / 2));
    expectFault("Test05.png is cut short");
    std::filesystem::remove(folder_ / "Test05.png");
    expectFault("Test05.png: No such file");
    WriteText(folder_ / "Test05.png", picture);
    mode_ = ModifyModes::Multiplication;
    settings_.clearTerrain = false;
    EXPECT_THROW(ProduceTerrain(terrain, 128, settings_, {sets_, 1, mode_}, host_), Fault);
    EXPECT_EQ(AllCells(terrain), before);
    sets_.folder = folder_ / "none";
    expectFault("Perlin Path not exists");
}

TEST_F(Generator, DrawsAPreviewOverAReducedCopy) {
    RandomSource chance(2);
    const clsTerrain current = RandomGrid(257, -9000, 9000, chance);
    const GeneratorContext context{sets_, resizeMode_, ModifyModes::highest};
    clsTerrain relief = PreviewOf(current, true, settings_, context, host_);
    EXPECT_EQ(relief.XPoints(), 129);
    clsTerrain expected = relief;
    for (int y = 1; y <= 128; ++y)
        for (int x = 1; x <= 128; ++x)
            expected.SetPoint(x, y,
                              std::max(current.GetPoint(2 * x, 2 * y), relief.GetPoint(x, y)));
    SlowTwins::ScaleTerrain(expected);
    const clsTerrain laid = PreviewOf(current, false, settings_, context, host_);
    EXPECT_EQ(AllCells(laid), AllCells(expected));
    settings_.clearTerrain = true;
    EXPECT_EQ(AllCells(PreviewOf(current, false, settings_, context, host_)), AllCells(relief));
    settings_.finerStructures = true;
    EXPECT_EQ(PreviewOf(current, true, settings_, context, host_).XPoints(), 257);
}

TEST_F(Generator, FillsTheSmallestTargetFromTheFinerGridTooButNoOddOne) {
    settings_.finerStructures = true;
    EXPECT_GT(Generated(128).Range(), 60000);
    EXPECT_THROW(Generated(300), Fault);
    settings_.iterations = 0;
    EXPECT_THROW(Generated(128), Fault);
}

TEST_F(Generator, ReadsAChangedPictureAnew) {
    const clsTerrain first = Generated(128);
    Picture changed = Picture::Load(folder_ / "Test03.png");
    changed.Save(folder_ / "Test02.png");
    std::filesystem::last_write_time(
        folder_ / "Test02.png",
        std::filesystem::file_time_type::clock::now() + std::chrono::seconds(5));
    EXPECT_FALSE(AllCells(first) == AllCells(Generated(128)));
}

}  // namespace
}  // namespace quillbrand
