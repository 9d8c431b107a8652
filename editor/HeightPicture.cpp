#include "editor/HeightPicture.h"

#include "base/Numbers.h"
#include "editor/Palette.h"

namespace quillbrand {

namespace {

/// HeightToPaletteIndex and the table in one, without the wide sum: heights are limited first.
void ColourRow(std::span<const Height> heights, const QRgb* strip, QRgb* pixels) {
    for (std::size_t x = 0; x < heights.size(); ++x) {
        const int limited = std::clamp<int>(heights[x], INT16_MIN, INT16_MAX);
        pixels[x] = strip[(limited + 32768) >> 8];
    }
}

}  // namespace

void BuildHeightPicture(Picture& raster, clsTerrain& terrain, int paletteRow, Host& host) {
    host.Progress(0);
    host.Busy(true);
    const int points = terrain.XPoints();
    if (raster.Width() != points || raster.Height() != points)
        raster = Picture(points, points);
    host.Status("copy Highmap ...");
    host.Yield();
    terrain.Range();
    const QRgb* const strip = PaletteStrip(paletteRow).data();
    for (int y = 0; y < points; ++y) {
        ColourRow(terrain.Row(y, terrain.Points()), strip, raster.Row(y));
        host.Progress(PercentOf(y, points));
        host.Yield();
        if (y == points / 2)
            host.Status("create Picture ...");
    }
    host.Progress(100);
    host.Yield();
    host.Progress(0);
}

}  // namespace quillbrand
