#pragma once

#include <span>

#include "base/Host.h"
#include "base/Picture.h"
#include "generator/GeneratorSettings.h"
#include "generator/PerlinSets.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// What a run needs beside its settings.
struct GeneratorContext {
    const PerlinSetTable& sets;
    int ResizeMode;  ///< how grids are doubled: 1 bilinear, 2 repetition, 0 randomised
    int ModifyMode;  ///< overlay mode

    /// The picture that structure 0 begins with: the last one imported, or null.
    const Picture* importedPicture = nullptr;
};

/// The sizes that a terrain can be produced in, intervals per side.
std::span<const int> GeneratorSizes();

/// Adds up windows of the set's pictures, enlarges the sum to `size` intervals, lays it over the
/// heights of `terrain`, smooths it when it was enlarged, and scales it. The grid keeps its size.
/// `size` is one of GeneratorSizes(), or the width of the working grid (129, 257) for a preview.
/// Throws Fault when there are no sets, a picture cannot be read or a height leaves 32 bits; the
/// heights are then in any state.
void GenerateTerrain(clsTerrain& terrain, int size, const GeneratorSettings& settings,
                     const GeneratorContext& context, Host& host);

/// "Produce terrain !": a run over `current`, or over a flat terrain of `size` intervals where the
/// settings say so. Throws Fault with `current` in any state.
void ProduceTerrain(clsTerrain& current, int size, const GeneratorSettings& settings,
                    const GeneratorContext& context, Host& host);

/// "Preview": the new relief at 129 points (257 with finer structures), laid over a reduced copy
/// of `current` unless that is empty or would be cleared. `current` does not change.
clsTerrain PreviewOf(const clsTerrain& current, bool currentIsEmpty,
                     const GeneratorSettings& settings, const GeneratorContext& context,
                     Host& host);

}  // namespace quillbrand
