#include <algorithm>
#include <array>
#include <cassert>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "base/Fault.h"
#include "base/Numbers.h"
#include "effects/ColumnPass.h"
#include "effects/QBFilter.h"
#include "terrain/RowKernels.h"

namespace quillbrand::QBFilter {

namespace {

/// Heights of the curve are counted from the bottom of the 16-bit range, and a column of its grid
/// is this many of them wide.
constexpr Height bottom = 32768;
constexpr Height columnWidth = 512;

/// The heights whose column lies in the grid.
constexpr Height lowestOnCurve = -columnWidth / 2 - bottom;
constexpr Height highestOnCurve = ElevatorMax * columnWidth + columnWidth / 2 - bottom;

/// What a column without a mark makes of a height, until the point before it is known.
constexpr Height noMark = std::numeric_limits<Height>::min();

/// What the first point of a run becomes if its column has no mark.
constexpr Height beforeAll = -bottom;

bool IsOnCurve(Height h) {
    return lowestOnCurve <= h && h <= highestOnCurve;
}

/// The curve, ready to be looked up.
class Marks {
  public:
    explicit Marks(const ElevatorGrid& grid) {
        for (int column = 0; column <= ElevatorMax; ++column)
            first_[static_cast<std::size_t>(column)] = grid.FirstMark(column);
    }

    /// A height through the curve, or noMark.
    Height ImageOf(Height h) const {
        const Height hu = h + bottom;
        const double column = RoundHalfEven(static_cast<double>(hu) / columnWidth);
        const int k = first_[static_cast<std::size_t>(column)];
        return k < 0 ? noMark : columnWidth * (256 - k) + hu % columnWidth - bottom;
    }

  private:
    std::array<int, ElevatorMax + 1> first_{};
};

[[noreturn]] void RefuseHeight(Height h) {
    throw Fault("the height " + std::to_string(h) +
                " lies beyond the elevator's curve, which goes from " +
                std::to_string(lowestOnCurve) + " to " + std::to_string(highestOnCurve));
}

/// One run of the effect over a rectangle of the grid.
class ElevatorPass {
  public:
    /// Throws Fault for a height within the limits that is not on the curve.
    ElevatorPass(clsTerrain& terrain, const Area& area, const GridRect& rect, const Marks& marks,
                 Host& host)
        : terrain_(terrain),
          writer_(terrain, rect),
          area_(area),
          rect_(rect),
          marks_(marks),
          host_(host),
          present_(terrain.Measure(rect)) {
        if (!IsOnCurve(present_.low) || !IsOnCurve(present_.high))
            RequireOnCurve();
    }

    void Run() {
        FillTable();
        if (area_.Holds(present_.low) && area_.Holds(present_.high)) {
            ShiftRows();
            CloseGaps();
        } else {
            ShiftColumns();
        }
    }

  private:
    void RequireOnCurve() {
        for (int y = rect_.y0; y <= rect_.y1; ++y)
            for (const Height h : terrain_.Row(y, rect_))
                if (area_.Holds(h) && !IsOnCurve(h))
                    RefuseHeight(h);
    }

    void FillTable() {
        lowest_ = std::max(present_.low, lowestOnCurve);
        const Height highest = std::min(present_.high, highestOnCurve);
        for (Height h = lowest_; h <= highest; ++h)
            images_.push_back(marks_.ImageOf(h));
    }

    Height Stored(Height h) {
        writer_.Stored().Widen(h);
        return h;
    }

    void Report(int columnOrRow) {
        host_.Progress(PercentOf(columnOrRow, terrain_.XPoints()));
        host_.Yield();
    }

    /// Without limits all points but those without a mark go through the table, in any order.
    void ShiftRows() {
        gaps_.resize(static_cast<std::size_t>(rect_.Columns()));
        for (int y = rect_.y0; y <= rect_.y1; ++y) {
            Report(y);
            const auto row = writer_.UnmeasuredRow(y);
            MapHeights(row, lowest_, images_);
            Extremes found;
            FindExtremes(row, found);
            if (found.low == noMark)
                found.low = CollectGaps(y);
            writer_.Stored().Widen(found);
        }
    }

    /// Remembers the points of a row that have no mark; returns the lowest of the others.
    Height CollectGaps(int y) {
        const auto row = terrain_.Row(y, rect_);
        Height low = INT32_MAX;
        for (std::size_t i = 0; i < gaps_.size(); ++i) {
            if (row[i] == noMark)
                gaps_[i].push_back(y);
            else
                low = std::min(low, row[i]);
        }
        return low;
    }

    /// Points without a mark become what the point before them has become, column by column.
    void CloseGaps() {
        for (std::size_t i = 0; i < gaps_.size(); ++i) {
            for (const int y : gaps_[i]) {
                Height& gap = writer_.UnmeasuredRow(y)[i];
                if (y > rect_.y0)
                    gap = terrain_.Row(y - 1, rect_)[i];
                else
                    gap = i > 0 ? terrain_.Row(rect_.y1, rect_)[i - 1] : Stored(beforeAll);
            }
        }
    }

    /// With limits, in the very order of the columns.
    void ShiftColumns() {
        Height before = beforeAll;
        ForEachColumn(writer_, [&](int x, std::span<Height> column) {
            Report(x);
            for (Height& h : column) {
                if (!area_.Holds(h))
                    continue;
                const Height image = images_[static_cast<std::size_t>(h - lowest_)];
                before = image == noMark ? before : image;
                h = Stored(before);
            }
        });
    }

    const clsTerrain& terrain_;
    HeightWriter writer_;
    const Area& area_;
    GridRect rect_;
    const Marks& marks_;
    Host& host_;
    Extremes present_;
    Height lowest_ = 0;
    std::vector<Height> images_;          ///< by height above the lowest
    std::vector<std::vector<int>> gaps_;  ///< for each column, the rows without a mark
};

/// The same for areas that leave the grid.
void ShiftPoints(clsTerrain& terrain, const Area& area, int extent, const Marks& marks,
                 Host& host) {
    Height before = beforeAll;
    const auto beginColumn = [&](int x) {
        host.Progress(PercentOf(x, terrain.XPoints()));
        host.Yield();
    };
    ForEachPoint(terrain, area, extent, beginColumn, [&](Height h) {
        if (!IsOnCurve(h))
            RefuseHeight(h);
        const Height image = marks.ImageOf(h);
        return before = image == noMark ? before : image;
    });
}

/// The mark lies in the curve's own grid: it is off while the effect runs.
class Disarmed {
  public:
    explicit Disarmed(ElevatorGrid& grid) : grid_(grid) { grid_.Arm(false); }
    Disarmed(const Disarmed&) = delete;
    Disarmed& operator=(const Disarmed&) = delete;
    ~Disarmed() { grid_.Arm(true); }

  private:
    ElevatorGrid& grid_;
};

}  // namespace

void FilterElevatorShift(clsTerrain& terrain, float& /*strength*/, const Area& area,
                         Elevator& elevator, Host& host) {
    assert(area.extent);
    host.Status("Elevator shift...");
    host.Busy(true);
    if (!elevator.grid.IsArmed())
        return;
    const int extent = std::max(area.extent.value(), -1);
    const Disarmed disarmed(elevator.grid);
    host.Progress(0);
    host.Yield();
    const Marks marks(elevator.grid);
    const GridRect grid = terrain.Cells();
    if (area.LiesIn(grid, extent))
        ElevatorPass(terrain, area, area.CutTo(grid, extent), marks, host).Run();
    else
        ShiftPoints(terrain, area, extent, marks, host);
    host.Progress(100);
}

}  // namespace quillbrand::QBFilter
