#pragma once

#include <QColor>
#include <cstdint>

namespace quillbrand {

/// A colour as 0x00BBGGRR.
using Colour = std::int32_t;

/// What a point outside a picture reads as.
constexpr Colour noColour = -1;

constexpr Colour ColourOf(int red, int green, int blue) {
    return red | (green << 8) | (blue << 16);
}

/// The colour of a raster's pixel, 0xAARRGGBB; alpha plays no part.
constexpr Colour ColourOf(QRgb pixel) {
    return ColourOf(qRed(pixel), qGreen(pixel), qBlue(pixel));
}

inline Colour ColourOf(const QColor& colour) {
    return ColourOf(colour.rgb());
}

/// A colour as a raster holds it, 0xFFRRGGBB.
constexpr QRgb PixelOf(Colour colour) {
    return qRgb(colour & 255, (colour >> 8) & 255, (colour >> 16) & 255);
}

inline QColor ToQColor(Colour colour) {
    return QColor::fromRgb(PixelOf(colour));
}

}  // namespace quillbrand
