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
        session.tools.PerlinSets = ScanPerlinSets(folder / "PS");
        session.document.CurrentTerrain = RandomGrid(129, -1000, 1000, host.chance);
        session.document.TerrainEmpty = false;
        session.document.CurrentFile = "hill.ter";
    }

    /// Everything that a command could leave changed.
    auto State() const {
        return std::tuple(AllCells(session.document.CurrentTerrain),
                          HeaderText(session.document.CurrentTerrain), session.document.CurrentFile,
                          session.document.TerrainEmpty, session.document.TerrainSaved,
                          session.tools.ModifyMode, session.tools.RandomSeedValue);
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
    ExpectFaultChangesNothing([&] { SaveTerrain(session.document, nowhere, true, host); });
    ExpectFaultChangesNothing([&] { SaveAsPerlinSet(session.document, nowhere, "x", host); });
    ExpectFaultChangesNothing(
        [&] { OpenTerrain(session.document, session.tools.LoadMemory, nowhere, host); });
    ExpectFaultChangesNothing([&] {
        OpenTerrain(session.document, session.tools.LoadMemory, folder / "short.ter", host);
    });
    ExpectFaultChangesNothing([&] { RestoreTerrain(session.document, nowhere); });
    ExpectFaultChangesNothing([&] {
        ProduceTerrain(session.document, session.tools, session.settings.ResizeMode, 256, broken,
                       host);
    });
}

TEST_F(Commands, ClearForgetsFileAndWindowAndNewKeepsThem) {
    session.document.CurrentTerrain.HeightScale(32767);
    session.document.CurrentTerrain.BaseHeight(32767);
    NewTerrain(session.document);
    EXPECT_EQ(session.document.CurrentFile, "hill.ter");
    EXPECT_EQ(session.document.CurrentTerrain.HeightScale(), 32767);
    EXPECT_TRUE(session.document.TerrainEmpty);
    ClearTerrain(session.document, 5);
    EXPECT_EQ(session.document.CurrentFile, "noname");
    EXPECT_EQ(session.document.CurrentTerrain.XPoints(), 5);
    EXPECT_EQ(session.document.CurrentTerrain.MinTU(), -10);
    EXPECT_EQ(session.document.CurrentTerrain.MaxTU(), 30);
}

TEST_F(Commands, SavedAndBackedUpTerrainsComeBack) {
    const auto file = folder / "a.ter";
    SaveTerrain(session.document, file, true, host);
    EXPECT_TRUE(session.document.TerrainSaved);
    EXPECT_EQ(session.document.CurrentFile, file.string());
    const std::string saved = TextOf(session.document.CurrentTerrain);
    BackupTerrain(session, folder / "b.qbt");
    EXPECT_TRUE(session.BackupExists);

    ClearTerrain(session.document, 5);
    RestoreTerrain(session.document, folder / "b.qbt");
    EXPECT_EQ(TextOf(session.document.CurrentTerrain), saved);
    EXPECT_FALSE(session.document.TerrainEmpty);

    ClearTerrain(session.document, 5);
    EXPECT_TRUE(OpenTerrain(session.document, session.tools.LoadMemory, file, host));
    EXPECT_EQ(TextOf(session.document.CurrentTerrain), saved);
    EXPECT_FALSE(session.document.TerrainEmpty);
}

TEST_F(Commands, GeneratorUsesTheModeBeforeAddTakesItsPlace) {
    session.tools.ModifyMode = ModifyModes::Subtraction;
    ProduceTerrain(session.document, session.tools, session.settings.ResizeMode, 128, {.seed = "1"},
                   host);
    EXPECT_EQ(session.tools.ModifyMode, ModifyModes::Subtraction);

    session.tools.ModifyMode = ModifyModes::Multiplication;
    ProduceTerrain(session.document, session.tools, session.settings.ResizeMode, 128,
                   {.seed = "1", .clearTerrain = true}, host);
    EXPECT_EQ(session.document.CurrentTerrain.Range(), 0) << "nothing times the relief is nothing";
    EXPECT_EQ(session.tools.ModifyMode, ModifyModes::Add);

    ClearTerrain(session.document, 129);
    ProduceTerrain(session.document, session.tools, session.settings.ResizeMode, 128, {.seed = "1"},
                   host);
    EXPECT_GT(session.document.CurrentTerrain.Range(), 60000);
    EXPECT_FALSE(session.document.TerrainEmpty);
}

TEST_F(Commands, GeneratorFileCarriesSeedAndModeOfTheSession) {
    session.tools.RandomSeedValue = 4711;
    session.tools.ModifyMode = ModifyModes::highest;
    SaveGenerator(session.tools, folder / "a.par", {.iterations = 7, .seed = {}});
    session.tools.RandomSeedValue = 0;
    session.tools.ModifyMode = ModifyModes::Add;
    EXPECT_EQ(LoadGenerator(session.tools, folder / "a.par", 0).iterations, 7);
    EXPECT_EQ(session.tools.RandomSeedValue, 4711);
    EXPECT_EQ(session.tools.ModifyMode, ModifyModes::highest);
    WriteText(folder / "far.par", "[Generator]\nRndSeed=1e10\n");
    EXPECT_EQ(LoadGenerator(session.tools, folder / "far.par", 0).seed, "1e10");
    EXPECT_EQ(session.tools.RandomSeedValue, 2147483647);
}

TEST_F(Commands, EffectWorksBetweenItsLimitsOnly) {
    const auto cells = AllCells(session.document.CurrentTerrain);
    StartEffect(session.document, session.tools, session.settings,
                {.code = 1, .strength = 5, .zMin = 5000, .zMax = 6000}, host);
    EXPECT_EQ(AllCells(session.document.CurrentTerrain), cells);
    StartEffect(session.document, session.tools, session.settings, {.code = 1, .strength = 5},
                host);
    EXPECT_NE(AllCells(session.document.CurrentTerrain), cells);
    EXPECT_FALSE(host.isBusy);
}

TEST_F(Commands, EffectsThatFailMidwayLeaveTheHeights) {
    session.document.CurrentTerrain.Fill(700);
    ExpectFaultChangesNothing([&] {
        StartEffect(session.document, session.tools, session.settings, {.code = 7, .strength = 1},
                    host);
    });
    session.document.CurrentTerrain.SetPoint(3, 3, 200000);
    session.tools.elevator.grid.Arm(true);
    ExpectFaultChangesNothing([&] {
        StartEffect(session.document, session.tools, session.settings,
                    {.code = 4, .strength = 1, .zMin = 0, .zMax = 300000}, host);
    });
    ExpectFaultChangesNothing([&] {
        StartEffect(session.document, session.tools, session.settings, {.code = 5, .strength = 1},
                    host);
    });
    const auto fail = []() -> std::optional<ErosionSettings> { throw Fault("no dialog"); };
    ExpectFaultChangesNothing([&] {
        StartEffect(session.document, session.tools, session.settings,
                    {.code = 12, .strength = 1, .startErosion = fail}, host);
    });
}

}  // namespace
}  // namespace quillbrand
