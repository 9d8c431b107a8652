#include "base/PictureFormats.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace quillbrand {

namespace {

using Span = std::span<const std::byte>;

std::string_view TextOf(Span bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

bool StartsWith(Span bytes, std::string_view magic) {
    return TextOf(bytes).starts_with(magic);
}

template <typename Value>
Value ValueAt(Span bytes, std::size_t offset) {
    Value value{};
    if (offset + sizeof value <= bytes.size())
        std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

bool IsPng(Span bytes) {
    return StartsWith(bytes, "\x89PNG\r\n\x1a\n");
}

bool IsWholePng(Span bytes) {
    constexpr std::string_view end("\0\0\0\0IEND\xae\x42\x60\x82", 12);
    return TextOf(bytes).find(end) != std::string_view::npos;
}

bool IsJpeg(Span bytes) {
    return StartsWith(bytes, "\xff\xd8\xff");
}

bool IsWholeJpeg(Span bytes) {
    return TextOf(bytes).rfind("\xff\xd9") != std::string_view::npos;
}

bool IsGif(Span bytes) {
    return StartsWith(bytes, "GIF87a") || StartsWith(bytes, "GIF89a");
}

/// The trailer byte, behind which some writers leave padding.
bool IsWholeGif(Span bytes) {
    const auto last = TextOf(bytes).find_last_not_of('\0');
    return last != std::string_view::npos && TextOf(bytes)[last] == ';';
}

bool IsBmp(Span bytes) {
    return StartsWith(bytes, "BM");
}

/// Uncompressed bitmaps must hold all their rows; compressed ones tell their own length.
bool IsWholeBmp(Span bytes) {
    const std::int64_t start = ValueAt<std::uint32_t>(bytes, 10);
    const bool oldHeader = ValueAt<std::uint32_t>(bytes, 14) == 12;
    const std::int64_t width =
        oldHeader ? ValueAt<std::int16_t>(bytes, 18) : ValueAt<std::int32_t>(bytes, 18);
    const std::int64_t height =
        oldHeader ? ValueAt<std::int16_t>(bytes, 20) : ValueAt<std::int32_t>(bytes, 22);
    const std::int64_t bits = ValueAt<std::uint16_t>(bytes, oldHeader ? 24 : 28);
    const std::uint32_t compression = oldHeader ? 0 : ValueAt<std::uint32_t>(bytes, 30);
    const std::int64_t room = static_cast<std::int64_t>(bytes.size()) - start;
    if (width <= 0 || room < 0)
        return false;
    if (compression == 1 || compression == 2)
        return ValueAt<std::uint32_t>(bytes, 34) <= room;
    const std::int64_t rowBytes = (width * bits + 31) / 32 * 4;
    return rowBytes == 0 || std::abs(height) <= room / rowBytes;
}

bool IsIcon(Span bytes) {
    return StartsWith(bytes, std::string_view("\0\0\1\0", 4));
}

bool IsWholeIcon(Span bytes) {
    const std::size_t count = ValueAt<std::uint16_t>(bytes, 4);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t entry = 6 + 16 * i;
        const std::uint64_t length = ValueAt<std::uint32_t>(bytes, entry + 8);
        const std::uint64_t start = ValueAt<std::uint32_t>(bytes, entry + 12);
        if (entry + 16 > bytes.size() || start + length > bytes.size())
            return false;
    }
    return count > 0;
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
