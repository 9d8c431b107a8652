#include "generator/GenerateTerrain.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/Fault.h"
#include "base/NumberText.h"
#include "base/Numbers.h"
#include "effects/QBFilter.h"
#include "generator/Overlay.h"
#include "terrain/DoubleGrid.h"
#include "terrain/ScaleTerrainStep.h"

namespace quillbrand {

namespace {

/// A picture's scale is this much smaller than the picture itself.
constexpr int scaleMargin = 4;

/// A picture as a layer reads it.
struct LayerSource {
    const ReliefPicture* picture;
    int scaleHeight;
};

/// The place of the window in the pictures, in thousandths of the free margin.
struct WindowPlace {
    double x;
    double y;
};

/// Six digits: the first three place the window from top to bottom, the last three from left to
/// right. A shorter seed is padded in front, a longer one cut there.
WindowPlace PlaceOf(const std::string& seed) {
    const std::string padded = "000000" + seed;
    const std::string digits = padded.substr(padded.size() - 6);
    return {Val(digits.substr(3)), double(RoundTo16(Val(digits.substr(0, 3))))};
}

int Offset(int scaleHeight, int width, double thousandths) {
    return RoundTo32(std::floor(1 + (scaleHeight - width) * (thousandths / 1000)));
}

/// Adds the window (0..width)² of a picture, divided by `divisor` and cut, into the grid.
void AddLayer(SquareArray& grid, int width, const LayerSource& source, const WindowPlace& place,
              int sign, int divisor) {
    const int offX = Offset(source.scaleHeight, width, place.x);
    const int offY = Offset(source.scaleHeight, width, place.y);
    for (int j = 0; j <= width; ++j) {
        std::int32_t* row = grid.Row(j);
        for (int i = 0; i <= width; ++i) {
            const int v = source.picture->At(i + offX, j + offY) - 32768;
            row[i] += sign * v / divisor;
        }
    }
}

/// The sum of all layers, on a grid with valid cells 0..width.
SquareArray SumLayers(const std::array<LayerSource, 6>& sources, int width,
                      const GeneratorSettings& settings, Host& host) {
    host.Status("Generate Terrain...");
    SquareArray grid(width + 9, 0);
    const WindowPlace place = PlaceOf(settings.seed);
    int k = settings.structure;
    int sign = -1;
    for (int n = 1;; ++n, ++k) {
        if (k > 5)
            k = 1;
        sign = -sign;
        AddLayer(grid, width, sources[static_cast<std::size_t>(k)], place, sign, n);
        host.Progress(std::max(0, n * 100 / settings.iterations - 1));
        host.Yield();
        if (n >= settings.iterations)
            return grid;
    }
}

struct Relief {
    SquareArray heights;
    int enlarging;  ///< 0 where the layers were not enlarged
};

/// Throws Fault for settings that no control can give.
void CheckSettings(int size, const GeneratorSettings& settings, int width) {
    const auto sizes = GeneratorSizes();
    if (size != width && std::find(sizes.begin(), sizes.end(), size) == sizes.end())
        throw Fault("a terrain of " + std::to_string(size) +
                    " intervals cannot be produced (128, "
                    "256, 512, 1024 or 2048)");
    if (settings.iterations < 1 || settings.structure < 0 || settings.structure > 5)
        throw Fault("the generator needs 1 iteration at least and a structure from 0 to 5");
}

/// Everything up to the meeting with the existing heights.
Relief MakeRelief(int size, const GeneratorSettings& settings, const GeneratorContext& context,
                  Host& host) {
    host.Status("Load Perlin Sets...");
    host.Progress(0);
    host.Busy(true);
    const int width = settings.finerStructures ? 257 : 129;
    CheckSettings(size, settings, width);
    if (!PerlinPathExists(context.sets.folder))
        throw Fault("Perlin Path not exists: " + context.sets.folder.string());
    if (settings.set < 0 || settings.set >= static_cast<int>(context.sets.rows.size()))
        throw Fault("there is no Perlin set in row " + std::to_string(settings.set) + " of " +
                    context.sets.folder.string());
    const NoisePictures pictures = LoadNoisePictures(
        context.sets.folder, context.sets.rows[static_cast<std::size_t>(settings.set)]);

    const ReliefPicture imported = context.importedPicture != nullptr
                                       ? ReliefPicture(*context.importedPicture)
                                       : ReliefPicture();
    std::array<LayerSource, 6> sources{{{&imported, imported.Height()}}};
    for (std::size_t i = 0; i < pictures.size(); ++i)
        sources[i + 1] = {pictures[i].get(), pictures[i]->Height() - scaleMargin};

    SquareArray grid = SumLayers(sources, width, settings, host);
    const int enlarging = 2 * (size / (2 * (width - 1)));
    int reached = width - 1;
    for (int i = 1; i <= enlarging / 2 && reached < size; ++i) {
        qbGenerator::DoubleGrid(grid, reached, context.ResizeMode, settings.roughness, host);
        host.Progress(PercentOf(reached, size));
    }
    return {std::move(grid), enlarging};
}

}  // namespace

std::span<const int> GeneratorSizes() {
    static constexpr std::array sizes{128, 256, 512, 1024, 2048};
    return sizes;
}

void GenerateTerrain(clsTerrain& terrain, int size, const GeneratorSettings& settings,
                     const GeneratorContext& context, Host& host) {
    const Relief relief = MakeRelief(size, settings, context, host);
    host.Busy(true);
    host.Status("calculate Terrain .......");
    OverlayRelief(terrain, relief.heights, size, settings.height, context.ModifyMode, host);
    auto smoothing = static_cast<float>(relief.enlarging + 1);
    QBFilter::FilterSmooth(terrain, smoothing, {.extent = size}, host);
    ScaleTerrainStep(terrain, host);
    host.Progress(100);
    host.Busy(false);
    host.Yield();
}

void ProduceTerrain(clsTerrain& current, int size, const GeneratorSettings& settings,
                    const GeneratorContext& context, Host& host) {
    host.Status("Generate Terrain.....");
    host.Progress(0);
    host.Yield();
    if (settings.clearTerrain)
        current.Init(size + 1);
    GenerateTerrain(current, size, settings, context, host);
    host.Status("Add Terrain ....");
    host.Busy(true);
    host.Progress(0);
    ScaleTerrainStep(current, host);
}

clsTerrain PreviewOf(const clsTerrain& current, bool currentIsEmpty,
                     const GeneratorSettings& settings, const GeneratorContext& context,
                     Host& host) {
    const int points = settings.finerStructures ? 257 : 129;
    clsTerrain preview;
    preview.Init(points);
    GenerateTerrain(preview, points, settings, context, host);
    if (!settings.clearTerrain && !currentIsEmpty) {
        host.Busy(true);
        host.Status("add terrain with preview.....");
        OverlayPreview(preview, current, settings.height, context.ModifyMode);
    }
    ScaleTerrainStep(preview, host);
    return preview;
}

}  // namespace quillbrand
