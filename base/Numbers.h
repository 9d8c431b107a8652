#pragma once

#include <cmath>
#include <cstdint>

namespace quillbrand {

/// `value` rounded to the nearest whole number, halves to even. Relies on the default rounding
/// mode, which nothing in the program changes.
inline double RoundHalfEven(double value) {
    return std::nearbyint(value);
}

/// Checked narrowing; each throws Fault with the value in its text when it does not fit.
/// NaN never fits.
std::int16_t NarrowTo16(std::int64_t value);
std::int32_t NarrowTo32(std::int64_t value);
float NarrowToSingle(double value);

/// Rounded to nearest, halves to even, then narrowed as above.
std::int16_t RoundTo16(double value);
std::int32_t RoundTo32(double value);

/// `value` limited to what 16 bits hold.
std::int16_t LimitTo16(std::int64_t value);

/// Percent `part` of `whole` has reached; a whole of 0 counts as done.
int PercentOf(double part, double whole, double share = 100.0);

}  // namespace quillbrand
