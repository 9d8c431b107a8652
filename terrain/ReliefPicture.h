#pragma once

#include <cassert>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <vector>

#include "base/Picture.h"

namespace quillbrand {

/// A picture that holds a relief, as 16-bit numbers: green is the low byte, blue the high byte, red
/// is ignored.
class ReliefPicture {
  public:
    /// No points: every read is outside.
    ReliefPicture() = default;
    explicit ReliefPicture(const Picture& picture);

    int Width() const { return width_; }
    int Height() const { return height_; }

    /// Outside the picture the number is 0.
    std::uint16_t At(int x, int y) const {
        if (x < 0 || y < 0 || x >= width_ || y >= height_)
            return 0;
        return Row(y)[x];
    }

    /// Row y, Width() numbers. Requires: 0 <= y < Height().
    const std::uint16_t* Row(int y) const {
        assert(y >= 0 && y < height_);
        return numbers_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
    }

  private:
    int width_ = 0;
    int height_ = 0;
    std::vector<std::uint16_t> numbers_;
};

/// The relief in a picture file. One whose file has not changed since it was last read is not read
/// again. Throws Fault, naming the file, when it cannot be read.
std::shared_ptr<const ReliefPicture> LoadReliefPicture(const std::filesystem::path& path);

}  // namespace quillbrand
