#pragma once

#include <optional>
#include <string>

#include "base/Picture.h"
#include "shell/Session.h"

namespace quillbrand {

/// What the options dialog shows, and stores with its button "Save".
struct OptionsSettings {
    int terrainSizeIndex = 2;  ///< 0..4 for 128 to 2048 intervals
    int ResizeMode = 0;        ///< 1 bilinear, 2 pixel repetition; 0 before one was ever chosen
    int PaletteRow = 0;
    std::optional<Colour> BackColor = {};  ///< of the window; without one its key stays as it is
    /// What the steps of the history may take. Unless it changes its key stays as it is.
    int historyMegabytes = Settings::standardHistoryMegabytes;
    std::string terragenFolder = {};  ///< the three folders are shown only: WriteFolder stores them
    std::string objectFolder = {};
    std::string terrainFolder = {};
};

/// The settings as the dialog opens with them. A stored terrain size of 2048 shows as 512, so that
/// storing the settings as they are shown makes it 512. Throws Fault for a file that cannot be
/// read.
OptionsSettings LoadOptions(const Settings& stored);

/// Stores all but the folders, in one replacement of the settings file; then `stored` takes
/// them over, but for the terrain size, which is for the next start. Throws Fault, with file and
/// `stored` as they were.
void SaveOptions(Settings& stored, const OptionsSettings& settings);

/// Stores the folder of the section "Terragen", "Objects" or "Terrain" at once and returns what a
/// text box is to show. Throws Fault, with the file as it was, also for a path that the settings
/// cannot hold.
std::string WriteFolder(const Settings& stored, const std::string& section,
                        const std::string& path);

}  // namespace quillbrand
