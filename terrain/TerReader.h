#pragma once

#include <optional>
#include <span>

#include "base/ByteBuffer.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// What a TER file says, checked against the file's length. The samples still lie in the bytes
/// that were read.
struct TerContent {
    int points;  ///< per side
    std::int16_t HeightScale;
    std::int16_t BaseHeight;
    float ScaleT;
    std::optional<std::int16_t> CRVM;  ///< empty where the file does not say
    float CRAD;

    /// points² samples, 16 bits each, bottom row first.
    std::span<const std::byte> samples;
};

/// True for bytes that begin like a TER file.
bool IsTer(std::span<const std::byte> bytes);

/// Looks for each chunk by its name within the first 100 bytes, in any order; what is missing has
/// a default. Safe on any bytes. Throws Fault, naming the file, when it is shorter than 100 bytes,
/// says a size below 1 or above 2049, or lacks samples.
TerContent ParseTer(std::span<const std::byte> bytes, const std::string& name);

/// Makes `terrain` what the content says, its grid anew. An absent CRVM leaves that value alone.
/// Requires: the content is one that ParseTer gave.
void StoreTer(const TerContent& content, clsTerrain& terrain);

}  // namespace quillbrand
