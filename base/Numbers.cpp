#include "base/Numbers.h"

#include <algorithm>
#include <limits>
#include <string>

#include "base/Fault.h"
#include "base/NumberText.h"

namespace quillbrand {

namespace {

template <typename Narrow>
Narrow NarrowWhole(std::int64_t value, const char* bits) {
    if (value < std::numeric_limits<Narrow>::min() || value > std::numeric_limits<Narrow>::max())
        throw Fault("overflow: " + std::to_string(value) + " does not fit into " + bits + " bits");
    return static_cast<Narrow>(value);
}

/// Written so that NaN fails too.
template <typename Narrow>
Narrow RoundAndNarrow(double value, const char* bits) {
    const double rounded = RoundHalfEven(value);
    if (!(rounded >= std::numeric_limits<Narrow>::min() &&
          rounded <= std::numeric_limits<Narrow>::max()))
        throw Fault("overflow: " + ShortestText(value) + " does not fit into " + bits + " bits");
    return static_cast<Narrow>(rounded);
}

}  // namespace

std::int16_t NarrowTo16(std::int64_t value) {
    return NarrowWhole<std::int16_t>(value, "16");
}

std::int32_t NarrowTo32(std::int64_t value) {
    return NarrowWhole<std::int32_t>(value, "32");
}

float NarrowToSingle(double value) {
    const auto single = static_cast<float>(value);
    if (!std::isfinite(single))
        throw Fault("overflow: " + ShortestText(value) + " does not fit into a single float");
    return single;
}

std::int16_t RoundTo16(double value) {
    return RoundAndNarrow<std::int16_t>(value, "16");
}

std::int32_t RoundTo32(double value) {
    return RoundAndNarrow<std::int32_t>(value, "32");
}

std::int16_t LimitTo16(std::int64_t value) {
    return static_cast<std::int16_t>(std::clamp<std::int64_t>(
        value, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()));
}

int PercentOf(double part, double whole, double share) {
    if (whole == 0)
        return static_cast<int>(share);
    return static_cast<int>(RoundHalfEven(std::clamp(part / whole * share, -1000.0, 1000.0)));
}

}  // namespace quillbrand
