#include "shell/GeneratorCommands.h"

#include <cmath>
#include <string>

#include "base/NumberText.h"
#include "base/Numbers.h"
#include "base/Stdio.h"

namespace quillbrand {

namespace {

GeneratorContext ContextOf(const Session& session) {
    return {.sets = session.PerlinSets,
            .ResizeMode = session.ResizeMode,
            .ModifyMode = session.ModifyMode};
}

}  // namespace

int NewSeed(RandomSource& chance) {
    return static_cast<int>(std::floor(999999 * chance.Uniform()));
}

int SeedOf(const std::string& text) {
    return static_cast<int>(
        RoundHalfEven(STDIO::ClampValue(-2147483648.0, 2147483647.0, Val(text))));
}

void ProduceTerrain(Session& session, int size, const GeneratorSettings& settings, Host& host) {
    ProduceTerrain(session.CurrentTerrain, size, settings, ContextOf(session), host);
    // Only now: the run itself used the mode that stood before.
    if (settings.clearTerrain || session.TerrainEmpty)
        session.ModifyMode = ModifyModes::Add;
    session.TerrainEmpty = false;
    host.Busy(false);
}

clsTerrain PreviewTerrain(const Session& session, const GeneratorSettings& settings, Host& host) {
    clsTerrain preview =
        PreviewOf(session.CurrentTerrain, session.TerrainEmpty, settings, ContextOf(session), host);
    host.Busy(false);
    return preview;
}

GeneratorSettings LoadGenerator(Session& session, const std::filesystem::path& path,
                                int presentRow) {
    LoadedGeneratorSettings loaded =
        LoadGeneratorSettings(path, presentRow, session.PerlinSets.ListedRows());
    session.RandomSeedValue = SeedOf(loaded.settings.seed);
    session.ModifyMode = loaded.modify;
    return std::move(loaded.settings);
}

void SaveGenerator(const Session& session, const std::filesystem::path& path,
                   GeneratorSettings settings) {
    settings.seed = std::to_string(session.RandomSeedValue);
    SaveGeneratorSettings(path, settings, session.ModifyMode);
}

}  // namespace quillbrand
