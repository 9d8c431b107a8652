#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "base/IniFile.h"

namespace quillbrand {

/// What natural erosion is asked for; the defaults are those of a fresh dialog.
struct ErosionSettings {
    int dropCount = 10000;  ///< 1000..50000
    int dropWidth = 9;      ///< 1..20; takes no part in the result
    int slideDepth = 4;     ///< 1..10, side of the patch that a drop cuts, in points
    int erosionDepth = 3;   ///< 1..8

    bool operator==(const ErosionSettings&) const = default;
};

/// Asks for the settings; nothing when the user cancels.
using StartErosion = std::function<std::optional<ErosionSettings>()>;

/// The values of a settings file, section "Erosion", as a reader gives them to the sliders: limited
/// to their ranges; a missing key counts as 1000, 1, 1 and 4.
ErosionSettings ReadErosionSettings(const IniFile& file);

/// The same from a file. Throws Fault when it does not exist or cannot be read.
ErosionSettings LoadErosionSettings(const std::filesystem::path& path);

/// Writes the four keys into the file; other content stays. Throws Fault.
void SaveErosionSettings(const std::filesystem::path& path, const ErosionSettings& settings);

}  // namespace quillbrand
