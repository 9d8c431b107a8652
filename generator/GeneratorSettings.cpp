#include "generator/GeneratorSettings.h"

#include <cmath>

#include "base/Fault.h"
#include "base/NumberText.h"
#include "base/Numbers.h"
#include "base/Stdio.h"

namespace quillbrand {

namespace {

constexpr auto section = "Generator";

/// The value of a key as a whole number, however large it stands in the file.
int WholeNumber(const IniFile& file, const char* key) {
    const double value = Val(file.Get(section, key, "0", 255));
    return static_cast<int>(RoundHalfEven(STDIO::ClampValue(-2147483648.0, 2147483647.0, value)));
}

int Limited(const IniFile& file, const char* key, int low, int high) {
    return STDIO::ClampValue(low, high, WholeNumber(file, key));
}

}  // namespace

LoadedGeneratorSettings ReadGeneratorSettings(const IniFile& file, int presentRow, int rows) {
    LoadedGeneratorSettings loaded{};
    GeneratorSettings& settings = loaded.settings;
    const int row = WholeNumber(file, "Perlin");
    settings.set = row >= 0 && row < rows ? row : presentRow;
    settings.iterations = Limited(file, "iteration", 1, 11);
    settings.height = Limited(file, "Height", 1, 100);
    settings.structure = Limited(file, "Structure", 0, 4);
    settings.seed = file.Get(section, "RndSeed", "0", 255);
    loaded.modify = LimitTo16(WholeNumber(file, "modify"));
    settings.finerStructures = Limited(file, "HighRes", 0, 1) == 1;
    settings.roughness = Limited(file, "rougness", 0, 10);
    return loaded;
}

LoadedGeneratorSettings LoadGeneratorSettings(const std::filesystem::path& path, int presentRow,
                                              int rows) {
    if (!STDIO::FileExists(path))
        throw Fault("cannot read " + path.string() + ": No such file or directory");
    return ReadGeneratorSettings(IniFile::Read(path), presentRow, rows);
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
