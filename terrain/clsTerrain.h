#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <span>

#include "base/GridMemory.h"
#include "base/RandomSource.h"
#include "terrain/Extremes.h"
#include "terrain/GridRect.h"
#include "terrain/HeightWindow.h"
#include "terrain/TerHeader.h"

namespace quillbrand {

/// A raw height. -32768..32767 spans the height window; work in hand may leave that range.
using Height = std::int32_t;

/// What a terrain holds beside its cells.
struct TerrainValues {
    TerHeader header;
    Extremes extremes;  ///< the running ones
    bool FixHeight = false;
};

/// A square grid of raw heights with the header values of its file, and the only code that touches
/// that memory. Grid indices run from 0 to Size() + 2 in both directions: 0..Size() is the terrain,
/// the two further rows and columns are a margin that files do not store. x runs fastest in memory,
/// y = 0 is the top row of the picture.
///
/// Three height scales: raw; TU (terrain units) = raw * HeightScale / 65536 + BaseHeight;
/// metres = TU * ScaleT.
///
/// A property is a pair of overloads, the one with an argument writes. A 16-bit property given
/// more than 16 bits throws Fault and stays as it was.
class clsTerrain {
  public:
    /// 257 points per side, all 0, HeightScale 30, BaseHeight 5, ScaleT 30, CRAD 6370.
    clsTerrain();

    int pProgress = 0;  ///< percent of the work in hand

    bool FixHeight() const { return fixHeight_; }
    void FixHeight(bool fix) { fixHeight_ = fix; }

    /// The upper end of the height window in TU, limited to 16 bits. Writing it leaves MinTU where
    /// it reads; a value that is not above MinTU writes MinTU + 1.
    int MaxTU() const;
    void MaxTU(std::int64_t value);

    /// The lower end. Writing a value that is not below MaxTU writes MaxTU - 1.
    int MinTU() const;
    void MinTU(std::int64_t value);

    int BaseHeight() const { return header_.BaseHeight; }
    void BaseHeight(std::int64_t value);
    int HeightScale() const { return header_.HeightScale; }
    void HeightScale(std::int64_t value);
    int CRVM() const { return header_.CRVM; }
    void CRVM(std::int64_t value);
    float CRAD() const { return header_.CRAD; }
    void CRAD(float kilometres) { header_.CRAD = kilometres; }
    float ScaleT() const { return header_.ScaleZ; }
    void ScaleT(float metres) { header_.ScaleX = header_.ScaleY = header_.ScaleZ = metres; }

    int YPoints() const { return header_.YPoints; }
    void YPoints(std::int64_t value) { Size(value - 1); }
    int XPoints() const { return header_.XPoints; }
    void XPoints(std::int64_t value) { Size(value - 1); }

    /// Intervals per side. Writing it keeps the grid: only Init makes a new one, and a size that
    /// the present grid cannot hold is a Fault.
    int Size() const { return header_.Size; }
    void Size(std::int64_t value);

    /// The running extremes. SetPoint widens them, Range makes them true.
    Height min() const { return extremes_.low; }
    Height max() const { return extremes_.high; }

    /// Metres to a raw height difference and back. Fault where ScaleT or HeightScale is 0.
    float getMeter2Pixel(float metres) const;
    float getPixel2Meters(float raw) const;

    /// A raw height to metres, base included, and back.
    float GetV2Meter(float raw) const;
    Height GetMeter2Int(float metres) const;

    /// The cell in metres and in TU. Fault when raw * HeightScale leaves 32 bits. Requires: x, y
    /// lies in the grid.
    float GetPointMeters(int x, int y) const;
    float GetPointTU(int x, int y) const;
    float GetPointTUZ(Height raw) const;

    /// Stores z and widens the running extremes; outside the grid nothing happens.
    void SetPoint(int x, int y, Height z) {
        if (!InGrid(x, y))
            return;
        cells_[Index(x, y)] = z;
        extremes_.Widen(z);
    }

    /// Adds d to the cell. The running extremes are widened by d itself, not by the new height, so
    /// they are stale until Range runs. Fault when the height leaves 32 bits.
    void IncrPoint(int x, int y, Height d);

    /// The same for the cells (x + i, y) and the amounts d[i]; after a fault the row is in any
    /// state. Requires: the cells lie in the grid.
    void IncrPoints(int x, int y, std::span<const Height> d);

    /// The cell nearest to x, y.
    Height GetPoint(int x, int y) const {
        const int last = header_.Size + 2;
        return cells_[Index(std::clamp(x, 0, last), std::clamp(y, 0, last))];
    }

    /// The same, counted from the bottom of the 16-bit range.
    std::int64_t GetPointH(int x, int y) const { return std::int64_t{GetPoint(x, y)} + 32768; }

    /// A new grid of `points` per side, all 0; the running extremes start at 400000 and -400000.
    /// Fault, with the old grid kept, for less than 1 point or more than 16 bits of them.
    void Init(std::int64_t points);

    /// Writes z into every cell, margin included.
    void Fill(Height z);

    /// Makes the running extremes true, without the margin; returns the span.
    std::int64_t Range();

    /// Stretches the heights to the full 16-bit range and returns the span afterwards. MinTU and
    /// MaxTU follow, so that altitudes survive, as far as they lie within -16383..16383. With
    /// FixHeight set neither heights inside the range nor the window change. Never throws.
    std::int64_t ScaleTerrain();

    /// A copy of the cells in an array with the upper index Size() + 10; the rest is 0.
    SquareArray GetTerrain() const;

    /// Stores the cells (0..Size() + 2)² of `array`. Requires: its upper index reaches that far.
    void SetTerrain(const SquareArray& array);

    /// As Init(array.Upper() - 1) and SetTerrain(array) would leave it, without copying.
    void TakeTerrain(SquareArray array);

    /// Mirrors a rectangle, bounds inclusive and inside the grid, top to bottom (Hor) or left to
    /// right (Ver). The running extremes stay. Fault when a bound lies outside the grid.
    void GetReflectHor(int x1, int y1, int x2, int y2);
    void GetReflectVer(int x1, int y1, int x2, int y2);

    /// A filled disc, a filled square and r random dots, with the height z; radius r, nothing for
    /// one below 0; the centre is rounded once; what lies outside the grid is left out. Fault for a
    /// centre beyond 32 bits.
    void GetCircle(double cx, double cy, int r, Height z);
    void GetSquare(double cx, double cy, int r, Height z);
    void GetNoise(double cx, double cy, int r, Height z, RandomSource& chance);

    /// The header record, for the files.
    const TerHeader& Header() const { return header_; }
    void FillHeaderTags() { header_.FillTags(); }

    /// Takes over a record, its size included, and all cells with their margin, 32 bits each, in
    /// the order of the memory. The running extremes are as after Init. Fault as in Init. Requires:
    /// as many bytes as the size asks for.
    void Restore(const TerHeader& header, std::span<const std::byte> cells);

    /// Everything beside the cells. Requires, in what is written: a size that the grid holds.
    TerrainValues Values() const { return {header_, extremes_, fixHeight_}; }
    void Values(const TerrainValues& values);

    /// Every cell, margin included; and the terrain alone.
    GridRect Cells() const { return {0, 0, header_.Size + 2, header_.Size + 2}; }
    GridRect Points() const { return {0, 0, header_.Size, header_.Size}; }

    /// For passes that read: row y with its margin, and its part in `rect`; the extremes of a
    /// rectangle, none for an empty one. Requires: what is asked for lies in Cells(). A pass that
    /// writes holds a HeightWriter.
    std::span<const Height> Row(int y) const { return Row(y, Cells()); }
    std::span<const Height> Row(int y, const GridRect& rect) const {
        assert(InGrid(rect.x0, y) && InGrid(rect.x1, y));
        return {cells_.data() + Index(rect.x0, y), static_cast<std::size_t>(rect.Columns())};
    }
    Extremes Measure(const GridRect& rect) const;

    /// Turns a rectangle of the grid into columns: (x, y) becomes
    /// columns[(x - rect.x0) * length + y - rect.y0]. Requires: length is at least rect.Rows().
    void LoadColumns(const GridRect& rect, std::span<Height> columns, std::ptrdiff_t length) const;

  private:
    friend class HeightWriter;

    std::size_t Index(int x, int y) const {
        assert(InGrid(x, y));
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(side_) +
               static_cast<std::size_t>(x);
    }
    bool InGrid(int x, int y) const {
        const auto last = static_cast<unsigned>(header_.Size + 2);
        return static_cast<unsigned>(x) <= last && static_cast<unsigned>(y) <= last;
    }

    void SetSide(std::int64_t points);

    /// mode 1 returns the maximum, 2 the minimum, any other 0; all make the extremes true.
    Height GetExtremes(int mode);
    void FillRect(const GridRect& rect, Height z);
    void StretchTo(double factor, double centre);
    HeightWindow Window() const;
    void Store(const HeightWindow& window);
    void SetWindow(double low, double high);
    void RequireInGrid(int x1, int y1, int x2, int y2) const;

    TerHeader header_;
    int side_ = 0;  ///< cells per side of the grid; Size() + 3 never exceeds it
    GridBuffer<Height> cells_;
    Extremes extremes_;  ///< the running ones, MinZ and MaxZ
    bool fixHeight_ = false;
};

}  // namespace quillbrand
