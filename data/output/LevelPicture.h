#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quillbrand {

/// A square of 16-bit numbers, row by row from the top, that is shipped as a picture.
struct LevelPicture {
    int side = 0;
    std::vector<std::uint16_t> levels;
};

/// The content of a PNG file with that picture: 24-bit colour, low byte of each level in green,
/// high byte in blue, red 0.
std::string EncodePng(const LevelPicture& picture);

}  // namespace quillbrand
