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
#include "terrain/clsTerrain.h"
#include "terrain/mTerLoad.h"

namespace quillbrand {

/// The long-lived state of one session, one of each: the document, its file, the flags, the
/// settings that were read at the start.
struct Session {
    static constexpr auto noFile = "noname";

    clsTerrain CurrentTerrain;
    std::string CurrentFile = noFile;
    bool TerrainEmpty = true;   ///< no heights yet; save-like commands refuse
    bool TerrainSaved = false;  ///< set by every save, cleared by strokes of the stroke tools only
    bool TerrainBusy = false;   ///< a long operation runs
    bool BackupExists = false;  ///< a backup was made in this session

    std::filesystem::path ProgramFolder;
    std::filesystem::path IniPath;
    std::filesystem::path PluginFolder;
    std::filesystem::path ObjectDirectory;
    std::filesystem::path TerrainDirectory;
    std::filesystem::path StartFile;  ///< named on the command line, or empty

    int SaveType = 0;
    int ResizeMode = 0;
    int PaletteRow = 0;
    std::optional<Colour> BackColor;  ///< of the window, where the settings tell one
    double ViewZoom = 1.0;
    int RandomSeedValue = 0;
    int ModifyMode = ModifyModes::Add;
    PerlinSetTable PerlinSets;
    std::array<int, 100> EffectStrength{};
    std::string ErodePictureName;
    Elevator elevator;      ///< ElevatorGrid, ElevatorSetFile, ElevatorSetIndex
    GaussTable gaussTable;  ///< made at the start
    mTerLoad::Memory LoadMemory;

    Session() { EffectStrength.fill(1); }
};

}  // namespace quillbrand
