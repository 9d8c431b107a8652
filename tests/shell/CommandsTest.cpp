#include <gtest/gtest.h>

#include <functional>
#include <tuple>

#include "shell/EditingCommands.h"
#include "shell/EffectCommands.h"
#include "shell/GeneratorCommands.h"
#include "shell/TerrainCommands.h"
#include "tests/support/Faults.h"
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
        tools.PerlinSets = ScanPerlinSets(folder / "PS");
        session.settings.ProgramFolder = folder.Path();
        document.CurrentTerrain = RandomGrid(129, -1000, 1000, host.chance);
        document.TerrainEmpty = false;
        document.CurrentFile = "hill.ter";
        document.history.Mode(HistoryMode::Steps);
    }

    void Start(const EffectRequest& request) {
        StartEffect(document, tools, session.settings, request, host);
    }
    void Produce(const GeneratorSettings& settings) {
        ProduceTerrain(document, tools, 1, 128, settings, host);
    }
    bool Open(const std::string& name) {
        return OpenTerrain(document, tools.LoadMemory, folder / name, host);
    }

    /// Everything that a command could leave changed, but for the steps that it adds.
    auto State() const {
        return std::tuple(AllCells(document.CurrentTerrain), HeaderText(document.CurrentTerrain),
                          document.CurrentFile, document.TerrainEmpty, tools.ModifyMode,
                          tools.RandomSeedValue);
    }

    void ExpectStep(const std::string& name, const std::function<void()>& command) {
        const auto before = State();
        const auto steps = document.history.Entries().size();
        command();
        const auto after = State();
        ASSERT_EQ(document.history.Entries().size(), steps + 1) << name;
        EXPECT_EQ(document.history.NameOfUndo(), name);
        document.Undo();
        EXPECT_TRUE(State() == before) << name;
        document.Redo();
        EXPECT_TRUE(State() == after) << name;
    }

    TemporaryFolder folder;
    Session session;
    Document& document = session.document;
    Tools& tools = session.tools;
    RecordingHost host;
};

TEST_F(Commands, AreStepsWhoseResultsComeBackFromFileAndBackup) {
    Start({.code = 1, .strength = 5, .zMin = 5000, .zMax = 6000});
    EXPECT_FALSE(document.history.CanUndo()) << "no height lies between these limits";
    ExpectStep("Smooth", [&] { Start({.code = 1, .strength = 5}); });
    SaveTerrain(document, folder / "b.ter", false, host);
    EXPECT_EQ(document.history.NameOfUndo(), "Smooth") << "nothing was stretched";
    WriteText(folder / "a.ter", std::string(99999, 'x'));
    ExpectStep("Save", [&] { SaveTerrain(document, folder / "a.ter", true, host); });
    EXPECT_LT(std::filesystem::file_size(folder / "a.ter"), 99999u);
    EXPECT_TRUE(document.TerrainSaved);
    EXPECT_EQ(document.CurrentFile, (folder / "a.ter").string());
    const std::string saved = TextOf(document.CurrentTerrain);
    BackupTerrain(session, BackupPath(session.settings));

    ExpectStep("New", [&] { NewTerrain(document); });
    EXPECT_TRUE(document.TerrainEmpty);
    EXPECT_EQ(document.CurrentFile, (folder / "a.ter").string());
    ExpectStep("Restore Terrain", [&] { RestoreTerrain(document, BackupPath(session.settings)); });
    EXPECT_EQ(TextOf(document.CurrentTerrain), saved);
    EXPECT_GT(document.CurrentTerrain.max(), 30000) << "the extremes are measured";
    EXPECT_FALSE(document.TerrainEmpty);

    ExpectStep("Clear Terrain", [&] { ClearTerrain(document, 5); });
    EXPECT_EQ(document.CurrentTerrain.XPoints(), 5);
    EXPECT_EQ(document.CurrentFile, "noname");
    EXPECT_EQ(document.CurrentTerrain.MinTU(), -10);
    EXPECT_EQ(document.CurrentTerrain.MaxTU(), 30);
    ExpectStep("Open", [&] { EXPECT_TRUE(Open("a.ter")); });
    EXPECT_EQ(TextOf(document.CurrentTerrain), saved);
    EXPECT_FALSE(document.TerrainEmpty);
    ExpectStep("Produce terrain", [&] { Produce({.seed = "1"}); });
    const auto noise = [&] { Start({.code = 2, .strength = 1}); };
    ExpectStep("Noise", noise);
    EXPECT_FALSE(host.isBusy);
    ExpectStep("Save as Perlin set", [&] { SaveAsPerlinSet(document, folder / "a", "x", host); });
    noise();
    ExpectStep("Optimized", [&] { ScaleHeights(document, host); });
    std::filesystem::copy(folder / "PS/Dots01.png", folder / "erode0.flt");
    ExpectStep("Erosion (River)", [&] { Start({.code = 5, .strength = 1, .seed = "1"}); });
    EXPECT_EQ(tools.ErodePictureName, "erode0.flt") << "for the pen";
    ExpectStep("Invers", [&] { Start({.code = 3, .strength = 1}); });
}

TEST_F(Commands, ThatFailChangeNothingAndAreNoSteps) {
    WriteText(folder / "short.ter", "TERRAGENTERRAIN SIZE" + std::string(90, '\1'));
    HeightsChange edit(document, "Edit");
    document.CurrentTerrain.SetPoint(60, 60, INT32_MAX - 100);
    edit.Commit();
    NewTerrain(document);
    document.Undo();
    tools.gaussTable = GaussTable(GaussTable::standardUpper);
    StrokeMap map;
    map.Clear(129);
    map.Press({20, 20});
    map.Press({61, 61});
    const auto fail = []() -> std::optional<ErosionSettings> { throw Fault("no dialog"); };
    const std::function<void()> commands[] = {
        [&] { SaveTerrain(document, folder / "nowhere/a.ter", true, host); },
        [&] { SaveAsPerlinSet(document, folder / "nowhere/a.QPS", "x", host); },
        [&] { Open("nowhere/a.ter"); },
        [&] { Open("short.ter"); },
        [&] { RestoreTerrain(document, folder / "nowhere/a.qbt"); },
        [&] { Produce({.set = 5, .seed = {}, .clearTerrain = true}); },
        [&] { Start({.code = 5, .strength = 1}); },
        [&] {
            LiftArea(document, {0, 0, 128, 128}, 30, host);
        },
        [&] {
            ReflectArea(document, {0, 0, 140, 140}, Reflection::Vertically, host);
        },
        [&] { ResizeDocument(document, 100, 1, 0, host); },
        [&] {
            StartStroke(document, tools, session.settings, {StrokeTool::Up, 10, 30}, map, host);
        },
        [&] { Start({.code = 12, .strength = 1, .startErosion = fail}); }};
    const auto before = State();
    for (const auto& command : commands) {
        EXPECT_NE(FaultOf(command), "no fault") << &command - commands;
        EXPECT_TRUE(State() == before) << &command - commands;
        EXPECT_FALSE(document.TerrainSaved) << &command - commands;
        EXPECT_TRUE(document.history.CanRedo()) << "a step would have taken its place";
    }
}

TEST_F(Commands, BackupGoesWithTheSessionThatMadeIt) {
    const auto path = BackupPath(session.settings);
    BackupTerrain(session, path);
    Session other;
    other.settings = session.settings;
    RemoveBackup(other);
    EXPECT_TRUE(std::filesystem::exists(path));
    RemoveBackup(session);
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(Commands, GeneratorUsesTheModeBeforeAddTakesItsPlace) {
    tools.ModifyMode = ModifyModes::Multiplication;
    Produce({.seed = "1"});
    EXPECT_EQ(tools.ModifyMode, ModifyModes::Multiplication);
    Produce({.seed = "1", .clearTerrain = true});
    EXPECT_EQ(document.CurrentTerrain.Range(), 0) << "nothing times the relief is nothing";
    EXPECT_EQ(document.CurrentTerrain.XPoints(), 129);
    EXPECT_EQ(tools.ModifyMode, ModifyModes::Add);

    ClearTerrain(document, 129);
    tools.ModifyMode = ModifyModes::highest;
    Produce({.seed = "1"});
    EXPECT_EQ(tools.ModifyMode, ModifyModes::Add);
    EXPECT_GT(document.CurrentTerrain.Range(), 60000);
    EXPECT_FALSE(document.TerrainEmpty);
}

}  // namespace
}  // namespace quillbrand
