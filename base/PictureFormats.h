#pragma once

#include <cstddef>
#include <span>

namespace quillbrand {

/// A format that pictures are read in.
struct PictureFormat {
    const char* name;  ///< what the image library calls it
    bool (*matches)(std::span<const std::byte>);

    /// False for a file that ends before its last pixel. The image library returns half a picture
    /// for some of these.
    bool (*isWhole)(std::span<const std::byte>);
};

/// The format that a file's first bytes tell, or null.
const PictureFormat* FindPictureFormat(std::span<const std::byte> bytes);

}  // namespace quillbrand
