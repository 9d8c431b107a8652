#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>

#include "base/Picture.h"
#include "effects/Elevator.h"
#include "effects/Gauss.h"
#include "generator/GeneratorSettings.h"
#include "generator/PerlinSets.h"
#include "terrain/Document.h"
#include "terrain/mTerLoad.h"

namespace quillbrand {

/// Where the program's files lie, and what the settings file says of the rest.
struct Settings {
    std::filesystem::path ProgramFolder;
    std::filesystem::path IniPath;
    std::filesystem::path PluginFolder;
    std::filesystem::path ObjectDirectory;
    std::filesystem::path TerrainDirectory;
    int ResizeMode = 0;
    int PaletteRow = 0;
    std::optional<Colour> BackColor;  ///< of the window, where the settings tell one
    int historyMegabytes = standardHistoryMegabytes;

    static constexpr int standardHistoryMegabytes = 256;
    static constexpr int mostHistoryMegabytes = 16384;
};

/// What the tools and the dialogs remember from one use to the next.
struct Tools {
    int SaveType = 0;
    double ViewZoom = 1.0;
    int RandomSeedValue = 0;
    std::string seedText;           ///< the generator's seed as its text stands
    int roughness = 0;              ///< the generator's, 0..10 (`Slider3`)
    std::optional<int> chosenSize;  ///< the grid size that is ticked
    int ModifyMode = ModifyModes::Add;
    PerlinSetTable PerlinSets;
    std::array<int, 100> EffectStrength{};
    std::string ErodePictureName;
    Elevator elevator;      ///< ElevatorGrid, ElevatorSetFile, ElevatorSetIndex
    GaussTable gaussTable;  ///< made at the start
    mTerLoad::Memory LoadMemory;

    Tools() { EffectStrength.fill(1); }
};

/// The long-lived state of one run, one of each.
struct Session {
    Document document;
    Settings settings;
    Tools tools;
    bool TerrainBusy = false;         ///< shown as the hourglass while a long operation runs
    bool BackupExists = false;        ///< a backup was made in this session
    std::filesystem::path StartFile;  ///< named on the command line, or empty
};

}  // namespace quillbrand
