#pragma once

#include <cstddef>
#include <span>

namespace quillbrand {

/// Whether a picture file is all there: each walks the parts that the file is made of, by the
/// lengths that they tell, to the one that ends it. What a part holds is not looked at, so a
/// thumbnail's end is not taken for the picture's; what stands behind the end does not matter.
/// Requires: the file begins as its format does.
bool IsWholePng(std::span<const std::byte> bytes);
bool IsWholeJpeg(std::span<const std::byte> bytes);
bool IsWholeGif(std::span<const std::byte> bytes);
bool IsWholeBmp(std::span<const std::byte> bytes);
bool IsWholeIcon(std::span<const std::byte> bytes);

}  // namespace quillbrand
