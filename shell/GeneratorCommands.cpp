#include "shell/GeneratorCommands.h"

#include <cmath>
#include <string>

#include "base/NumberText.h"
#include "terrain/HeightsChange.h"

namespace quillbrand {

namespace {

GeneratorContext ContextOf(const Tools& tools, int resizeMode) {
    return {.sets = tools.PerlinSets, .ResizeMode = resizeMode, .ModifyMode = tools.ModifyMode};
}

}  // namespace

int NewSeed(RandomSource& chance) {
    return static_cast<int>(std::floor(999999 * chance.Uniform()));
}

int SeedOf(const std::string& text) {
    return ClampedVal(text);
}

void ProduceTerrain(Document& document, Tools& tools, int resizeMode, int size,
                    const GeneratorSettings& settings, Host& host) {
    HeightsChange change(document, "Produce terrain");
    ProduceTerrain(document.CurrentTerrain, size, settings, ContextOf(tools, resizeMode), host);
    // Only now: the run itself used the mode that stood before.
    if (settings.clearTerrain || document.TerrainEmpty)
        tools.ModifyMode = ModifyModes::Add;
    document.TerrainEmpty = false;
    change.Commit();
    host.Busy(false);
}

clsTerrain PreviewTerrain(const Document& document, const Tools& tools, int resizeMode,
                          const GeneratorSettings& settings, Host& host) {
    clsTerrain preview = PreviewOf(document.CurrentTerrain, document.TerrainEmpty, settings,
                                   ContextOf(tools, resizeMode), host);
    host.Busy(false);
    return preview;
}

GeneratorSettings LoadGenerator(Tools& tools, const std::filesystem::path& path, int presentRow) {
    LoadedGeneratorSettings loaded =
        LoadGeneratorSettings(path, presentRow, tools.PerlinSets.ListedRows());
    tools.RandomSeedValue = SeedOf(loaded.settings.seed);
    tools.ModifyMode = loaded.modify;
    return std::move(loaded.settings);
}

void SaveGenerator(const Tools& tools, const std::filesystem::path& path,
                   GeneratorSettings settings) {
    settings.seed = std::to_string(tools.RandomSeedValue);
    SaveGeneratorSettings(path, settings, tools.ModifyMode);
}

}  // namespace quillbrand
