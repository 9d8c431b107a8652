#include "base/PictureFormats.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/WholePicture.h"

namespace quillbrand {

namespace {

using Span = std::span<const std::byte>;

bool StartsWith(Span bytes, std::string_view magic) {
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return text.starts_with(magic);
}

bool IsPng(Span bytes) {
    return StartsWith(bytes, "\x89PNG\r\n\x1a\n");
}

bool IsJpeg(Span bytes) {
    return StartsWith(bytes, "\xff\xd8\xff");
}

bool IsGif(Span bytes) {
    return StartsWith(bytes, "GIF87a") || StartsWith(bytes, "GIF89a");
}

bool IsBmp(Span bytes) {
    return StartsWith(bytes, "BM");
}

bool IsIcon(Span bytes) {
    return StartsWith(bytes, std::string_view("\0\0\1\0", 4));
}

constexpr std::array formats = {
    PictureFormat{"png", IsPng, IsWholePng},   PictureFormat{"jpeg", IsJpeg, IsWholeJpeg},
    PictureFormat{"gif", IsGif, IsWholeGif},   PictureFormat{"bmp", IsBmp, IsWholeBmp},
    PictureFormat{"ico", IsIcon, IsWholeIcon},
};

}  // namespace

const PictureFormat* FindPictureFormat(Span bytes) {
    const auto* const found = std::find_if(
        formats.begin(), formats.end(), [&](const auto& format) { return format.matches(bytes); });
    return found == formats.end() ? nullptr : found;
}

}  // namespace quillbrand
