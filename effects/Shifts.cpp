#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "base/Fault.h"
#include "base/Numbers.h"
#include "effects/QBFilter.h"
#include "terrain/HeightWriter.h"
#include "terrain/RowKernels.h"

namespace quillbrand::QBFilter {

namespace {

/// What an effect makes of the height h before it is stretched; f is the effect's constant.
using Curve = double (*)(double f, Height h);

double StretchCurve(double f, Height h) {
    return std::fabs(f * h) * h;
}

double SinusCurve(double f, Height h) {
    return std::sin(f * (double{1} * h + 32768));
}

Height SizeOf(Height h) {
    return h < 0 ? NarrowTo32(-std::int64_t{h}) : h;
}

double GammaCurve(double f, Height h) {
    const double power = std::pow(SizeOf(h), f);
    return h < 0 ? -power : power;
}

void MarkHeights(std::span<const Height> cells, Height lowest, std::uint8_t* __restrict occurs) {
    for (const Height h : cells)
        occurs[h - lowest] = 1;
}

/// The two passes that the curves share: measure what the curve makes of the heights, then write
/// that, stretched to nearly the full range. What becomes of a point depends on its height alone,
/// so both passes compute each height that occurs once.
class TwoPasses {
  public:
    /// `isGamma`: the last column and row of the area are not measured, and between the passes the
    /// grid holds heights without their sign.
    TwoPasses(clsTerrain& terrain, const Area& area, bool isGamma, Host& host)
        : area_(area),
          isGamma_(isGamma),
          host_(host),
          extent_(area.extent.value_or(terrain.XPoints())),
          measured_(area.CutTo(terrain.Cells(), isGamma ? extent_ - 1 : extent_)),
          writer_(terrain, area.CutTo(terrain.Cells(), extent_)) {}

    void Run(Curve curve, double f) {
        curve_ = curve;
        f_ = f;
        MakeTable();
        MeasurePass();
        const double range = hi_ - lo_;
        scale_ = 65530 / (range + 1);
        centre_ = hi_ - range / 2;
        host_.Progress(50);
        FillTable();
        WritePass();
    }

  private:
    /// Heights that lie further apart get no table.
    static constexpr std::int64_t widestTable = 1 << 20;

    void MakeTable() {
        const Extremes found = writer_.Terrain().Measure(measured_);
        const std::int64_t span = std::int64_t{found.high} - found.low + 1;
        if (found.IsEmpty() || span > widestTable)
            return;
        lowest_ = found.low;
        occurs_.assign(static_cast<std::size_t>(span), 0);
    }

    void Measure(Height h, double w) {
        if (!area_.Holds(h))
            return;
        lo_ = std::min(lo_, w);
        hi_ = std::max(hi_, w);
        if (isGamma_ && h < 0)
            Store(SizeOf(h));
    }

    Height Store(Height h) {
        writer_.Stored().Widen(h);
        return h;
    }

    /// What the second pass leaves of a height that was measured as w.
    Height Image(Height h, double w) {
        if (!area_.Holds(h))
            return h;
        if (isGamma_ && !area_.Holds(SizeOf(h)))
            return SizeOf(h);
        return Store(RoundTo16((w - centre_) * scale_));
    }

    /// The same for a point that was not measured: its curve counts as 0, its sign is still there.
    Height ImageOfUnmeasured(Height h) {
        if (!area_.Holds(h))
            return h;
        const double image = RoundHalfEven((0.0 - centre_) * scale_);
        if (!(image >= INT16_MIN && image <= INT16_MAX))
            throw Fault(
                "a gamma shift needs heights on both sides of 0: of these, the last column and row "
                "would leave the 16-bit range");
        return Store(static_cast<Height>(image));
    }

    void MeasurePass() {
        for (int y = measured_.y0; y <= measured_.y1; ++y) {
            Report(y, 0);
            const auto row = writer_.Terrain().Row(y, measured_);
            if (!occurs_.empty())
                MarkHeights(row, lowest_, occurs_.data());
            else
                for (const Height h : row)
                    Measure(h, curve_(f_, h));
        }
        curves_.resize(occurs_.size());
        ForEachHeight([&](std::size_t i, Height h) {
            curves_[i] = curve_(f_, h);
            Measure(h, curves_[i]);
        });
    }

    void FillTable() {
        images_.resize(occurs_.size());
        ForEachHeight([&](std::size_t i, Height h) { images_[i] = Image(h, curves_[i]); });
    }

    template <typename Use>
    void ForEachHeight(Use use) {
        for (std::size_t i = 0; i < occurs_.size(); ++i)
            if (occurs_[i] != 0)
                use(i, lowest_ + static_cast<Height>(i));
    }

    void WritePass() {
        for (int y = writer_.Rect().y0; y <= writer_.Rect().y1; ++y) {
            Report(y, 50);
            const auto row = writer_.UnmeasuredRow(y);
            const auto count =
                static_cast<std::size_t>(y <= measured_.y1 ? measured_.Columns() : 0);
            const auto measured = row.first(count);
            if (!images_.empty())
                MapHeights(measured, lowest_, images_);
            else
                for (Height& h : measured)
                    h = Image(h, curve_(f_, h));
            for (Height& h : row.subspan(count))
                h = ImageOfUnmeasured(h);
        }
    }

    void Report(int y, int done) {
        host_.Progress(PercentOf(y, extent_, 50) + done);
        host_.Yield();
    }

    const Area& area_;
    bool isGamma_;
    Host& host_;
    int extent_;
    GridRect measured_;
    HeightWriter writer_;
    Curve curve_ = nullptr;
    double f_ = 0;
    Height lowest_ = 0;
    std::vector<std::uint8_t> occurs_;  ///< by height above the lowest; empty without a table
    std::vector<double> curves_;
    std::vector<Height> images_;
    double lo_ = 100000;
    double hi_ = -100000;
    double scale_ = 0;
    double centre_ = 0;
};

void Shift(clsTerrain& terrain, const Area& area, Curve curve, float f, bool isGamma, Host& host) {
    terrain.ScaleTerrain();
    TwoPasses(terrain, area, isGamma, host).Run(curve, f);
    // No number is drawn here; the source is left as if it had been reseeded for every column.
    host.Chance().ReseedFromClock();
    host.Progress(100);
    host.Yield();
}

void Begin(const char* status, Host& host) {
    host.Progress(0);
    host.Status(status);
    host.Busy(true);
}

constexpr float curveConstant = static_cast<float>(1.7 / 65536);

}  // namespace

void FilterStretch(clsTerrain& terrain, float& strength, const Area& area, Host& host) {
    Begin("Terrain stretched...", host);
    strength = curveConstant;
    Shift(terrain, area, StretchCurve, strength, false, host);
}

void FilterSinusShift(clsTerrain& terrain, float& strength, const Area& area, Host& host) {
    Begin("Terrain Shift...", host);
    strength = curveConstant;
    Shift(terrain, area, SinusCurve, strength, false, host);
}

void FilterGammaShift(clsTerrain& terrain, float& strength, const Area& area, Host& host) {
    Begin("Terrain Shift...", host);
    strength = static_cast<float>(double{strength} / 4);
    Shift(terrain, area, GammaCurve, strength, true, host);
}

}  // namespace quillbrand::QBFilter
