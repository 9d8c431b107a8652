#pragma once

#include "filters/Job.h"

namespace quillbrand::mFilterG {

/// blue + green + red, 0..765.
constexpr int SumOf(Pixel pixel) {
    return Blue(pixel) + Green(pixel) + Red(pixel);
}

/// A third of the sum, cut to a whole number. The multiplication is exact for all sums.
constexpr int GreyOf(Pixel pixel) {
    return SumOf(pixel) * 0x5556 >> 16;
}

constexpr Pixel GreyPixel(int grey) {
    return static_cast<Pixel>(grey) * 0x010101;
}

/// The mean of the grey of all pixels, cut to a whole number. Requires: the picture has pixels.
int MeanGrey(Job& job);

}  // namespace quillbrand::mFilterG
