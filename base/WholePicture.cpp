#include "base/WholePicture.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "base/ByteBuffer.h"

namespace quillbrand {

namespace {

using Span = std::span<const std::byte>;

/// A place in a file's bytes that goes on from part to part, and stays at the end once it is there.
class Walk {
  public:
    explicit Walk(Span bytes, std::size_t place = 0) : bytes_(bytes) { Skip(place); }

    /// False once more was asked for than there is.
    bool IsInside() const { return inside_; }

    void Skip(std::uint64_t count) {
        inside_ = inside_ && count <= bytes_.size() - place_;
        place_ = inside_ ? place_ + static_cast<std::size_t>(count) : bytes_.size();
    }

    /// The next byte, or 0.
    unsigned Byte() {
        const std::size_t at = place_;
        Skip(1);
        return inside_ ? std::to_integer<unsigned>(bytes_[at]) : 0;
    }

    std::uint32_t BigEndian(int count) {
        std::uint32_t value = 0;
        for (int i = 0; i < count; ++i)
            value = value << 8 | Byte();
        return value;
    }

    bool IsNext(const char* letters, std::size_t count) const {
        return count <= bytes_.size() - place_ &&
               std::memcmp(bytes_.data() + place_, letters, count) == 0;
    }

  private:
    Span bytes_;
    std::size_t place_ = 0;
    bool inside_ = true;
};

/// The next byte behind 0xFF that is a marker: not the zero that follows such a byte of the
/// picture's data, nor one of the bytes that fill a gap. 0 at the end of the file.
unsigned NextJpegMarker(Walk& walk) {
    while (walk.IsInside()) {
        if (walk.Byte() != 0xFF)
            continue;
        unsigned marker = 0xFF;
        while (marker == 0xFF)
            marker = walk.Byte();
        if (marker != 0)
            return marker;
    }
    return 0;
}

void SkipGifBlocks(Walk& walk) {
    for (unsigned length = walk.Byte(); length > 0; length = walk.Byte())
        walk.Skip(length);
}

/// A table of colours, if the flags of its header tell of one.
void SkipGifColours(Walk& walk, unsigned flags) {
    if ((flags & 0x80) != 0)
        walk.Skip(std::uint64_t{3} << ((flags & 7) + 1));
}

/// The head of a bitmap, as far as it tells where the rows stand and how long they are.
struct BitmapHead {
    std::uint64_t size;
    std::int64_t width;
    std::int64_t height;
    std::int64_t bits;
    std::uint32_t compression = 0;
    std::uint32_t length = 0;  ///< of packed rows; 0 for unknown
    std::uint64_t colours = 0;
    bool isOld;

    explicit BitmapHead(Span head) : size(ValueAt<std::uint32_t>(head, 0)), isOld(size == 12) {
        width = isOld ? ValueAt<std::int16_t>(head, 4) : ValueAt<std::int32_t>(head, 4);
        height = isOld ? ValueAt<std::int16_t>(head, 6) : ValueAt<std::int32_t>(head, 8);
        bits = ValueAt<std::uint16_t>(head, isOld ? 10 : 14);
        if (!isOld) {
            compression = ValueAt<std::uint32_t>(head, 16);
            length = ValueAt<std::uint32_t>(head, 20);
            colours = ValueAt<std::uint32_t>(head, 32);
        }
        if (bits > 8)
            colours = 0;
        else if (colours == 0)
            colours = std::uint64_t{1} << bits;
    }

    /// Where the rows stand at the earliest: behind the head, its masks and its colours.
    std::uint64_t End() const {
        const bool hasMasks = compression == 3 && size == 40;
        return size + (hasMasks ? 12 : 0) + colours * (isOld ? 3 : 4);
    }

    /// Rows begin at multiples of four bytes; the last one's padding counts as well.
    bool HasRowsIn(std::uint64_t room) const {
        const std::int64_t rowBytes = (width * bits + 31) / 32 * 4;
        return rowBytes == 0 || std::uint64_t(std::abs(height)) <= room / std::uint64_t(rowBytes);
    }
};

/// Whether the codes of a run-length packed bitmap come to their end.
bool HoldsPackedRows(Walk walk, bool hasHalfBytes) {
    while (walk.IsInside()) {
        const bool isRun = walk.Byte() != 0;
        const unsigned code = walk.Byte();
        if (isRun || code == 0)
            continue;
        if (code == 1)
            return walk.IsInside();
        if (code == 2)
            walk.Skip(2);
        else
            walk.Skip(((hasHalfBytes ? (code + 1) / 2 : code) + 1) / 2 * 2);
    }
    return false;
}

}  // namespace

bool IsWholePng(Span bytes) {
    Walk walk(bytes, 8);
    while (walk.IsInside()) {
        const std::uint64_t length = walk.BigEndian(4);
        const bool isEnd = walk.IsNext("IEND", 4);
        walk.Skip(4 + length + 4);  // its name, its content, its check sum
        if (isEnd)
            return walk.IsInside();
    }
    return false;
}

bool IsWholeJpeg(Span bytes) {
    Walk walk(bytes, 2);
    while (const unsigned marker = NextJpegMarker(walk)) {
        if (marker == 0xD9)
            return true;
        const bool standsAlone = marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
        if (!standsAlone)
            walk.Skip(std::max(walk.BigEndian(2), 2u) - 2);
    }
    return false;
}

bool IsWholeGif(Span bytes) {
    Walk walk(bytes, 10);
    const unsigned flags = walk.Byte();
    walk.Skip(2);
    SkipGifColours(walk, flags);
    while (walk.IsInside()) {
        const unsigned part = walk.Byte();
        if (part == ';')
            return true;
        if (part == 0)
            continue;  // some writers end their blocks twice
        if (part == ',') {
            walk.Skip(8);
            SkipGifColours(walk, walk.Byte());
        } else if (part != '!') {
            return false;
        }
        // The kind of an extension, or the width of an image's codes.
        walk.Skip(1);
        SkipGifBlocks(walk);
    }
    return false;
}

bool IsWholeBmp(Span bytes) {
    constexpr std::size_t headPlace = 14;
    if (bytes.size() < headPlace)
        return false;
    const BitmapHead head(bytes.subspan(headPlace));
    const std::uint64_t told = ValueAt<std::uint32_t>(bytes, 10);
    const std::uint64_t start = std::max(told, headPlace + head.End());
    if (head.width <= 0 || start > bytes.size())
        return false;
    const std::uint64_t room = bytes.size() - start;
    if (head.compression == 1 || head.compression == 2)
        return head.length > 0 ? head.length <= room
                               : HoldsPackedRows(Walk(bytes, start), head.compression == 2);
    return head.HasRowsIn(room);
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

}  // namespace quillbrand
