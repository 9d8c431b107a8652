#include "effects/ErosionSettings.h"

#include <string>

#include "base/NumberText.h"

namespace quillbrand {

namespace {

constexpr auto section = "Erosion";

}  // namespace

ErosionSettings ReadErosionSettings(const IniFile& file) {
    return {.dropCount = ClampedVal(file.Get(section, "DropCount", "1000"), 1000, 50000),
            .dropWidth = ClampedVal(file.Get(section, "Dropwith", "1"), 1, 20),
            .slideDepth = ClampedVal(file.Get(section, "LLDepht", "1"), 1, 10),
            .erosionDepth = ClampedVal(file.Get(section, "EroDepht", "4"), 1, 8)};
}

ErosionSettings LoadErosionSettings(const std::filesystem::path& path) {
    return ReadErosionSettings(IniFile::ReadExisting(path));
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
