#pragma once

#include <cstddef>

#include "base/Files.h"

namespace quillbrand {

/// The first `size` bytes.
inline Bytes Truncated(Bytes bytes, std::size_t size) {
    bytes.resize(size);
    return bytes;
}

/// All but the last `count` bytes.
inline Bytes Shrink(const Bytes& bytes, std::size_t count) {
    return Truncated(bytes, bytes.size() - count);
}

inline Bytes SetByte(Bytes bytes, std::size_t place, int value) {
    bytes.at(place) = static_cast<std::byte>(value);
    return bytes;
}

/// `part` put in front of the byte at `place`.
inline Bytes Inserted(Bytes bytes, std::size_t place, const Bytes& part) {
    bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(place), part.begin(), part.end());
    return bytes;
}

}  // namespace quillbrand
