#pragma once

#include <string>

#include "data/output/LevelPicture.h"
#include "data/perlin/PerlinSets.h"

namespace quillbrand::perlin {

/// The picture `number` (1..5) of a set, `side` pixels wide and high, as levels: raw height
/// + 32768. The heights fill the set's range for this picture, centred on 0; none is cut.
LevelPicture MakeNoisePicture(const PerlinSet& set, int number, int side);

/// The description of the set that the program lists it by.
std::string DescribeSet(const PerlinSet& set);

/// File name of the picture `number` (1..5).
std::string PictureFile(const PerlinSet& set, int number);

}  // namespace quillbrand::perlin
