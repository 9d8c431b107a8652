#include "generator/GeneratorSettings.h"

#include <cstdint>

#include "base/NumberText.h"

namespace quillbrand {

namespace {

constexpr auto section = "Generator";

std::string Text(const IniFile& file, const char* key) {
    return file.Get(section, key, "0", 255);
}

}  // namespace

LoadedGeneratorSettings ReadGeneratorSettings(const IniFile& file, int presentRow, int rows) {
    LoadedGeneratorSettings loaded{};
    GeneratorSettings& settings = loaded.settings;
    const int row = ClampedVal(Text(file, "Perlin"));
    settings.set = row >= 0 && row < rows ? row : presentRow;
    settings.iterations = ClampedVal(Text(file, "iteration"), 1, 11);
    settings.height = ClampedVal(Text(file, "Height"), 1, 100);
    settings.structure = ClampedVal(Text(file, "Structure"), 0, 4);
    settings.seed = Text(file, "RndSeed");
    loaded.modify = ClampedVal(Text(file, "modify"), INT16_MIN, INT16_MAX);
    settings.finerStructures = ClampedVal(Text(file, "HighRes"), 0, 1) == 1;
    settings.roughness = ClampedVal(Text(file, "rougness"), 0, 10);
    return loaded;
}

LoadedGeneratorSettings LoadGeneratorSettings(const std::filesystem::path& path, int presentRow,
                                              int rows) {
    return ReadGeneratorSettings(IniFile::ReadExisting(path), presentRow, rows);
}

void SaveGeneratorSettings(const std::filesystem::path& path, const GeneratorSettings& settings,
                           int modify) {
    IniFile file = IniFile::Read(path);
    file.Set(section, "Perlin", Str(settings.set));
    file.Set(section, "Iteration", Str(settings.iterations));
    file.Set(section, "Height", Str(settings.height));
    file.Set(section, "Structure", Str(settings.structure));
    file.Set(section, "RNDSeed", settings.seed);
    file.Set(section, "modify", Str(modify));
    file.Set(section, "highres", Str(settings.finerStructures ? 1 : 0));
    file.Set(section, "rougness", Str(settings.roughness));
    file.Write(path);
}

}  // namespace quillbrand
