#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/Faults.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/SlowTwins.h"

namespace quillbrand {
namespace {

using QBFilter::Area;

/// Random grids, areas and limits for a body and its twin.
class Trial {
  public:
    explicit Trial(int turn) : chance_(static_cast<std::uint32_t>(turn)) {
        const int points = Any(1, 80);
        const int amplitude = turn % 5 == 0 ? 40 : turn % 5 == 1 ? 70000 : 32767;
        terrain =
            RandomGrid(points, turn % 3 == 0 ? -amplitude / 4 : -amplitude, amplitude, chance_);
        terrain.FixHeight(turn % 4 == 1);
        area.extent = terrain.XPoints();
        if (turn % 2 == 1) {
            area.zMin = Any(-33000, 20000);
            area.zMax = Any(-10000, 33000);
        }
    }

    int Any(int low, int high) { return AnyOf(low, high, chance_); }

    /// An area that need not lie in the grid.
    void TakeAnyArea() { area = {Any(0, 100), Any(-30, 60), Any(-30, 60), -20000, 20000}; }

    /// An area inside the grid.
    void TakeAPart() {
        area.startX = Any(0, terrain.Size());
        area.startY = Any(0, terrain.Size());
        area.extent = Any(0, terrain.Size() + 2 - std::max(area.startX, area.startY));
    }

    RandomSource chance_;
    clsTerrain terrain;
    Area area;
};

using Body = void (*)(clsTerrain&, float&, const Area&, Host&);

/// Runs a body; false when it ended in a fault.
bool Runs(Body body, clsTerrain& terrain, float strength, const Area& area) {
    RecordingHost host;
    return FaultOf([&] { body(terrain, strength, area, host); }) == "no fault";
}

TEST(Shifts, AgreeWithTheSlowTwinOnRandomGridsAreasAndLimits) {
    using SlowTwins::Curve;
    const std::pair<Body, Curve> curves[] = {{QBFilter::FilterStretch, Curve::Stretch},
                                             {QBFilter::FilterSinusShift, Curve::Sinus},
                                             {QBFilter::FilterGammaShift, Curve::Gamma}};
    int faults = 0;
    for (int turn = 0; turn < 600; ++turn) {
        Trial trial(turn);
        if (turn % 7 == 3)
            trial.TakeAPart();
        const auto& [body, curve] = curves[turn % 3];
        const float strength = std::sqrt(static_cast<float>(trial.Any(1, 11)));
        clsTerrain slow = trial.terrain;
        const bool runs = Runs(body, trial.terrain, strength, trial.area);
        const auto twin = [&, which = curve] {
            SlowTwins::TwoPasses(slow, which, strength, trial.area);
        };
        ASSERT_EQ(runs, FaultOf(twin) == "no fault") << "turn " << turn;
        ASSERT_TRUE(!runs || SameGrid(trial.terrain, slow)) << "turn " << turn;
        faults += runs ? 0 : 1;
    }
    EXPECT_LT(faults, 60);
}

TEST(Shifts, StretchKeepsTheEndsAndPullsTheMiddleFlat) {
    RecordingHost host;
    clsTerrain terrain = GridFrom("-32767 -16384 0 / 16384 32767 100 / 0 0 0");
    float strength = 5;
    QBFilter::FilterStretch(terrain, strength, {}, host);
    EXPECT_EQ(TextOf(terrain), "-32764 -8192 0 / 8192 32764 0 / 0 0 0");
    EXPECT_FLOAT_EQ(strength, 1.7f / 65536);
    EXPECT_EQ(host.statuses, std::vector<std::string>{"Terrain stretched..."});
    EXPECT_EQ(host.progress.front(), 0);
    EXPECT_EQ(host.progress.back(), 100);
    EXPECT_TRUE(host.isBusy);
}

TEST(Shifts, SinusSpansHalfTheRangeAndStartsSteep) {
    clsTerrain terrain = GridFrom("-32767 -16384 0 / 16384 32767 0 / 27787 0 0");
    ASSERT_TRUE(Runs(QBFilter::FilterSinusShift, terrain, 1, {}));
    terrain.Range();
    EXPECT_NEAR(terrain.min(), -16382, 1);
    EXPECT_NEAR(terrain.max(), 16382, 1);
    EXPECT_EQ(terrain.GetPoint(0, 2), terrain.max()) << "the sine's peak lies below the highest";
    EXPECT_NEAR(terrain.GetPoint(2, 0), (0.7513 - 0.5) * 32765, 3) << "the sine of 0.85";
}

TEST(Invert, NegatesTheTerrainAndOneRowOfItsMarginWhateverTheArea) {
    for (int turn = 0; turn < 40; ++turn) {
        Trial trial(turn);
        clsTerrain slow = trial.terrain;
        ASSERT_TRUE(Runs(QBFilter::FilterInvert, trial.terrain, 1, {.extent = 1, .zMin = 0}));
        for (int x = 0; x <= slow.XPoints(); ++x)
            for (int y = 0; y <= slow.XPoints(); ++y)
                slow.SetPoint(x, y, -slow.GetPoint(x, y));
        ASSERT_TRUE(SameGrid(trial.terrain, slow)) << "turn " << turn;
    }
    clsTerrain terrain = GridFrom("-32768 5 / 6 7");
    ASSERT_TRUE(Runs(QBFilter::FilterInvert, terrain, 1, {}));
    EXPECT_EQ(TextOf(terrain), "32768 -5 / -6 -7");
    terrain.SetPoint(1, 1, INT32_MIN);
    const auto before = AllCells(terrain);
    EXPECT_FALSE(Runs(QBFilter::FilterInvert, terrain, 1, {}));
    EXPECT_EQ(AllCells(terrain), before);
}

TEST(Noise, AgreesWithTheSlowTwinAndDrawsTheSameNumbers) {
    for (int turn = 0; turn < 300; ++turn) {
        Trial trial(turn);
        if (turn % 3 == 2)
            trial.TakeAnyArea();
        if (turn % 10 == 9)
            FillWithChance(trial.terrain, -1700000000, 1700000000, trial.chance_);
        clsTerrain slow = trial.terrain;
        RecordingHost host(static_cast<std::uint32_t>(turn));
        RandomSource chance(static_cast<std::uint32_t>(turn));
        auto strength = static_cast<float>(turn % 11);
        SlowTwins::FilterNoise(slow, strength, trial.area, chance);
        QBFilter::FilterNoise(trial.terrain, strength, trial.area, host);
        EXPECT_EQ(strength, static_cast<float>(turn % 11 + 1));
        ASSERT_TRUE(SameGrid(trial.terrain, slow)) << "turn " << turn;
        ASSERT_EQ(host.chance.Uniform(), chance.Uniform()) << "turn " << turn;
    }
}

TEST(Noise, MovesNoHeightByMoreThanItsShareAndNoneBelowAStrengthOfOneAfterItsGrowth) {
    clsTerrain terrain = GridFrom("0 10000 / -10000 0");
    ASSERT_TRUE(Runs(QBFilter::FilterNoise, terrain, 3, {}));
    EXPECT_NEAR(terrain.GetPoint(1, 0), 10000, 1000);
    const auto before = AllCells(terrain);
    ASSERT_TRUE(Runs(QBFilter::FilterNoise, terrain, -0.5f, {}));
    EXPECT_EQ(AllCells(terrain), before);
}

float Smooth(clsTerrain& terrain, float strength, const Area& area) {
    RecordingHost host;
    QBFilter::FilterSmooth(terrain, strength, area, host);
    return strength;
}

TEST(Smooth, AgreesWithTheSlowTwinOnRandomGridsAreasAndLimits) {
    for (int turn = 0; turn < 400; ++turn) {
        Trial trial(turn);
        if (turn % 3 == 2)
            trial.TakeAnyArea();
        if (turn % 7 == 6) {
            FillWithChance(trial.terrain, -2000000000, 2000000000, trial.chance_);
            trial.area.zMin = INT32_MIN;
            trial.area.zMax = turn % 2 == 0 ? INT32_MAX : 1000000000;
        }
        clsTerrain slow = trial.terrain;
        Smooth(trial.terrain, 3, trial.area);
        SlowTwins::FilterSmooth(slow, trial.area);
        ASSERT_TRUE(SameGrid(trial.terrain, slow)) << "turn " << turn;
    }
}

TEST(Smooth, LeavesPointsAtTheLimitsAloneButHearsThem) {
    clsTerrain terrain = GridFrom("500 0 500 / 0 10 0 / 500 0 500");
    Smooth(terrain, 3, {.extent = 3, .zMin = 0, .zMax = 500});
    EXPECT_EQ(terrain.GetPoint(0, 0), 500);
    EXPECT_EQ(terrain.GetPoint(1, 0), 0);
    EXPECT_GT(terrain.GetPoint(1, 1), 400);
}

TEST(Smooth, RunsFromAStrengthOfThreeOnAndThenChangesOnlyIt) {
    clsTerrain terrain = GridFrom("1 2 3 / 4 50 6 / 7 8 9");
    const clsTerrain before = terrain;
    RecordingHost host;
    float strength = 2.99f;
    QBFilter::FilterSmooth(terrain, strength, {.extent = 3}, host);
    EXPECT_TRUE(SameGrid(terrain, before));
    EXPECT_TRUE(host.statuses.empty());
    EXPECT_TRUE(host.progress.empty());

    clsTerrain smooth = terrain;
    Smooth(smooth, 3, {.extent = 3});
    const std::pair<float, float> strengths[] = {{3, 3}, {4, 5}, {8, 9}, {12, 10}, {3.5f, 3.5f}};
    for (const auto& [given, left] : strengths) {
        clsTerrain other = terrain;
        EXPECT_EQ(Smooth(other, given, {.extent = 3}), left);
        EXPECT_TRUE(SameGrid(smooth, other)) << given;
    }
}

}  // namespace
}  // namespace quillbrand
