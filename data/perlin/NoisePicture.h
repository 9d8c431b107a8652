#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "data/perlin/PerlinSets.h"

namespace quillbrand::perlin {

/// A square of 16-bit heights, row by row from the top: raw height + 32768.
struct NoisePicture {
    int side = 0;
    std::vector<std::uint16_t> levels;
};

/// The picture `number` (1..5) of a set, `side` pixels wide and high. The heights fill the set's
/// range for this picture, centred on 0; none is cut.
NoisePicture MakeNoisePicture(const PerlinSet& set, int number, int side);

/// The content of a PNG file with that picture: 24-bit colour, low byte of each level in green,
/// high byte in blue, red 0.
std::string EncodePng(const NoisePicture& picture);

/// The description of the set that the program lists it by.
std::string DescribeSet(const PerlinSet& set);

/// File name of the picture `number` (1..5).
std::string PictureFile(const PerlinSet& set, int number);

}  // namespace quillbrand::perlin
