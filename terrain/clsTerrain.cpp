#include "terrain/clsTerrain.h"

#include <cassert>
#include <cmath>
#include <cstring>
#include <string>

#include "base/Fault.h"
#include "base/Numbers.h"
#include "terrain/ColumnKernels.h"
#include "terrain/HeightWindow.h"
#include "terrain/HeightWriter.h"
#include "terrain/RowKernels.h"

namespace quillbrand {

namespace {

/// Where a search for extremes starts from.
constexpr Extremes searched{4000000, -4000000};

double Ratio(double part, double whole, const char* what) {
    if (whole == 0)
        throw Fault(std::string("division by zero: ") + what + " is 0");
    return part / whole;
}

void RequirePoints(std::int64_t points) {
    if (points < 1 || points > INT16_MAX)
        throw Fault("a terrain of " + std::to_string(points) + " points per side cannot be made (" +
                    "1 to " + std::to_string(INT16_MAX) + ")");
}

}  // namespace

clsTerrain::clsTerrain() {
    Init(257);
    extremes_ = {65535, -63366};
}

void clsTerrain::Init(std::int64_t points) {
    RequirePoints(points);
    const auto side = static_cast<std::size_t>(points) + 2;
    if (cells_.size() == side * side)
        std::fill_n(cells_.data(), cells_.size(), 0);
    else
        cells_ = GridBuffer<Height>(side * side, 0);
    SetSide(points);
}

/// What goes with a new grid.
void clsTerrain::SetSide(std::int64_t points) {
    side_ = static_cast<int>(points) + 2;
    Size(points - 1);
    extremes_ = {400000, -400000};
}

void clsTerrain::Size(std::int64_t value) {
    if (value < 0 || value + 3 > side_)
        throw Fault("a size of " + std::to_string(value) + " does not fit the grid of " +
                    std::to_string(side_ - 2) + " points per side");
    header_.Size = NarrowTo16(value);
    header_.XPoints = header_.YPoints = NarrowTo16(value + 1);
}

void clsTerrain::Restore(const TerHeader& header, std::span<const std::byte> cells) {
    Init(std::int64_t{header.Size} + 1);
    header_ = header;
    Size(header.Size);
    assert(cells.size() == sizeof(Height) * cells_.size());
    std::memcpy(cells_.data(), cells.data(), sizeof(Height) * cells_.size());
}

void clsTerrain::Values(const TerrainValues& values) {
    assert(values.header.Size >= 0 && values.header.Size + 3 <= side_);
    header_ = values.header;
    extremes_ = values.extremes;
    fixHeight_ = values.FixHeight;
}

int clsTerrain::MaxTU() const {
    return Window().High();
}

int clsTerrain::MinTU() const {
    return Window().Low();
}

HeightWindow clsTerrain::Window() const {
    return {header_.HeightScale, header_.BaseHeight};
}

void clsTerrain::Store(const HeightWindow& window) {
    const std::int16_t scale = NarrowTo16(window.scale);
    header_.BaseHeight = NarrowTo16(window.base);
    header_.HeightScale = scale;
}

void clsTerrain::MaxTU(std::int64_t value) {
    HeightWindow window = Window();
    NarrowTo16(window.SetHigh(NarrowTo16(value), window.Low()));
    Store(window);
}

void clsTerrain::MinTU(std::int64_t value) {
    HeightWindow window = Window();
    NarrowTo16(window.SetLow(NarrowTo16(value), window.High()));
    Store(window);
}

/// MinTU and MaxTU written one after the other, but with what lies between them taken wide, so
/// that it always works.
void clsTerrain::SetWindow(double low, double high) {
    static constexpr double most = 16383;
    const auto limited = [](double altitude) {
        return static_cast<std::int64_t>(RoundHalfEven(std::clamp(altitude, -most, most)));
    };
    HeightWindow window = Window();
    window.SetLow(limited(low), window.High());
    window.SetHigh(limited(high), window.Low());
    header_.HeightScale = LimitTo16(window.scale);
    header_.BaseHeight = LimitTo16(window.base);
}

void clsTerrain::BaseHeight(std::int64_t value) {
    header_.BaseHeight = NarrowTo16(value);
}

void clsTerrain::HeightScale(std::int64_t value) {
    header_.HeightScale = NarrowTo16(value);
}

void clsTerrain::CRVM(std::int64_t value) {
    header_.CRVM = NarrowTo16(value);
}

float clsTerrain::getMeter2Pixel(float metres) const {
    return NarrowToSingle(
        Ratio(Ratio(metres, ScaleT(), "ScaleT") * 65536.0, HeightScale(), "HeightScale"));
}

float clsTerrain::getPixel2Meters(float raw) const {
    return NarrowToSingle(double{ScaleT()} * raw / 65536.0 * HeightScale());
}

float clsTerrain::GetV2Meter(float raw) const {
    return NarrowToSingle((HeightScale() * double{raw} / 65536.0 + BaseHeight()) * ScaleT());
}

Height clsTerrain::GetMeter2Int(float metres) const {
    const double units = Ratio(metres, ScaleT(), "ScaleT") - BaseHeight();
    return RoundTo32(Ratio(units * 65536.0, HeightScale(), "HeightScale"));
}

float clsTerrain::GetPointMeters(int x, int y) const {
    const Height raw = cells_[Index(x, y)];
    NarrowTo32(std::int64_t{raw} * HeightScale());
    return NarrowToSingle((HeightScale() * double(raw) / 65536.0 + BaseHeight()) * ScaleT());
}

float clsTerrain::GetPointTU(int x, int y) const {
    return GetPointTUZ(cells_[Index(x, y)]);
}

float clsTerrain::GetPointTUZ(Height raw) const {
    return NarrowToSingle(NarrowTo32(std::int64_t{raw} * HeightScale()) / 65536.0 + BaseHeight());
}

void clsTerrain::IncrPoint(int x, int y, Height d) {
    if (!InGrid(x, y))
        return;
    Height& cell = cells_[Index(x, y)];
    cell = NarrowTo32(std::int64_t{cell} + d);
    extremes_.Widen(d);
}

void clsTerrain::IncrPoints(int x, int y, std::span<const Height> d) {
    assert(d.empty() || (InGrid(x, y) && InGrid(x + static_cast<int>(d.size()) - 1, y)));
    if (!d.empty() && !AddCells({cells_.data() + Index(x, y), d.size()}, d, extremes_))
        throw Fault("overflow: a height in row " + std::to_string(y) + " leaves 32 bits");
}

void clsTerrain::Fill(Height z) {
    std::fill_n(cells_.data(), cells_.size(), z);
    extremes_ = searched;
    extremes_.Widen(z);
}

std::int64_t clsTerrain::Range() {
    return std::int64_t{GetExtremes(1)} - min();
}

Height clsTerrain::GetExtremes(int mode) {
    extremes_ = searched;
    extremes_.Widen(Measure(Points()));
    if (mode == 1)
        return max();
    return mode == 2 ? min() : 0;
}

Extremes clsTerrain::Measure(const GridRect& rect) const {
    assert(Cells().Contains(rect));
    Extremes found;
    if (!rect.IsEmpty())
        for (int y = rect.y0; y <= rect.y1; ++y)
            FindExtremes(Row(y, rect), found);
    return found;
}

void clsTerrain::LoadColumns(const GridRect& rect, std::span<Height> columns,
                             std::ptrdiff_t length) const {
    assert(Cells().Contains(rect) && HoldColumns(columns.size(), rect, length));
    if (!rect.IsEmpty())
        RowsToColumns(cells_.data() + Index(rect.x0, rect.y0), side_, rect.Rows(), rect.Columns(),
                      columns.data(), length);
}

std::int64_t clsTerrain::ScaleTerrain() {
    // With FixHeight two cells hold the full range for the time of the measurement.
    const Height first = GetPoint(1, 1);
    const Height second = GetPoint(1, 2);
    if (fixHeight_) {
        SetPoint(1, 1, 32767);
        SetPoint(1, 2, -32767);
    }
    const std::int64_t span = Range();
    const bool fullOrFlat = span == 65534 || span == 0;
    const bool in16Bits = min() >= INT16_MIN && max() <= INT16_MAX;
    if (!fullOrFlat || !in16Bits) {
        if (!fixHeight_) {
            const double units = HeightScale() / 65536.0;
            SetWindow(static_cast<float>(min() * units + BaseHeight()),
                      static_cast<float>(max() * units + BaseHeight()));
        }
        const double factor = fullOrFlat ? 1.0 : 65535.0 / static_cast<double>(span + 1);
        StretchTo(factor, max() - static_cast<double>(span) / 2);
    }
    if (fixHeight_) {
        SetPoint(1, 1, first);
        SetPoint(1, 2, second);
        return Range();
    }
    return std::int64_t{max()} - min();
}

/// Every cell becomes round(factor * (cell - centre)), and the extremes are true afterwards. One
/// row and one column of the margin are taken in; their cells may lie anywhere.
void clsTerrain::StretchTo(double factor, double centre) {
    extremes_ = searched;
    for (int y = 0; y < YPoints(); ++y)
        StretchRow({cells_.data() + Index(0, y), static_cast<std::size_t>(XPoints())}, factor,
                   centre, extremes_);
    const auto stretchMargin = [&](int x, int y) {
        Height& cell = cells_[Index(x, y)];
        const double z = RoundHalfEven(factor * (cell - centre));
        cell = static_cast<Height>(std::clamp<double>(z, INT32_MIN, INT32_MAX));
    };
    const int margin = XPoints();
    for (int i = 0; i < margin; ++i) {
        stretchMargin(i, margin);
        stretchMargin(margin, i);
    }
    stretchMargin(margin, margin);
}

SquareArray clsTerrain::GetTerrain() const {
    SquareArray array(Size() + 10, 0);
    for (int y = 0; y <= Size() + 2; ++y) {
        const auto row = Row(y);
        std::copy(row.begin(), row.end(), array.Row(y));
    }
    return array;
}

void clsTerrain::SetTerrain(const SquareArray& array) {
    assert(array.Upper() >= Size() + 2);
    HeightWriter writer(*this, Cells());
    for (int y = 0; y <= Size() + 2; ++y) {
        const auto row = writer.Row(y);
        std::copy_n(array.Row(y), row.size(), row.begin());
    }
}

void clsTerrain::TakeTerrain(SquareArray array) {
    const int points = array.Upper() - 1;
    RequirePoints(points);
    cells_ = std::move(array).TakeCells();
    SetSide(points);
    extremes_.Widen(Measure(Cells()));
}

void clsTerrain::RequireInGrid(int x1, int y1, int x2, int y2) const {
    if (!InGrid(x1, y1) || !InGrid(x2, y2))
        throw Fault("the area " + std::to_string(x1) + "," + std::to_string(y1) + " to " +
                    std::to_string(x2) + "," + std::to_string(y2) + " leaves the grid of 0 to " +
                    std::to_string(Size() + 2));
}

void clsTerrain::GetReflectHor(int x1, int y1, int x2, int y2) {
    if (x1 > x2 || y1 > y2)
        return;
    RequireInGrid(x1, y1, x2, y2);
    for (int upper = y1, lower = y2; upper < lower; ++upper, --lower)
        std::swap_ranges(&cells_[Index(x1, upper)], &cells_[Index(x2, upper)] + 1,
                         &cells_[Index(x1, lower)]);
}

void clsTerrain::GetReflectVer(int x1, int y1, int x2, int y2) {
    if (x1 > x2 || y1 > y2)
        return;
    RequireInGrid(x1, y1, x2, y2);
    for (int y = y1; y <= y2; ++y)
        std::reverse(&cells_[Index(x1, y)], &cells_[Index(x2, y)] + 1);
}

void clsTerrain::FillRect(const GridRect& rect, Height z) {
    if (rect.IsEmpty())
        return;
    for (int y = rect.y0; y <= rect.y1; ++y)
        std::fill_n(cells_.data() + Index(rect.x0, y), rect.Columns(), z);
    extremes_.Widen(z);
}

void clsTerrain::GetCircle(double cx, double cy, int r, Height z) {
    const std::int64_t x = RoundTo32(cx);
    const std::int64_t y = RoundTo32(cy);
    const std::int64_t radius = r;
    const GridRect around = GridRect::Cut(x - radius, y - radius, x + radius, y + radius, Cells());
    for (int column = around.x0; column <= around.x1; ++column) {
        const std::int64_t i = column - x;
        const auto h = static_cast<std::int64_t>(
            RoundHalfEven(std::sqrt(static_cast<double>(radius * radius - i * i))));
        FillRect(GridRect::Cut(column, y - h, column, y + h, Cells()), z);
    }
}

void clsTerrain::GetSquare(double cx, double cy, int r, Height z) {
    const std::int64_t x = RoundTo32(cx);
    const std::int64_t y = RoundTo32(cy);
    const std::int64_t radius = r;
    FillRect(GridRect::Cut(x - radius, y - radius, x + radius, y + radius, Cells()), z);
}

void clsTerrain::GetNoise(double cx, double cy, int r, Height z, RandomSource& chance) {
    const int centreX = RoundTo32(cx);
    const int centreY = RoundTo32(cy);
    const double last = Size() + 2;
    for (int i = 0; i < r; ++i) {
        const double x = RoundHalfEven(2 * chance.Uniform() * r + centreX - r);
        const double y = RoundHalfEven(2 * chance.Uniform() * r + centreY - r);
        if (x >= 0 && x <= last && y >= 0 && y <= last)
            SetPoint(static_cast<int>(x), static_cast<int>(y), z);
    }
}

}  // namespace quillbrand
