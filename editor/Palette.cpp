#include "editor/Palette.h"

#include <cassert>

#include "base/Numbers.h"

namespace quillbrand {

namespace {

using Strip = std::array<QRgb, PaletteMax + 1>;

constexpr std::array<std::string_view, paletteRows> names = {
    "Greyscala", "Woodland", "Deset", "Greenlands", "Palette", "Hills & Wood", "Iceland", "Neon!"};

/// Where the colours of a strip are given; between them they run straight.
constexpr std::array<int, 9> stops = {0, 32, 64, 96, 128, 160, 192, 224, 255};

/// As RRGGBB.
constexpr std::array<std::array<QRgb, stops.size()>, paletteRows> colours = {{
    {0x000000, 0x171617, 0x373738, 0x5C5C5B, 0x7E7E7E, 0xA0A1A1, 0xC5C4C5, 0xE5E5E6, 0xFCFBFB},
    {0x71531C, 0x726F11, 0x256C17, 0x499238, 0x708F51, 0x7E7F5E, 0x837D72, 0xC4C3C4, 0xFEFEFE},
    {0x2D5000, 0x611E00, 0x8A3402, 0xA76615, 0xBAA82F, 0xD6BF3F, 0xE1CB5A, 0xE1C882, 0xE1D4BD},
    {0x1E2B3A, 0x422367, 0x472D5C, 0x3B5368, 0x2E7770, 0x237F4D, 0x52AE93, 0xA9DAD1, 0xD5DCDB},
    {0xFF0004, 0xFF00E4, 0x6C00FF, 0x0045FF, 0x00FFF4, 0x00FF36, 0x79FF00, 0xFFD000, 0xFF0300},
    {0x0D241C, 0x06583B, 0x17653E, 0x577B3C, 0x9B7744, 0x8E2E2E, 0xC07133, 0xF9D7A1, 0xF2E7C0},
    {0x2D1F26, 0x721348, 0x6C3173, 0x3C11A7, 0x1510DA, 0x1046E2, 0x79CCFD, 0xB4D4FF, 0xF5F8FF},
    {0x332637, 0x271BAC, 0x305AE5, 0x30856C, 0x2FC927, 0x8A9A2A, 0xFC6148, 0xFDFA95, 0xFEFEF3},
}};

int Between(int from, int to, double part) {
    return static_cast<int>(RoundHalfEven(from + (to - from) * part));
}

Strip MakeStrip(std::size_t row) {
    Strip strip{};
    for (std::size_t s = 0; s + 1 < stops.size(); ++s) {
        const QRgb from = colours[row][s];
        const QRgb to = colours[row][s + 1];
        for (int i = stops[s]; i <= stops[s + 1]; ++i) {
            const double part = double(i - stops[s]) / (stops[s + 1] - stops[s]);
            strip[static_cast<std::size_t>(i)] =
                qRgb(Between(qRed(from), qRed(to), part), Between(qGreen(from), qGreen(to), part),
                     Between(qBlue(from), qBlue(to), part));
        }
    }
    return strip;
}

}  // namespace

std::span<const std::string_view> PaletteNames() {
    return names;
}

const Strip& PaletteStrip(int row) {
    static const auto strips = [] {
        std::array<Strip, paletteRows> all;
        for (std::size_t i = 0; i < all.size(); ++i)
            all[i] = MakeStrip(i);
        return all;
    }();
    assert(row >= 0 && row < paletteRows);
    return strips[static_cast<std::size_t>(row)];
}

Colour PaletteTable(int index, int row) {
    assert(index >= 0 && index <= PaletteMax);
    return ColourOf(PaletteStrip(row)[static_cast<std::size_t>(index)]);
}

}  // namespace quillbrand
