#pragma once

#include <array>
#include <span>
#include <string_view>

#include "base/Picture.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// The highest colour index.
constexpr int PaletteMax = 255;

/// How many strips of colours there are.
constexpr int paletteRows = 8;

/// The names of the strips as the list shows them.
std::span<const std::string_view> PaletteNames();

/// The colour of an index in strip `row`. Requires: 0 <= index <= PaletteMax, 0 <= row <
/// paletteRows.
Colour PaletteTable(int index, int row);

/// A whole strip, as 0xFFRRGGBB. Requires: 0 <= row < paletteRows.
const std::array<QRgb, PaletteMax + 1>& PaletteStrip(int row);

/// The colour index of a raw height: bands of 256 raw units, limited at both ends.
constexpr int HeightToPaletteIndex(Height raw) {
    const std::int64_t t = std::int64_t{raw} + 32768;
    return static_cast<int>(std::clamp<std::int64_t>(t / 256, 0, PaletteMax));
}

}  // namespace quillbrand
