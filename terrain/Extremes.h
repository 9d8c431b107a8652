#pragma once

#include <algorithm>
#include <cstdint>

namespace quillbrand {

/// Least and greatest of the heights that a pass met; it begins with none.
struct Extremes {
    std::int32_t low = INT32_MAX;
    std::int32_t high = INT32_MIN;

    bool IsEmpty() const { return low > high; }

    void Widen(std::int32_t height) {
        low = std::min(low, height);
        high = std::max(high, height);
    }

    void Widen(const Extremes& other) {
        low = std::min(low, other.low);
        high = std::max(high, other.high);
    }

    bool operator==(const Extremes&) const = default;
};

}  // namespace quillbrand
