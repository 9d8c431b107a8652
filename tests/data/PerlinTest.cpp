#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

#include "data/perlin/NoisePicture.h"
#include "data/perlin/Shapes.h"
#include "data/perlin/Workbench.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand::perlin {
namespace {

constexpr int pictureSide = 300;

struct Outcome {
    int status;
    std::string complaint;
};

Outcome MakeSets(const QStringList& arguments) {
    QProcess tool;
    tool.start(QB_MAKE_PERLIN_SETS, arguments);
    tool.waitForFinished();
    return {tool.exitCode(), tool.readAllStandardError().toStdString()};
}

/// Mean and greatest step between pixels side by side, as parts of the picture's range.
struct Steps {
    double mean;
    double greatest;
};

Steps StepsOf(const LevelPicture& picture) {
    const auto [low, high] = std::minmax_element(picture.levels.begin(), picture.levels.end());
    double sum = 0.0;
    int greatest = 0;
    for (std::size_t at = 1; at < picture.levels.size(); ++at) {
        if (at % static_cast<std::size_t>(picture.side) != 0) {
            const int step = std::abs(picture.levels[at] - picture.levels[at - 1]);
            sum += step;
            greatest = std::max(greatest, step);
        }
    }
    const double range = *high - *low;
    return {sum / range / static_cast<double>(picture.levels.size()), greatest / range};
}

TEST(MakePerlinSets, WritesTheSameFilesOnEveryRun) {
    const TemporaryFolder first;
    const TemporaryFolder second;
    for (const TemporaryFolder* folder : {&first, &second}) {
        const QString out = QString::fromStdString(folder->Path().string());
        const Outcome outcome = MakeSets({"--out", out, "--set", "Alpine ridges", "--side", "133"});
        ASSERT_EQ(outcome.status, 0) << outcome.complaint;
        EXPECT_EQ(folder->Entries(), 6);
    }
    for (int number = 1; number <= pictureCount; ++number) {
        const std::string file = "01-alpine-ridges-" + std::to_string(number) + ".png";
        EXPECT_EQ(Contents(first / file), Contents(second / file)) << file;
    }
    EXPECT_EQ(TextOf(first / "01-alpine-ridges.INI"),
              "[SET]\nNAME=Alpine ridges\n\n[PERLIN]\n"
              "01=01-alpine-ridges-1.png\n02=01-alpine-ridges-2.png\n"
              "03=01-alpine-ridges-3.png\n04=01-alpine-ridges-4.png\n"
              "05=01-alpine-ridges-5.png\n");
}

TEST(MakePerlinSets, NamesWhatIsWrongAndWritesNothing) {
    const TemporaryFolder folder;
    WriteText(folder / "file", "");
    const QString out = QString::fromStdString((folder / "new").string());
    const QString blocked = QString::fromStdString((folder / "file" / "new").string());
    const std::pair<QStringList, std::string> cases[] = {
        {{}, "--out DIR is missing"},
        {{"--out", out, "--side", "132"}, "--side 132: allowed is 133 to 4096"},
        {{"--out", out, "--set", "Nowhere"}, "--set Nowhere: no such set"},
        {{"--out", blocked}, "cannot make the folder " + blocked.toStdString()},
    };
    for (const auto& [arguments, complaint] : cases) {
        const Outcome outcome = MakeSets(arguments);
        EXPECT_EQ(outcome.status, 1) << complaint;
        EXPECT_NE(outcome.complaint.find(complaint), std::string::npos) << outcome.complaint;
    }
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(NoisePicture, KeepsEveryLevelInGreenAndBlue) {
    const LevelPicture made = MakeNoisePicture(PerlinSets()[0], 2, pictureSide);
    const std::string png = EncodePng(made);
    const QImage read = QImage::fromData(reinterpret_cast<const uchar*>(png.data()),
                                         static_cast<int>(png.size()), "PNG");
    ASSERT_EQ(read.size(), QSize(pictureSide, pictureSide));
    auto level = made.levels.begin();
    for (int y = 0; y < pictureSide; ++y) {
        for (int x = 0; x < pictureSide; ++x, ++level) {
            const QRgb colour = read.pixel(x, y);
            ASSERT_EQ(qGreen(colour) + 256 * qBlue(colour), *level) << x << ' ' << y;
            ASSERT_EQ(qRed(colour), 0);
        }
    }
}

class EverySet : public testing::TestWithParam<int> {
  protected:
    const PerlinSet& set_ = PerlinSets()[static_cast<std::size_t>(GetParam())];
};

TEST_P(EverySet, FillsItsRangesWithSmoothHeightsThatGetFiner) {
    double coarser = 0.0;
    for (int number = 1; number <= pictureCount; ++number) {
        SCOPED_TRACE(PictureFile(set_, number));
        const LevelPicture picture = MakeNoisePicture(set_, number, pictureSide);
        const auto [low, high] = std::minmax_element(picture.levels.begin(), picture.levels.end());
        const double range = 65535.0 * set_.ranges[static_cast<std::size_t>(number - 1)];
        EXPECT_NEAR(*high - *low, range, 1.0);
        EXPECT_NEAR(*high + *low, 65535.0, 2.0);
        // Heights cut off at an end would gather there.
        EXPECT_LE(std::count(picture.levels.begin(), picture.levels.end(), *low), 8);
        EXPECT_LE(std::count(picture.levels.begin(), picture.levels.end(), *high), 8);

        const Steps steps = StepsOf(picture);
        EXPECT_LT(steps.greatest, number <= 2 ? 0.25 : 0.65);
        EXPECT_GT(steps.mean, 1.1 * coarser);
        coarser = steps.mean;
    }
}

INSTANTIATE_TEST_SUITE_P(Shipped, EverySet,
                         testing::Range(0, static_cast<int>(PerlinSets().size())));

/// The x coordinate as height: a source whose values are known.
class Ramp : public Module {
  public:
    Ramp() : Module(0) {}
    int GetSourceModuleCount() const override { return 0; }
    double GetValue(double x, double, double) const override { return x; }
};

/// Greatest change of height from one point to the next on a walk across several cells, in both
/// directions, in steps of a hundredth of a pixel.
double GreatestJump(const Module& shape) {
    double greatest = 0.0;
    for (const double across : {3.0, 47.0, 61.5, 122.25}) {
        for (int i = 0; i < 40000; ++i) {
            const double along = -150.0 + 0.01 * i;
            greatest = std::max({greatest,
                                 std::abs(shape.GetValue(along + 0.01, across, 0.0) -
                                          shape.GetValue(along, across, 0.0)),
                                 std::abs(shape.GetValue(across, along + 0.01, 0.0) -
                                          shape.GetValue(across, along, 0.0))});
        }
    }
    return greatest;
}

TEST(Shapes, HaveNoTearsWhereTheirCellsMeet) {
    Workbench make(5000, 75.0);
    const Module& source = make.Fractal(75.0, 0.4, 20.0);
    EXPECT_LT(GreatestJump(make.Cones(source, 60.0, 0.25)), 0.002);
    EXPECT_LT(GreatestJump(make.Broken(source, 20.0, 60.0, 0.25)), 0.005);
    EXPECT_LT(GreatestJump(make.Carved(source, {.spacing = 24.0, .depth = 0.2, .steep = 0.01})),
              0.002);
}

TEST(Remembered, GivesTheSourcesValueHoweverOneWalks) {
    const Ramp ramp;
    const Remembered remembered(ramp);
    // Points that share a slot: far apart, in the same row or two rows further, beyond the corner.
    for (const double x : {10.0, 4106.0, 10.25, -10.0, 10.0})
        for (const double y : {0.0, 2.0, -3.0, 0.0})
            EXPECT_EQ(remembered.GetValue(x, y, 0.0), x);
}

TEST(Profile, RunsThroughItsKnotsAndStaysBetweenThem) {
    const Ramp ramp;
    const Profile profile(ramp, {{-1.0, 0.0}, {0.0, 0.1}, {0.2, 1.0}, {1.0, -0.5}});
    EXPECT_DOUBLE_EQ(profile.GetValue(0.0, 0.0, 0.0), 0.1);
    EXPECT_DOUBLE_EQ(profile.GetValue(0.2, 0.0, 0.0), 1.0);
    for (double x = -1.0; x <= 1.0; x += 0.001) {
        const double height = profile.GetValue(x, 0.0, 0.0);
        EXPECT_GE(height, x < 0.2 ? 0.0 : -0.5);
        EXPECT_LE(height, x < 0.0 ? 0.1 : 1.0);
    }
    EXPECT_NEAR(profile.GetValue(-3.0, 0.0, 0.0), -0.2, 1e-9) << "goes on straight";
}

TEST(Terraces, AreLevelOnTheirTreadsAndKeepTheTotalRise) {
    const Ramp ramp;
    const Terraces terraces(ramp, 10.0, 1.0);
    for (const double x : {-20.0, 0.0, 30.0}) {
        EXPECT_NEAR(terraces.GetValue(x, 0.0, 0.0), x, 1e-9);
        EXPECT_NEAR(terraces.GetValue(x + 4.0, 0.0, 0.0), x, 1e-9);
        EXPECT_NEAR(terraces.GetValue(x + 9.0, 0.0, 0.0), x + 10.0, 1e-9);
    }
}

}  // namespace
}  // namespace quillbrand::perlin
