#include <gtest/gtest.h>

#include "filters/mFilterG.h"
#include "tests/support/Faults.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/SlowFilters.h"

namespace quillbrand {
namespace {

using mFilterG::ApplyPictureFilter;

/// A grey picture from rows of numbers.
Picture GreyFrom(const std::string& rows) {
    const clsTerrain grid = GridFrom(rows);
    Picture picture(grid.XPoints(), grid.XPoints());
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            picture.Row(y)[x] = static_cast<QRgb>(grid.GetPoint(x, y)) * 0x010101;
    return picture;
}

/// The text of its blue channel.
std::string TextOf(const Picture& picture) {
    std::string text;
    for (int y = 0; y < picture.Height(); ++y) {
        text += y > 0 ? " /" : "";
        for (int x = 0; x < picture.Width(); ++x)
            text += (x + y > 0 ? " " : "") + std::to_string(picture.Row(y)[x] & 255);
    }
    return text;
}

std::string Filtered(int id, int level, const std::string& rows) {
    RecordingHost host;
    Picture picture = GreyFrom(rows);
    ApplyPictureFilter(id, picture, level, host);
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            EXPECT_EQ(picture.Row(y)[x] % 0x010101, 0u) << "grey stays grey";
    return TextOf(picture);
}

/// A picture of one colour, 0x00RRGGBB, filtered, at its middle.
QRgb FilteredColour(int id, int level, QRgb colour) {
    RecordingHost host;
    Picture picture(3, 3);
    picture.Image().fill(colour);
    ApplyPictureFilter(id, picture, level, host);
    return picture.Row(1)[1] & 0xffffffu;
}

/// Any shape, any content, with fourth channels of any kind.
Picture RandomPicture(int turn, RandomSource& chance) {
    const int longest = turn % 4 == 0 ? 6 : 70;
    Picture picture(AnyOf(1, longest, chance), AnyOf(1, longest, chance));
    const int low = turn % 3 == 0 ? AnyOf(0, 250, chance) : 0;
    const int high = turn % 3 == 0 ? AnyOf(low, 255, chance) : 255;
    const int coarseness = turn % 5 == 0 ? 255 : turn % 5 == 1 ? 40 : 1;
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x) {
            const auto channel = [&] { return AnyOf(low, high, chance) / coarseness * coarseness; };
            picture.Row(y)[x] = qRgba(channel(), channel(), channel(), AnyOf(0, 255, chance));
        }
    return picture;
}

bool SamePixels(const Picture& one, const Picture& other) {
    for (int y = 0; y < one.Height(); ++y)
        if (!std::equal(one.Row(y), one.Row(y) + one.Width(), other.Row(y)))
            return false;
    return true;
}

class EveryFilter : public testing::TestWithParam<int> {};

TEST_P(EveryFilter, AgreesWithTheSlowTwinOnRandomPicturesAndLevels) {
    const int id = GetParam();
    int refused = 0;
    for (int turn = 0; turn < 140; ++turn) {
        RandomSource chance(static_cast<std::uint32_t>(1000 * id + turn));
        Picture picture = RandomPicture(turn, chance);
        Picture slow = picture;
        const int levels[] = {5,
                              100,
                              INT32_MIN,
                              INT32_MAX,
                              AnyOf(1, 6, chance),
                              AnyOf(-60, 300, chance),
                              AnyOf(-1000000, 1000000, chance)};
        const int level = levels[turn % 7];
        RecordingHost host(7);
        RandomSource slowChance(7);
        if (FaultOf([&] { ApplyPictureFilter(id, picture, level, host); }) == "no fault")
            SlowTwins::ApplyPictureFilter(id, slow, level, slowChance);
        else
            ++refused;
        ASSERT_TRUE(SamePixels(picture, slow)) << "turn " << turn << ", level " << level << ", "
                                               << picture.Width() << " x " << picture.Height();
        ASSERT_EQ(host.chance.Uniform(), slowChance.Uniform()) << "turn " << turn;
    }
    EXPECT_LT(refused, 50);
}

TEST_P(EveryFilter, TellsThePercentOfEachRowAndLetsEventsThrough) {
    RandomSource chance(3);
    RecordingHost host;
    Picture picture = RandomPicture(1, chance);
    ApplyPictureFilter(GetParam(), picture, 5, host);
    EXPECT_GE(host.yields, picture.Height() - 4);
    EXPECT_EQ(host.progress.back(), 100);
    const bool isMask = GetParam() == 32;
    EXPECT_EQ(static_cast<int>(host.progress.size()), isMask ? 1 : host.yields + 2);
}

INSTANTIATE_TEST_SUITE_P(Filters, EveryFilter, testing::Range(1, 33),
                         testing::PrintToStringParamName());

TEST(PictureFilters, CountTheirPercentByRowsAndPasses) {
    const auto progressOf = [](int id) {
        RecordingHost host;
        Picture picture = GreyFrom("1 2 3 / 4 5 6 / 7 8 9");
        ApplyPictureFilter(id, picture, 5, host);
        return host.progress;
    };
    using Percents = std::vector<int>;
    EXPECT_EQ(progressOf(2), Percents({0, 33, 66, 100, 100}));
    EXPECT_EQ(progressOf(5), Percents({0, 66, 100}));
    EXPECT_EQ(progressOf(17), Percents({0, 5, 33, 66, 100, 100}));
    EXPECT_EQ(progressOf(28), Percents({0, 3, 6, 10, 33, 66, 100, 100}));
}

TEST(PictureFilters, InPlaceOnesSeeWhatIsChangedAlready) {
    const std::string dot = "0 0 0 0 0 / 0 0 0 0 0 / 0 0 255 0 0 / 0 0 0 0 0 / 0 0 0 0 0";
    EXPECT_EQ(Filtered(3, 4, dot),
              "0 0 0 0 0 / 0 31 35 36 0 / 0 40 17 11 0 / 0 7 9 4 0 / 0 0 0 0 0");
    EXPECT_EQ(Filtered(5, 3, dot),
              "0 0 0 0 0 / 0 0 51 10 0 / 0 51 71 16 0 / 0 10 16 6 0 / 0 0 0 0 0");
    EXPECT_EQ(Filtered(1, 5, "9 9 9 / 9 9 9 / 9 9 9"), "9 9 9 / 9 9 9 / 9 9 9");
    EXPECT_EQ(Filtered(1, 5, "9 9 9 / 9 90 9 / 9 9 9"), "9 9 9 / 9 189 9 / 9 9 9");
}

TEST(PictureFilters, EdgesAndReliefsLeaveTheirOffsetsOnFlatAreas) {
    EXPECT_EQ(FilteredColour(7, 5, 0x808080), 0x050000u) << "the menu's level is a red";
    EXPECT_EQ(FilteredColour(9, 0x030201, 0x808080), 0x010203u);
    EXPECT_EQ(FilteredColour(10, -1, 0x808080), 0x01ffffu) << "the size of a red of -1";
    EXPECT_EQ(FilteredColour(13, 0, 0x808080), 0x323232u);
    EXPECT_EQ(FilteredColour(19, 0, 0x646464), 0x646464u);
    EXPECT_EQ(Filtered(8, 0, "50 7 / 7 20"), "30 7 / 7 20");
    EXPECT_EQ(Filtered(9, 0, "50 0 9 / 50 0 9 / 50 0 9"), "50 0 9 / 50 123 9 / 50 0 9");
    EXPECT_EQ(Filtered(11, 0, "9 0 50 / 9 0 50 / 9 0 50"), "9 0 50 / 9 123 50 / 9 0 50");
    EXPECT_EQ(Filtered(13, 0, "9 0 0 / 0 0 0 / 0 0 4"), "9 0 0 / 0 55 0 / 0 0 4");
}

TEST(PictureFilters, ColoursAndTones) {
    EXPECT_EQ(FilteredColour(12, 0, 0x010203), 0x020202u);
    EXPECT_EQ(FilteredColour(16, 1, 0x112233), 0x113322u);
    EXPECT_EQ(FilteredColour(16, 4, 0x112233), 0x331122u);
    EXPECT_EQ(FilteredColour(16, 6, 0x112233), 0x112233u);
    EXPECT_EQ(FilteredColour(14, 50, 0x010364), 0x020496u) << "halves go to even";
    EXPECT_EQ(FilteredColour(18, 0x306090, 0x8f5f30), 0xffffffu) << "reached by blue";
    EXPECT_EQ(FilteredColour(18, 0x306090, 0x8f5f2f), 0u);
    EXPECT_EQ(FilteredColour(31, 100, 0x01fe80), 0x01fe80u);
    EXPECT_EQ(FilteredColour(32, 5, 0x060606), 0xffffffu);
    EXPECT_EQ(FilteredColour(32, 5, 0xffff05), 0u);
    EXPECT_EQ(Filtered(17, 100, "10 20 / 30 41"), "0 15 / 35 57") << "about their mean of 25";
    EXPECT_EQ(Filtered(28, 0, "10 20 / 30 110"), "0 26 / 51 255") << "25.5 goes to 26";
    EXPECT_EQ(Filtered(20, 0, "0 16 47 48 / 255 255 255 255 / 0 0 0 0 / 255 128 0 0"),
              "0 0 0 0 / 255 255 255 255 / 0 0 0 0 / 0 255 0 0");
}

TEST(PictureFilters, KuwaharaKeepsAStepSharp) {
    const std::string step = "9 9 9 80 80 / 9 9 9 80 80 / 9 9 9 80 80 / 9 9 9 80 80 / 9 9 9 80 80";
    EXPECT_EQ(Filtered(24, 2, step), step);
}

TEST(PictureFilters, ErrorDiffusionHandsSharesOn) {
    EXPECT_EQ(Filtered(21, 127, "100 100 / 100 100"), "0 255 / 0 0");
    EXPECT_EQ(Filtered(23, 127, "0 0 0 / 0 42 120 / 0 0 100"), "0 0 0 / 0 0 255 / 0 0 0");
}

TEST(PictureFilters, RefuseLevelsThatTheyCannotWorkWith) {
    RecordingHost host;
    Picture picture = GreyFrom("7 7 7 / 7 7 7 / 7 7 7");
    const auto refusal = [&](int id, int level) {
        return FaultOf([&] { ApplyPictureFilter(id, picture, level, host); });
    };
    EXPECT_EQ(refusal(1, -8),
              "picture filter 1 takes a level from -1000000 to 1000000 but not -8, not -8");
    EXPECT_EQ(refusal(6, 1000001),
              "picture filter 6 takes a level from -1000000 to 1000000 but not -1, not 1000001");
    EXPECT_EQ(refusal(6, -1).substr(0, 16), "picture filter 6");
    EXPECT_EQ(refusal(15, 0), "picture filter 15 takes a level from 1, not 0");
    EXPECT_EQ(refusal(31, -5), "picture filter 31 takes a level from 1, not -5");
    EXPECT_EQ(refusal(28, 0),
              "picture filter 28 cannot stretch a channel that is 7 in every pixel");
    EXPECT_EQ(refusal(2, 0), "no fault") << "a refusal must not block the next filter";
    EXPECT_EQ(picture.Row(0)[0] & 0xffffffu, 0xf8f8f8u);
}

TEST(PictureFilters, NumbersBeyondThemChangeNothing) {
    RecordingHost host;
    Picture picture = GreyFrom("1 2 3 / 4 5 6 / 7 8 9");
    const Picture before = picture;
    for (const int id : {INT32_MIN, -1, 0, 33, INT32_MAX})
        ApplyPictureFilter(id, picture, 5, host);
    EXPECT_EQ(picture.Image(), before.Image());
    EXPECT_TRUE(host.progress.empty());
    Picture nothing;
    for (int id = 1; id <= 32; ++id)
        ApplyPictureFilter(id, nothing, 5, host);
    EXPECT_EQ(host.progress.back(), 100);
}

/// Events that ask for another filter while one works.
class EagerHost : public RecordingHost {
  public:
    void Yield() override {
        if (yields++ == 0)
            ApplyPictureFilter(2, other, 0, *this);
    }
    Picture other = GreyFrom("1 2 / 3 4");
};

TEST(PictureFilters, SkipAFilterWhileAnotherRuns) {
    EagerHost host;
    Picture picture = GreyFrom("1 2 / 3 4");
    ApplyPictureFilter(2, picture, 0, host);
    EXPECT_EQ(TextOf(host.other), "1 2 / 3 4");
    EXPECT_EQ(TextOf(picture), "254 253 / 252 251");
}

TEST(PictureFilters, SplitAColourWithTheSignInItsRed) {
    int red = 0;
    int green = 0;
    int blue = 0;
    mFilterG::SplitColour(-3, red, green, blue);
    EXPECT_EQ(std::vector<int>({red, green, blue}), std::vector<int>({-3, 255, 255}));
}

}  // namespace
}  // namespace quillbrand
