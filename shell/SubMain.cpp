#include "shell/SubMain.h"

#include <array>

#include "base/Files.h"
#include "base/IniFile.h"
#include "base/NumberText.h"
#include "base/Stdio.h"
#include "editor/Palette.h"
#include "effects/QBTools2.h"
#include "shell/GeneratorCommands.h"

namespace quillbrand {

namespace {

/// Points per side by the index that the settings hold as text.
int StartPoints(const std::string& optTer) {
    constexpr std::array points = {129, 257, 513, 1025, 2049};
    if (optTer.size() != 1 || optTer[0] < '0' || optTer[0] > '4')
        return 257;
    return points[static_cast<std::size_t>(optTer[0] - '0')];
}

/// A number of the section "Start", limited to 0..`most`, so that a damaged file cannot choose
/// what does not exist.
int StartNumber(const IniFile& settings, const std::string& key, int most) {
    return ClampedVal(settings.Get("Start", key), 0, most);
}

void ReadSettings(Session& session) {
    const IniFile settings = IniFile::Read(session.settings.IniPath);
    session.settings.ObjectDirectory = settings.Get("Objects", "Directory");
    session.settings.TerrainDirectory = settings.Get("Terrain", "Directory");
    session.settings.ResizeMode = StartNumber(settings, "OptZoom", 2);
    session.settings.PaletteRow = StartNumber(settings, "COLOR", paletteRows - 1);
    // Negative numbers are colours of another system's desktop.
    const std::string backColor = settings.Get("Start", "BackColor");
    if (!backColor.empty() && Val(backColor) >= 0)
        session.settings.BackColor = StartNumber(settings, "BackColor", 0xffffff);
    const std::string megabytes = settings.Get("History", "Megabytes");
    if (!megabytes.empty())
        session.settings.historyMegabytes = static_cast<int>(
            std::clamp<double>(RoundHalfEven(Val(megabytes)), 0, Settings::mostHistoryMegabytes));
    const std::string setFile = settings.Get("ELEVATOR", "Name");
    session.tools.elevator.ElevatorSetFile = FindInFolder(
        session.settings.ProgramFolder, setFile.empty() ? Elevator::defaultSetFile : setFile);
    session.document.CurrentTerrain.Init(StartPoints(settings.Get("Start", "OptTer")));
}

void SetStartWindow(clsTerrain& terrain) {
    terrain.ScaleT(30);
    terrain.BaseHeight(10);
    terrain.HeightScale(20);
    terrain.MinTU(-10);
    terrain.MaxTU(30);
}

}  // namespace

void SubMain(Session& session, const std::filesystem::path& programFolder,
             const std::string& startFile, RandomSource& chance) {
    session.settings.ProgramFolder = programFolder;
    session.settings.IniPath = programFolder / "Quillbrand.ini";
    session.settings.PluginFolder = programFolder / "plugins";
    ReadSettings(session);
    SetStartWindow(session.document.CurrentTerrain);
    if (STDIO::FileExists(startFile))
        session.StartFile = startFile;

    QBTools2::LoadElevatorSet(session.tools.elevator, 0);
    session.tools.elevator.ElevatorSetIndex = 0;
    session.tools.gaussTable = GaussTable(GaussTable::standardUpper);

    chance.ReseedFromClock();
    session.tools.RandomSeedValue = NewSeed(chance);

    session.document.CurrentTerrain.Fill(0);
    session.document.CurrentTerrain.pProgress = 100;
    session.tools.PerlinSets = ScanPerlinSets(programFolder / "PS");
}

}  // namespace quillbrand
