#include "generator/GenerateTerrain.h"

#include <gtest/gtest.h>

#include <cmath>

#include "terrain/DoubleGrid.h"
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

    /// The same for the seed 123456: a free margin of 296 points and its thousandths.
    clsTerrain Expected(int size) {
        const int width = settings_.finerStructures ? 257 : 129;
        const int offX = static_cast<int>(std::floor(1 + (side - 4 - width) * 0.456));
        const int offY = static_cast<int>(std::floor(1 + (side - 4 - width) * 0.123));
        SquareArray grid(width + 9, 0);
        for (int j = 0; j <= width; ++j)
            for (int i = 0; i <= width; ++i)
                grid(i, j) = Layers(i, j, offX, offY);
        RandomSource chance(1);
        for (int n = width - 1; n < size;)
            SlowTwins::DoubleGrid(grid, n, 1, 0, chance);
        clsTerrain expected = EmptyTerrain(size + 1);
        for (int y = 0; y <= size + 1; ++y)
            for (int x = 0; x <= size + 1; ++x)
                expected.SetPoint(
                    x, y, static_cast<int>(std::nearbyint(settings_.height / 100.0 * grid(x, y))));
        if (size >= width)
            SlowTwins::FilterSmooth(expected, {.extent = size});
        SlowTwins::ScaleTerrain(expected);
        return expected;
    }

    TemporaryFolder folder_;
    PerlinSetTable sets_;
    GeneratorSettings settings_;
    int resizeMode_ = Bilinear;
    int mode_ = ModifyModes::Add;
    RecordingHost host_;
    Picture pictures_[5];
};

TEST_F(Generator, AddsWindowsWithChangingSignsAndEnlargesUntilTheTargetIsReached) {
    EXPECT_TRUE(AllCells(Generated(512)) == AllCells(Expected(512)));
    settings_.finerStructures = true;
    EXPECT_TRUE(AllCells(Generated(512)) == AllCells(Expected(512)));
    settings_ = {.iterations = 11, .height = 37, .structure = 3, .seed = settings_.seed};
    EXPECT_TRUE(AllCells(Generated(128)) == AllCells(Expected(128)));
    EXPECT_TRUE(host_.questions.empty());
}

TEST_F(Generator, PlacesTheWindowByTheLastSixDigitsOfTheSeed) {
    const auto cells = [&](const std::string& seed) {
        settings_.seed = seed;
        return AllCells(Generated(128));
    };
    EXPECT_EQ(cells("1234567"), cells("234567"));
    EXPECT_EQ(cells("42"), cells("000042"));
    EXPECT_NE(cells("42"), cells("42000"));
}

TEST_F(Generator, SaysWhyARunFails) {
    RandomSource chance(2);
    const clsTerrain far = RandomGrid(129, 1, 2000000000, chance);
    const auto fault = [&](int set, int mode, bool clear) {
        settings_.set = set;
        settings_.clearTerrain = clear;
        const std::string text = FaultOf([&] {
            clsTerrain terrain = far;
            ProduceTerrain(terrain, 128, settings_, {sets_, 1, mode}, host_);
        });
        return text.substr(0, text.find(folder_.Path().string()));
    };
    EXPECT_EQ(fault(1, ModifyModes::Add, true), "there is no Perlin set in row 1 of ");
    EXPECT_EQ(fault(0, ModifyModes::Multiplication, false).substr(0, 9), "overflow:");
    std::filesystem::remove(folder_ / "Test05.png");
    EXPECT_NE(fault(0, ModifyModes::Add, true), "no fault");
    sets_.folder = folder_ / "none";
    EXPECT_EQ(fault(0, ModifyModes::Add, false), "Perlin Path not exists: ");
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
    settings_ = {.structure = 0, .seed = "1"};
    EXPECT_EQ(Generated(128).Range(), 0);
    const Picture imported = Picture::Load(folder_ / "Test02.png");
    clsTerrain with = EmptyTerrain(129);
    GenerateTerrain(with, 128, settings_, {sets_, resizeMode_, mode_, &imported}, host_);
    EXPECT_GT(with.Range(), 60000);
}

}  // namespace
}  // namespace quillbrand
