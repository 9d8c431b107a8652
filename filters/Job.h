#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "base/Host.h"
#include "base/Picture.h"

namespace quillbrand::mFilterG {

/// A pixel: blue, green, red and a fourth channel that no filter changes, in this order in memory.
using Pixel = QRgb;
static_assert(std::endian::native == std::endian::little, "channels lie in memory from blue on");

constexpr std::ptrdiff_t channels = 4;
constexpr Pixel white = 0x00ffffff;  ///< also the bits of the three channels that filters change

constexpr int Blue(Pixel pixel) {
    return static_cast<int>(pixel & 255);
}
constexpr int Green(Pixel pixel) {
    return static_cast<int>(pixel >> 8 & 255);
}
constexpr int Red(Pixel pixel) {
    return static_cast<int>(pixel >> 16 & 255);
}

/// The three channels of `colour`, the fourth of `pixel`.
constexpr Pixel Recoloured(Pixel pixel, Pixel colour) {
    return (pixel & ~white) | (colour & white);
}

/// The channels of a row of pixels, one after another.
inline std::uint8_t* BytesOf(Pixel* row) {
    return reinterpret_cast<std::uint8_t*>(row);
}

/// One run of a filter: the picture, the level, and where the progress is told. Rows and columns
/// count from 0.
class Job {
  public:
    /// A silent job lets events through but tells no percent.
    Job(int id, Picture& picture, int level, bool silent, Host& host)
        : id_(id), picture_(picture), level_(level), silent_(silent), host_(host) {}

    int Width() const { return picture_.Width(); }
    int Height() const { return picture_.Height(); }
    int Level() const { return level_; }
    RandomSource& Chance() { return host_.Chance(); }

    Pixel* Row(int y) { return picture_.Row(y); }
    std::uint8_t* Bytes(int y) { return BytesOf(Row(y)); }

    /// How many bytes a row has.
    std::size_t RowBytes() const { return static_cast<std::size_t>(Width()) * channels; }

    /// After each row: `share` percent of its part of the height, and events may pass.
    void RowDone(int y, int share = 100);

    /// Between two passes.
    void Reached(int percent);

    /// The colour that the level stands for, a number for each channel, as long as a row.
    std::vector<std::int16_t> LevelByChannel() const;

    /// Ends the job with a Fault: "picture filter 15 takes a level " `allowed` ", not 0".
    [[noreturn]] void RefuseLevel(const std::string& allowed) const;

    /// "picture filter 15 " `text`.
    [[noreturn]] void Refuse(const std::string& text) const;

  private:
    int id_;
    Picture& picture_;
    int level_;
    bool silent_;
    Host& host_;
};

/// Lays the colours of `from` over the pixels begin..end - 1 of a row.
void Recolour(Pixel* row, const Pixel* from, std::ptrdiff_t begin, std::ptrdiff_t end);

}  // namespace quillbrand::mFilterG
