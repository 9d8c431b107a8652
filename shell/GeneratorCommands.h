#pragma once

#include <filesystem>

#include "base/Host.h"
#include "generator/GenerateTerrain.h"
#include "shell/Session.h"

namespace quillbrand {

// What the Generator tab does, over the Perlin sets and the overlay mode of `tools`; `resizeMode`
// is the settings'. Each one that throws Fault leaves document and tools as they were.

/// A seed as the start and the button "RND" draw it: the whole part of 999999 * one random number.
int NewSeed(RandomSource& chance);

/// The seed that a text stands for, limited to 32 bits.
int SeedOf(const std::string& text);

/// "Produce terrain !" with `size` intervals. A run over nothing makes "Add" the mode of the next.
void ProduceTerrain(Document& document, Tools& tools, int resizeMode, int size,
                    const GeneratorSettings& settings, Host& host);

/// "Preview": the terrain to be shown. The document does not change.
clsTerrain PreviewTerrain(const Document& document, const Tools& tools, int resizeMode,
                          const GeneratorSettings& settings, Host& host);

/// The settings of a .par file; its seed and overlay mode go to `tools`. A row that the
/// list does not have leaves `presentRow`.
GeneratorSettings LoadGenerator(Tools& tools, const std::filesystem::path& path, int presentRow);

/// Writes settings, with seed and overlay mode of `tools`, as a .par file.
void SaveGenerator(const Tools& tools, const std::filesystem::path& path,
                   GeneratorSettings settings);

}  // namespace quillbrand
