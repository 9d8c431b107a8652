#include "editor/Frame.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"

namespace quillbrand {

namespace {

/// Puts two sides in their order, at least 1 apart where they fell together.
void Order(float& low, float& high) {
    if (low > high)
        std::swap(low, high);
    if (low == high)
        high = static_cast<float>(low + 1.0);
}

}  // namespace

float MovingCorner(float mouse) {
    const double half = mouse / 2.0;
    return half == std::floor(half) ? mouse : static_cast<float>(mouse + 1.0);
}

void convertFrameData(float& left, float& top, float& right, float& bottom) {
    Order(left, right);
    Order(top, bottom);
}

std::vector<FrameLine> LinesOf(float low, float high, int last) {
    std::vector<FrameLine> lines;
    const double whole = std::floor(low);
    const double fraction = low - whole;
    if (!(whole <= last))
        return lines;
    // Lines further left than this one round to no point.
    for (int i = static_cast<int>(std::max(whole, -1.0)); i <= last; ++i) {
        const double at = i + fraction;
        const double cell = RoundHalfEven(at);
        if (at > high || cell > last)
            break;
        if (cell >= 0)
            lines.push_back({static_cast<int>(cell), at});
    }
    return lines;
}

}  // namespace quillbrand
