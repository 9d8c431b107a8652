#include "effects/ErosionSettings.h"

#include <algorithm>
#include <string>

#include "base/Fault.h"
#include "base/NumberText.h"
#include "base/Numbers.h"
#include "base/Stdio.h"

namespace quillbrand {

namespace {

constexpr auto section = "Erosion";

int Limited(const IniFile& file, const char* key, const char* otherwise, int low, int high) {
    const double value = RoundHalfEven(Val(file.Get(section, key, otherwise)));
    return static_cast<int>(std::clamp<double>(value, low, high));
}

}  // namespace

ErosionSettings ReadErosionSettings(const IniFile& file) {
    return {.dropCount = Limited(file, "DropCount", "1000", 1000, 50000),
            .dropWidth = Limited(file, "Dropwith", "1", 1, 20),
            .slideDepth = Limited(file, "LLDepht", "1", 1, 10),
            .erosionDepth = Limited(file, "EroDepht", "4", 1, 8)};
}

ErosionSettings LoadErosionSettings(const std::filesystem::path& path) {
    if (!STDIO::FileExists(path))
        throw Fault("cannot read " + path.string() + ": No such file or directory");
    return ReadErosionSettings(IniFile::Read(path));
}

void SaveErosionSettings(const std::filesystem::path& path, const ErosionSettings& settings) {
    IniFile file = IniFile::Read(path);
    file.Set(section, "DropCount", std::to_string(settings.dropCount));
    file.Set(section, "Dropwith", std::to_string(settings.dropWidth));
    file.Set(section, "LLDepht", std::to_string(settings.slideDepth));
    file.Set(section, "EroDepht", std::to_string(settings.erosionDepth));
    file.Write(path);
}

}  // namespace quillbrand
