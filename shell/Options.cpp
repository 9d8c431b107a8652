#include "shell/Options.h"

#include "base/Fault.h"
#include "base/IniFile.h"
#include "base/NumberText.h"
#include "shell/vbConfig.h"

namespace quillbrand {

namespace {

/// What the reader of the settings has room for beside a closing NUL.
constexpr std::size_t mostOfAValue = 511;

/// The index that is ticked. That the largest size is not known here is as users know it.
int ShownSizeIndex(const std::string& optTer) {
    const bool isKnown = optTer.size() == 1 && optTer[0] >= '0' && optTer[0] <= '3';
    return isKnown ? optTer[0] - '0' : 2;
}

}  // namespace

OptionsSettings LoadOptions(const Settings& stored) {
    const IniFile file = IniFile::Read(stored.IniPath);
    return {.terrainSizeIndex = ShownSizeIndex(file.Get("Start", "OptTer")),
            .ResizeMode = stored.ResizeMode,
            .PaletteRow = stored.PaletteRow,
            .BackColor = stored.BackColor,
            .historyMegabytes = stored.historyMegabytes,
            .terragenFolder = file.Get("terragen", "directory"),
            .objectFolder = file.Get("objects", "directory"),
            .terrainFolder = file.Get("terrain", "directory")};
}

void SaveOptions(Settings& stored, const OptionsSettings& settings) {
    IniFile file = IniFile::Read(stored.IniPath);
    file.Set("Start", "OptTer", Str(settings.terrainSizeIndex));
    file.Set("Start", "optzoom", Str(settings.ResizeMode));
    file.Set("Start", "color", Str(settings.PaletteRow));
    if (settings.BackColor)
        file.Set("Start", "BackColor", Str(*settings.BackColor));
    if (settings.historyMegabytes != stored.historyMegabytes)
        file.Set("History", "Megabytes", Str(settings.historyMegabytes));
    file.Write(stored.IniPath);
    stored.historyMegabytes = settings.historyMegabytes;
    stored.ResizeMode = settings.ResizeMode;
    stored.PaletteRow = settings.PaletteRow;
    if (settings.BackColor)
        stored.BackColor = settings.BackColor;
}

std::string WriteFolder(const Settings& stored, const std::string& section,
                        const std::string& path) {
    if (path.size() > mostOfAValue)
        throw Fault("the path has " + std::to_string(path.size()) +
                    " characters; the settings hold at most " + std::to_string(mostOfAValue) +
                    ": " + path);
    return vbConfig::WriteIni(stored, section, "directory", path);
}

}  // namespace quillbrand
