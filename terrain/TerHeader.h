#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/ByteBuffer.h"

namespace quillbrand {

/// The header record of a terrain, field by field in the order of the file; 80 bytes there.
struct TerHeader {
    static constexpr std::size_t bytes = 80;

    std::array<char, 20> TerragenHeader;
    std::int16_t Size;
    std::array<char, 6> XptsTag{};
    std::int16_t XPoints;
    std::array<char, 6> YptsTag{};
    std::int16_t YPoints;
    std::array<char, 6> ScalTag{};
    float ScaleX = 30, ScaleY = 30, ScaleZ = 30;  ///< metres per terrain unit
    std::array<char, 4> CradTag{};
    float CRAD = 6370;  ///< planet radius, kilometres
    std::array<char, 4> CrvmTag{};
    std::int16_t CRVM = 0;  ///< 1 for a terrain that is curved with the planet
    std::array<char, 6> AltwTag{};
    std::int16_t HeightScale = 30;
    std::int16_t BaseHeight = 5;

    /// The record of a new terrain: the magic stands, the chunk tags are NUL bytes.
    TerHeader();

    /// Sets the magic and the chunk tags, as a file needs them.
    void FillTags();

    void Append(ByteWriter& writer) const;

    /// Reads the 80 bytes that `reader` begins with; any values. Throws Fault when they are not
    /// all there.
    static TerHeader Read(const ByteReader& reader);
};

/// Throws Fault, naming the file, unless both values of a file are numbers that can be reckoned
/// with. ScaleT in metres, CRAD in kilometres.
void CheckScales(float ScaleT, float CRAD, const std::string& name);

}  // namespace quillbrand
