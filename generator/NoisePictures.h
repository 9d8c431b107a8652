#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <vector>

#include "base/Picture.h"
#include "generator/PerlinSets.h"

namespace quillbrand {

/// A noise picture as 16-bit numbers: green is the low byte, blue the high byte, red is ignored.
/// The raw height of a number is 32768 less.
class NoisePicture {
  public:
    /// No points: every read is outside.
    NoisePicture() = default;
    explicit NoisePicture(const Picture& picture);

    int Width() const { return width_; }
    int Height() const { return height_; }

    /// Outside the picture the number is 0, which is the lowest height.
    std::uint16_t At(int x, int y) const {
        if (x < 0 || y < 0 || x >= width_ || y >= height_)
            return 0;
        return Row(y)[x];
    }

    const std::uint16_t* Row(int y) const {
        return numbers_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
    }

  private:
    int width_ = 0;
    int height_ = 0;
    std::vector<std::uint16_t> numbers_;
};

using NoisePictures = std::array<std::shared_ptr<const NoisePicture>, 5>;

/// The five pictures of a set. A picture whose file has not changed since it was last read is not
/// read again. Throws Fault, naming the file, when one cannot be read.
NoisePictures LoadNoisePictures(const std::filesystem::path& folder, const PerlinSet& set);

}  // namespace quillbrand
