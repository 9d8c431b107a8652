#include "terrain/StepKernels.h"

#include "base/VectorClones.h"

namespace quillbrand {

namespace {

inline std::uint32_t Difference(std::int32_t before, std::int32_t after) {
    return static_cast<std::uint32_t>(before) - static_cast<std::uint32_t>(after);
}

inline std::uint32_t Folded(std::uint32_t difference) {
    return (difference << 1) ^ (0u - (difference >> 31));
}

inline std::uint32_t Unfolded(std::uint32_t code) {
    return (code >> 1) ^ (0u - (code & 1));
}

}  // namespace

QB_VECTOR_CLONES void MarkTiles(const std::int32_t* one, const std::int32_t* other,
                                std::ptrdiff_t count, std::uint8_t* marks) {
    for (; count >= tileSide; count -= tileSide, one += tileSide, other += tileSide, ++marks) {
        std::int32_t differing = 0;
        for (int i = 0; i < tileSide; ++i)
            differing |= one[i] ^ other[i];
        *marks |= differing != 0;
    }
    std::int32_t differing = 0;
    for (std::ptrdiff_t i = 0; i < count; ++i)
        differing |= one[i] ^ other[i];
    if (differing != 0)
        *marks = 1;
}

QB_VECTOR_CLONES std::uint32_t FoldRow(const std::int32_t* before, const std::int32_t* after,
                                       std::size_t count, std::uint32_t* above,
                                       std::uint32_t* codes) {
    std::uint32_t all = 0;
    for (std::size_t x = 0; x < count; ++x) {
        const std::uint32_t difference = Difference(before[x], after[x]);
        all |= codes[x] = Folded(difference - above[x]);
        above[x] = difference;
    }
    return all;
}

QB_VECTOR_CLONES void UnfoldRow(const std::uint32_t* codes, std::size_t count, bool subtract,
                                std::uint32_t* sums, std::int32_t* cells) {
    const std::uint32_t sign = subtract ? ~0u : 0u;
    for (std::size_t x = 0; x < count; ++x) {
        sums[x] += (Unfolded(codes[x]) ^ sign) - sign;
        cells[x] = static_cast<std::int32_t>(static_cast<std::uint32_t>(cells[x]) + sums[x]);
    }
}

QB_VECTOR_CLONES void SplitPlane(const std::uint32_t* codes, std::size_t count, int shift,
                                 std::uint8_t* plane) {
    for (std::size_t i = 0; i < count; ++i)
        plane[i] = static_cast<std::uint8_t>(codes[i] >> shift);
}

QB_VECTOR_CLONES void JoinPlane(const std::uint8_t* plane, std::size_t count, int shift,
                                std::uint32_t* codes) {
    for (std::size_t i = 0; i < count; ++i)
        codes[i] |= std::uint32_t{plane[i]} << shift;
}

}  // namespace quillbrand
