#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdint>

#include "base/Numbers.h"
#include "base/Stdio.h"
#include "base/VectorClones.h"
#include "effects/ColumnStrip.h"
#include "effects/QBFilter.h"

namespace quillbrand::QBFilter {

namespace {

/// A column on its way through a sweep, with its two neighbours; all hold `rows` cells between two
/// padding cells. A neighbour that lies outside the grid is the column itself.
struct Neighbourhood {
    const Height* left;
    Height* centre;
    const Height* right;
    std::ptrdiff_t rows;
};

/// s / 5 rounded to nearest; a fifth is never half-way.
std::int64_t RoundedFifth(std::int64_t s) {
    const std::int64_t shifted = s + 2;
    return shifted >= 0 ? shifted / 5 : -((4 - shifted) / 5);
}

/// One point, by its place in a column. Serves where a column is its own neighbour and where
/// heights are too large for the fast way.
void SmoothPoint(const Neighbourhood& n, std::ptrdiff_t y, const Area& area, Extremes& stored) {
    const Height h = n.centre[y];
    if (!area.Holds(h))
        return;
    const std::int64_t s =
        std::int64_t{n.left[y - 1]} + n.left[y + 1] + h + n.right[y - 1] + n.right[y + 1];
    const auto mean = static_cast<Height>(RoundedFifth(s));
    n.centre[y] = mean;
    stored.Widen(mean);
}

void SmoothColumnInOrder(const Neighbourhood& n, bool ascending, const Area& area,
                         Extremes& stored) {
    for (std::ptrdiff_t i = 0; i < n.rows; ++i)
        SmoothPoint(n, ascending ? 1 + i : n.rows - i, area, stored);
}

/// Heights within -narrow..narrow can be summed in 32 bits, and single floats give their s / 5 to
/// better than the tenth that rounding needs.
constexpr Height narrow = 1 << 20;

/// A whole column at once, because its points do not see each other; heights must be narrow.
/// `limited` is false where all heights are known to lie between the limits.
template <bool limited>
[[gnu::always_inline]] inline void SmoothPoints(const Height* __restrict left,
                                                Height* __restrict centre,
                                                const Height* __restrict right, std::ptrdiff_t rows,
                                                const Area& area, Extremes& stored) {
    const Height zMin = area.zMin;
    const Height zMax = area.zMax;
    Height low = stored.low;
    Height high = stored.high;
    for (std::ptrdiff_t y = 1; y <= rows; ++y) {
        const Height h = centre[y];
        const Height s = left[y - 1] + left[y + 1] + h + right[y - 1] + right[y + 1];
        const auto mean = static_cast<Height>(std::rint(static_cast<float>(s) * 0.2f));
        // A mask of all or no bits keeps branches out of the loop.
        const Height inside = limited ? -static_cast<Height>((zMin < h) & (h < zMax)) : -1;
        centre[y] = (mean & inside) | (h & ~inside);
        low = std::min(low, (mean & inside) | (INT32_MAX & ~inside));
        high = std::max(high, (mean & inside) | (INT32_MIN & ~inside));
    }
    stored = {low, high};
}

QB_VECTOR_CLONES void SmoothLimitedColumn(const Neighbourhood& n, const Area& area,
                                          Extremes& stored) {
    SmoothPoints<true>(n.left, n.centre, n.right, n.rows, area, stored);
}

QB_VECTOR_CLONES void SmoothWholeColumn(const Neighbourhood& n, const Area& area,
                                        Extremes& stored) {
    SmoothPoints<false>(n.left, n.centre, n.right, n.rows, area, stored);
}

/// The sweeps over the square, strip by strip.
class Sweep {
  public:
    Sweep(clsTerrain& terrain, const Area& area, int extent, Host& host)
        : terrain_(terrain),
          area_(area),
          extent_(extent),
          host_(host),
          grid_(terrain.Cells()),
          rect_(area.CutTo(grid_, extent_)),
          heights_(HeightsAround(terrain, rect_)),
          isNarrow_(heights_.low >= -narrow && heights_.high <= narrow),
          isLimited_(!(area.Holds(heights_.low) && area.Holds(heights_.high))),
          writer_(terrain, rect_),
          // The analyzer takes what other sources construct for unset.
          // NOLINTNEXTLINE(clang-analyzer-optin.cplusplus.UninitializedObject)
          strip_(terrain, rect_) {}

    void Run(bool forward) {
        forward_ = forward;
        const int columns = rect_.Columns();
        for (int done = 0; done < columns; done += ColumnStrip::width) {
            const int count = std::min(ColumnStrip::width, columns - done);
            RunStrip(forward_ ? rect_.x0 + done : rect_.x1 - done - count + 1, count);
        }
    }

  private:
    /// The extremes of all heights that a mean can take in; means never leave them.
    static Extremes HeightsAround(const clsTerrain& terrain, const GridRect& rect) {
        return terrain.Measure(
            GridRect::Cut(rect.x0 - 1, rect.y0 - 1, rect.x1 + 1, rect.y1 + 1, terrain.Cells()));
    }

    void RunStrip(int first, int count) {
        strip_.Load(terrain_, first, count);
        for (int i = 0; i < count; ++i) {
            const int x = forward_ ? first + i : first + count - 1 - i;
            SmoothColumn(x);
            ReportColumn(x);
        }
        strip_.Store(writer_);
    }

    void SmoothColumn(int x) {
        const Neighbourhood n{strip_.Column(std::max(x - 1, 0)), strip_.Column(x),
                              strip_.Column(std::min(x + 1, grid_.x1)), strip_.Rows()};
        const bool seesItself = x == 0 || x == grid_.x1;
        if (seesItself || !isNarrow_)
            SmoothColumnInOrder(n, forward_, area_, writer_.Stored());
        else if (isLimited_)
            SmoothLimitedColumn(n, area_, writer_.Stored());
        else
            SmoothWholeColumn(n, area_, writer_.Stored());
        strip_.RenewPadding(x);
    }

    void ReportColumn(int x) {
        const double whole = double{1} * extent_ + area_.startX;
        host_.Progress(forward_ ? PercentOf(x, whole, 50) : PercentOf(whole - x, whole, 50) + 50);
        host_.Yield();
    }

    const clsTerrain& terrain_;
    const Area& area_;
    int extent_;
    bool forward_ = true;
    Host& host_;
    GridRect grid_;
    GridRect rect_;
    Extremes heights_;
    bool isNarrow_;
    bool isLimited_;
    HeightWriter writer_;
    ColumnStrip strip_;
};

/// Even whole numbers become odd, and the whole is limited.
float AdjustedStrength(float strength) {
    const double half = double{strength} / 2;
    if (half == std::trunc(RoundHalfEven(strength) / 2))
        strength += 1;
    return STDIO::ClampValue(1.0f, 10.0f, strength);
}

}  // namespace

void FilterSmooth(clsTerrain& terrain, float& strength, const Area& area, Host& host) {
    assert(area.extent);
    if (strength < 3.0f)
        return;
    host.Status("smoothes....");
    host.Busy(true);
    host.Progress(0);
    host.Yield();
    strength = AdjustedStrength(strength);
    Sweep sweep(terrain, area, area.extent.value(), host);
    sweep.Run(true);
    sweep.Run(false);
    host.Progress(100);
    host.Yield();
}

}  // namespace quillbrand::QBFilter
