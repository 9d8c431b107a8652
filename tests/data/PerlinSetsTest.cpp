#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <algorithm>
#include <cstdlib>
#include <string>

#include "data/perlin/NoisePicture.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand::perlin {
namespace {

constexpr int kSide = 300;

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
    for (int number = 1; number <= kPictures; ++number) {
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
    const LevelPicture made = MakeNoisePicture(PerlinSets()[0], 2, kSide);
    const std::string png = EncodePng(made);
    const QImage read = QImage::fromData(reinterpret_cast<const uchar*>(png.data()),
                                         static_cast<int>(png.size()), "PNG");
    ASSERT_EQ(read.size(), QSize(kSide, kSide));
    auto level = made.levels.begin();
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x, ++level) {
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
    for (int number = 1; number <= kPictures; ++number) {
        SCOPED_TRACE(PictureFile(set_, number));
        const LevelPicture picture = MakeNoisePicture(set_, number, kSide);
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
                         testing::Range(0, static_cast<int>(PerlinSets().size())),
                         [](const testing::TestParamInfo<int>& number) {
                             std::string name =
                                 PerlinSets()[static_cast<std::size_t>(number.param)].name;
                             std::replace(name.begin(), name.end(), ' ', '_');
                             return name;
                         });

TEST(PerlinSets, StandInTheOrderOfTheirFilesWithNamesOfTheirOwn) {
    const auto sets = PerlinSets();
    for (std::size_t i = 1; i < sets.size(); ++i) {
        EXPECT_LT(std::string(sets[i - 1].file), sets[i].file);
        EXPECT_EQ(FindPerlinSet(sets[i].name), &sets[i]);
    }
}

}  // namespace
}  // namespace quillbrand::perlin
