#include <gtest/gtest.h>

#include <cmath>

#include "base/Fault.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/SlowEffects.h"

namespace quillbrand {
namespace {

using QBFilter::Area;

/// Random grids, areas and limits for a body and its twin.
class Trial {
  public:
    explicit Trial(int turn) : turn_(turn), chance_(static_cast<std::uint32_t>(turn)) {
        terrain.Init(Any(1, 80));
        const int amplitude = turn % 5 == 0 ? 40 : turn % 5 == 1 ? 70000 : 32767;
        FillWithChance(terrain, turn % 3 == 0 ? -amplitude / 4 : -amplitude, amplitude, chance_);
        terrain.FixHeight(turn % 4 == 1);
        area.extent = terrain.XPoints();
        if (turn % 2 == 1) {
            area.zMin = Any(-33000, 20000);
            area.zMax = Any(-10000, 33000);
        }
    }

    int Any(int low, int high) {
        return low + static_cast<int>(chance_.Uniform() * (high - low + 1));
    }

    /// An area inside the grid.
    void TakeAPart() {
        area.startX = Any(0, terrain.Size());
        area.startY = Any(0, terrain.Size());
        area.extent = Any(0, terrain.Size() + 2 - std::max(area.startX, area.startY));
    }

    int turn_;
    RandomSource chance_;
    clsTerrain terrain;
    Area area;
};

using Body = void (*)(clsTerrain&, float&, const Area&, Host&);

/// Runs a body; false when it ended in a fault.
bool Runs(Body body, clsTerrain& terrain, float strength, const Area& area) {
    RecordingHost host;
    try {
        body(terrain, strength, area, host);
    } catch (const Fault&) {
        return false;
    }
    return true;
}

bool Runs(SlowTwins::Curve curve, clsTerrain& terrain, float strength, const Area& area) {
    try {
        SlowTwins::TwoPasses(terrain, curve, strength, area);
    } catch (const Fault&) {
        return false;
    }
    return true;
}

void ExpectSameGrid(const clsTerrain& fast, const clsTerrain& slow, int turn) {
    ASSERT_TRUE(AllCells(fast) == AllCells(slow)) << "turn " << turn;
    ASSERT_EQ(fast.min(), slow.min()) << "turn " << turn;
    ASSERT_EQ(fast.max(), slow.max()) << "turn " << turn;
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
        ASSERT_EQ(runs, Runs(curve, slow, strength, trial.area)) << "turn " << turn;
        if (runs)
            ExpectSameGrid(trial.terrain, slow, turn);
        else
            ++faults;
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
    RecordingHost host;
    clsTerrain terrain = GridFrom("-32767 -16384 0 / 16384 32767 0 / 27787 0 0");
    float strength = 1;
    QBFilter::FilterSinusShift(terrain, strength, {}, host);
    terrain.Range();
    EXPECT_NEAR(terrain.min(), -16382, 1);
    EXPECT_NEAR(terrain.max(), 16382, 1);
    EXPECT_EQ(terrain.GetPoint(0, 2), terrain.max()) << "the sine's peak lies below the highest";
    EXPECT_NEAR(terrain.GetPoint(2, 0), (0.7513 - 0.5) * 32765, 3) << "the sine of 0.85";
}

TEST(Shifts, GammaWritesItsLastColumnAndRowFromACurveOfNothing) {
    RecordingHost host;
    clsTerrain terrain = GridFrom("-32767 -20000 900 / 20000 32767 800 / 70 60 50");
    float strength = 1;
    QBFilter::FilterGammaShift(terrain, strength, {.extent = 2}, host);
    EXPECT_EQ(strength, 0.25f);
    EXPECT_EQ(terrain.GetPoint(2, 0), 0);
    EXPECT_EQ(terrain.GetPoint(0, 2), 0);
    EXPECT_EQ(terrain.GetPoint(0, 0), -terrain.GetPoint(1, 1));
    EXPECT_GT(terrain.GetPoint(1, 1), 31000);
}

TEST(Shifts, LeaveAFlatTerrainBeyondZeroToAFault) {
    RecordingHost host;
    clsTerrain terrain = GridFrom("700 700 / 700 700");
    terrain.Fill(700);
    float strength = 1;
    EXPECT_THROW(QBFilter::FilterGammaShift(terrain, strength, {}, host), Fault);
}

TEST(Invert, NegatesTheTerrainAndOneRowOfItsMarginWhateverTheArea) {
    for (int turn = 0; turn < 40; ++turn) {
        Trial trial(turn);
        clsTerrain slow = trial.terrain;
        ASSERT_TRUE(Runs(QBFilter::FilterInvert, trial.terrain, 1, {.extent = 1, .zMin = 0}));
        SlowTwins::FilterInvert(slow);
        ExpectSameGrid(trial.terrain, slow, turn);
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
            trial.area = {trial.Any(0, 100), trial.Any(-30, 60), trial.Any(-30, 60), -20000, 20000};
        if (turn % 10 == 9)
            FillWithChance(trial.terrain, -1700000000, 1700000000, trial.chance_);
        clsTerrain slow = trial.terrain;
        RecordingHost host(static_cast<std::uint32_t>(turn));
        RandomSource chance(static_cast<std::uint32_t>(turn));
        auto strength = static_cast<float>(turn % 11);
        QBFilter::FilterNoise(trial.terrain, strength, trial.area, host);
        SlowTwins::FilterNoise(slow, static_cast<float>(turn % 11), trial.area, chance);
        EXPECT_EQ(strength, static_cast<float>(turn % 11 + 1));
        ExpectSameGrid(trial.terrain, slow, turn);
        ASSERT_EQ(host.chance.Uniform(), chance.Uniform()) << "turn " << turn;
    }
}

TEST(Noise, NeverMovesHeightsOfZeroNorAnyByMoreThanItsShare) {
    clsTerrain terrain = GridFrom("0 10000 / -10000 0");
    ASSERT_TRUE(Runs(QBFilter::FilterNoise, terrain, 3, {}));
    EXPECT_EQ(terrain.GetPoint(0, 0), 0);
    EXPECT_NEAR(terrain.GetPoint(1, 0), 10000, 1000);
    EXPECT_NE(terrain.GetPoint(0, 1), -10000);
    const auto before = AllCells(terrain);
    ASSERT_TRUE(Runs(QBFilter::FilterNoise, terrain, -0.5f, {}));
    EXPECT_EQ(AllCells(terrain), before) << "below a strength of 1 after its growth";
}

}  // namespace
}  // namespace quillbrand
