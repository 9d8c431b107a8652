#pragma once

#include <filesystem>

#include "base/Host.h"
#include "generator/GenerateTerrain.h"
#include "shell/Session.h"

namespace quillbrand {

// What the Generator tab does, over the session's Perlin sets, ResizeMode and ModifyMode. Each one
// that throws Fault leaves session and terrain as they were.

/// A seed as the start and the button "RND" draw it: the whole part of 999999 * one random number.
int NewSeed(RandomSource& chance);

/// The seed that a text stands for, limited to 32 bits.
int SeedOf(const std::string& text);

/// "Produce terrain !" with `size` intervals. A run over nothing makes "Add" the mode of the next.
void ProduceTerrain(Session& session, int size, const GeneratorSettings& settings, Host& host);

/// "Preview": the terrain to be shown. The document does not change.
clsTerrain PreviewTerrain(const Session& session, const GeneratorSettings& settings, Host& host);

/// The settings of a .par file; its seed and overlay mode become the session's. A row that the
/// list does not have leaves `presentRow`.
GeneratorSettings LoadGenerator(Session& session, const std::filesystem::path& path,
                                int presentRow);

/// Writes settings, with the session's seed and overlay mode, as a .par file.
void SaveGenerator(const Session& session, const std::filesystem::path& path,
                   GeneratorSettings settings);

}  // namespace quillbrand
