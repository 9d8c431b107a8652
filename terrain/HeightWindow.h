#pragma once

#include <cstdint>

#include "base/Numbers.h"

namespace quillbrand {

/// The window of altitudes, in terrain units, that raw heights span: its width and its middle.
/// Kept wide; who stores it checks what 16 bits hold.
struct HeightWindow {
    std::int64_t scale;
    std::int64_t base;

    std::int16_t High() const { return AsRead(Half() + static_cast<double>(base)); }
    std::int16_t Low() const { return AsRead(static_cast<double>(base) - Half()); }

    /// Moves the upper end while the lower stays at `low`; returns where it ended, above `low`.
    std::int64_t SetHigh(std::int64_t high, std::int64_t low) {
        if (high <= low)
            high = low + 1;
        Span(low, high);
        return high;
    }

    /// Moves the lower end while the upper stays at `high`; returns where it ended, below `high`.
    std::int64_t SetLow(std::int64_t low, std::int64_t high) {
        if (low >= high)
            low = high - 1;
        Span(low, high);
        return low;
    }

  private:
    double Half() const { return static_cast<double>(scale) / 2; }

    static std::int16_t AsRead(double end) {
        return LimitTo16(static_cast<std::int64_t>(RoundHalfEven(end)));
    }

    void Span(std::int64_t low, std::int64_t high) {
        scale = high - low;
        base = static_cast<std::int64_t>(RoundHalfEven(static_cast<double>(high) - Half()));
    }
};

}  // namespace quillbrand
