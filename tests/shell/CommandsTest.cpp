#include <gtest/gtest.h>

#include <tuple>

#include "base/Fault.h"
#include "shell/EffectCommands.h"
#include "shell/GeneratorCommands.h"
#include "shell/TerrainCommands.h"
#include "tests/support/Grids.h"
#include "tests/support/NoiseSet.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

class Commands : public testing::Test {
  protected:
    Commands() {
        WriteNoiseSet(folder / "PS", "Dots", 140);
        session.PerlinSets = ScanPerlinSets(folder / "PS");
        session.CurrentTerrain = RandomGrid(129, -1000, 1000, host.chance);
        session.TerrainEmpty = false;
        session.CurrentFile = "hill.ter";
    }

    /// Everything that a command could leave changed.
    auto State() const {
        return std::tuple(AllCells(session.CurrentTerrain), HeaderText(session.CurrentTerrain),
                          session.CurrentFile, session.TerrainEmpty, session.TerrainSaved,
                          session.ModifyMode, session.RandomSeedValue);
    }

    template <typename Work>
    void ExpectFaultChangesNothing(Work work) {
        const auto before = State();
        EXPECT_THROW(work(), Fault);
        EXPECT_TRUE(State() == before);
    }

    TemporaryFolder folder;
    Session session;
    RecordingHost host;
};

TEST_F(Commands, ThatFailChangeNothing) {
    const auto nowhere = folder / "nowhere/a.ter";
    WriteText(folder / "short.ter", "TERRAGENTERRAIN SIZE" + std::string(90, '\1'));
    const GeneratorSettings broken{.set = 5, .seed = {}, .clearTerrain = true};
    ExpectFaultChangesNothing([&] { SaveTerrain(session, nowhere, true, host); });
    ExpectFaultChangesNothing([&] { SaveAsPerlinSet(session, nowhere, "x", host); });
    ExpectFaultChangesNothing([&] { OpenTerrain(session, nowhere, host); });
    ExpectFaultChangesNothing([&] { OpenTerrain(session, folder / "short.ter", host); });
    ExpectFaultChangesNothing([&] { RestoreTerrain(session, nowhere); });
    ExpectFaultChangesNothing([&] { ProduceTerrain(session, 256, broken, host); });
}

TEST_F(Commands, ClearForgetsFileAndWindowAndNewKeepsThem) {
    session.CurrentTerrain.HeightScale(32767);
    session.CurrentTerrain.BaseHeight(32767);
    NewTerrain(session);
    EXPECT_EQ(session.CurrentFile, "hill.ter");
    EXPECT_EQ(session.CurrentTerrain.HeightScale(), 32767);
    EXPECT_TRUE(session.TerrainEmpty);
    ClearTerrain(session, 5);
    EXPECT_EQ(session.CurrentFile, "noname");
    EXPECT_EQ(session.CurrentTerrain.XPoints(), 5);
    EXPECT_EQ(session.CurrentTerrain.MinTU(), -10);
    EXPECT_EQ(session.CurrentTerrain.MaxTU(), 30);
}

TEST_F(Commands, SavedAndBackedUpTerrainsComeBack) {
    const auto file = folder / "a.ter";
    SaveTerrain(session, file, true, host);
    EXPECT_TRUE(session.TerrainSaved);
    EXPECT_EQ(session.CurrentFile, file.string());
    const std::string saved = TextOf(session.CurrentTerrain);
    BackupTerrain(session, folder / "b.qbt");
    EXPECT_TRUE(session.BackupExists);

    ClearTerrain(session, 5);
    RestoreTerrain(session, folder / "b.qbt");
    EXPECT_EQ(TextOf(session.CurrentTerrain), saved);
    EXPECT_TRUE(session.TerrainEmpty);

    ClearTerrain(session, 5);
    EXPECT_TRUE(OpenTerrain(session, file, host));
    EXPECT_EQ(TextOf(session.CurrentTerrain), saved);
    EXPECT_FALSE(session.TerrainEmpty);
}

TEST_F(Commands, GeneratorUsesTheModeBeforeAddTakesItsPlace) {
    session.ModifyMode = ModifyModes::Subtraction;
    ProduceTerrain(session, 128, {.seed = "1"}, host);
    EXPECT_EQ(session.ModifyMode, ModifyModes::Subtraction);

    session.ModifyMode = ModifyModes::Multiplication;
    ProduceTerrain(session, 128, {.seed = "1", .clearTerrain = true}, host);
    EXPECT_EQ(session.CurrentTerrain.Range(), 0) << "nothing times the relief is nothing";
    EXPECT_EQ(session.ModifyMode, ModifyModes::Add);

    ClearTerrain(session, 129);
    ProduceTerrain(session, 128, {.seed = "1"}, host);
    EXPECT_GT(session.CurrentTerrain.Range(), 60000);
    EXPECT_FALSE(session.TerrainEmpty);
}

TEST_F(Commands, GeneratorFileCarriesSeedAndModeOfTheSession) {
    session.RandomSeedValue = 4711;
    session.ModifyMode = ModifyModes::highest;
    SaveGenerator(session, folder / "a.par", {.iterations = 7, .seed = {}});
    session.RandomSeedValue = 0;
    session.ModifyMode = ModifyModes::Add;
    EXPECT_EQ(LoadGenerator(session, folder / "a.par", 0).iterations, 7);
    EXPECT_EQ(session.RandomSeedValue, 4711);
    EXPECT_EQ(session.ModifyMode, ModifyModes::highest);
    WriteText(folder / "far.par", "[Generator]\nRndSeed=1e10\n");
    EXPECT_EQ(LoadGenerator(session, folder / "far.par", 0).seed, "1e10");
    EXPECT_EQ(session.RandomSeedValue, 2147483647);
}

TEST_F(Commands, EffectWorksBetweenItsLimitsOnly) {
    const auto cells = AllCells(session.CurrentTerrain);
    StartEffect(session, {.code = 1, .strength = 5, .zMin = 5000, .zMax = 6000}, host);
    EXPECT_EQ(AllCells(session.CurrentTerrain), cells);
    StartEffect(session, {.code = 1, .strength = 5}, host);
    EXPECT_NE(AllCells(session.CurrentTerrain), cells);
    EXPECT_FALSE(host.isBusy);
}

TEST_F(Commands, EffectsThatFailMidwayLeaveTheHeights) {
    session.CurrentTerrain.Fill(700);
    ExpectFaultChangesNothing([&] { StartEffect(session, {.code = 7, .strength = 1}, host); });
    session.CurrentTerrain.SetPoint(3, 3, 200000);
    session.elevator.grid.Arm(true);
    ExpectFaultChangesNothing(
        [&] { StartEffect(session, {.code = 4, .strength = 1, .zMin = 0, .zMax = 300000}, host); });
    ExpectFaultChangesNothing([&] { StartEffect(session, {.code = 5, .strength = 1}, host); });
    const auto fail = []() -> std::optional<ErosionSettings> { throw Fault("no dialog"); };
    ExpectFaultChangesNothing(
        [&] { StartEffect(session, {.code = 12, .strength = 1, .startErosion = fail}, host); });
}

}  // namespace
}  // namespace quillbrand
