#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/IniFile.h"

namespace quillbrand {

/// What the controls of the generator hold; the defaults are the ones of a fresh window.
struct GeneratorSettings {
    int set = 0;         ///< row of the Perlin set
    int iterations = 1;  ///< 1..11 noise layers
    int height = 100;    ///< 1..100 percent
    int structure = 2;   ///< 0..4, the first picture
    int roughness = 0;   ///< 0..10
    std::string seed;    ///< text; its last six characters place the window
    bool finerStructures = false;
    bool clearTerrain = false;  ///< not part of a settings file
};

/// Overlay modes: how a new height meets the old one. A file can hold any number; others than these
/// leave the terrain as it is.
namespace ModifyModes {
enum : int { none, Add, Subtraction, Multiplication, Division, highest, lowest };
}

/// What the modes are called, by number.
constexpr std::array<std::string_view, 7> modifyCaptions = {
    "none", "Add", "Subtraction", "Multiplication", "Division", "highest", "lowest"};

/// The values of a settings file, section "Generator", as a reader gives them to the controls:
/// missing keys count as 0 and numbers are limited to their control's range.
struct LoadedGeneratorSettings {
    GeneratorSettings settings;
    int modify;  ///< overlay mode, as it stands in the file
};

/// `rows` is how many sets the list holds; a row beyond it leaves `presentRow` chosen.
LoadedGeneratorSettings ReadGeneratorSettings(const IniFile& file, int presentRow, int rows);

/// The same from a file. Throws Fault when it does not exist or cannot be read.
LoadedGeneratorSettings LoadGeneratorSettings(const std::filesystem::path& path, int presentRow,
                                              int rows);

/// Writes the eight keys into the file; other content stays. Throws Fault.
void SaveGeneratorSettings(const std::filesystem::path& path, const GeneratorSettings& settings,
                           int modify);

}  // namespace quillbrand
