#include "editor/AreaCommands.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "base/Fault.h"
#include "base/NumberText.h"
#include "base/Numbers.h"
#include "base/VectorClones.h"
#include "effects/Gauss.h"
#include "terrain/HeightWriter.h"

namespace quillbrand {

namespace {

Frame Converted(Frame frame) {
    convertFrameData(frame.left, frame.top, frame.right, frame.bottom);
    return frame;
}

/// Columns next to each other.
struct Run {
    std::size_t line;  ///< of the frame, where it begins
    int column;        ///< of the grid
    std::size_t count;
};

/// A frame on a grid: its lines in both directions, as far as they lie there.
class Area {
  public:
    Area(const clsTerrain& terrain, const Frame& frame)
        : frame_(frame),
          columns_(LinesOf(frame.left, frame.right, terrain.Size() + 2)),
          rows_(LinesOf(frame.top, frame.bottom, terrain.Size() + 2)) {}

    double Across() const { return double{frame_.right} - frame_.left; }
    double Down() const { return double{frame_.bottom} - frame_.top; }
    const std::vector<FrameLine>& Columns() const { return columns_; }
    const std::vector<FrameLine>& Rows() const { return rows_; }

    /// The part of the grid that it touches.
    GridRect Rect() const {
        if (columns_.empty() || rows_.empty())
            return {};
        return {columns_.front().cell, rows_.front().cell, columns_.back().cell, rows_.back().cell};
    }

    /// Calls `work` with each row and the runs of its columns. The percent is that of columns, of
    /// which as many count as done as rows are.
    template <typename Work>
    void ForEachRow(Host& host, Work work) const {
        const auto runs = Runs();
        std::size_t told = 0;
        for (std::size_t row = 0; row < rows_.size(); ++row) {
            work(row, runs);
            for (; told * rows_.size() < (row + 1) * columns_.size(); ++told) {
                host.Progress(PercentAt(columns_[told].at));
                host.Yield();
            }
        }
    }

  private:
    std::vector<Run> Runs() const {
        std::vector<Run> runs;
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const int column = columns_[i].cell;
            if (i > 0 && column == columns_[i - 1].cell + 1)
                ++runs.back().count;
            else
                runs.push_back({i, column, 1});
        }
        return runs;
    }

    /// Counted from the left of the grid and not of the frame, so it may run past 100.
    int PercentAt(double x) const {
        if (Across() == 0)
            return 100;
        return static_cast<int>(RoundHalfEven(std::clamp(x * (100 / Across()), -1e9, 1e9)));
    }

    Frame frame_;
    std::vector<FrameLine> columns_;
    std::vector<FrameLine> rows_;
};

/// What the points of a row gain: k times their bell, which is that of their column, `gx`, with its
/// first two factors, and that of the row.
QB_VECTOR_CLONES void FillAmounts(const double* __restrict gx, std::ptrdiff_t count, double gy,
                                  double k, Height* __restrict amounts) {
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        const auto w = static_cast<float>(gx[i] * gy * 4.0);
        amounts[i] = static_cast<Height>(std::rint(w * k));
    }
}

/// A hill over a frame, k times the bell high. GaussWeight is a product of a function of x and one
/// of y: with a table of each, the very same weights cost no exponentials.
class Hill {
  public:
    Hill(const Area& area, const Frame& frame, double k) : area_(area), k_(k) {
        for (const FrameLine& column : area.Columns())
            columnBells_.push_back(GaussBell(column.at, frame.left, area.Across()) * 0.3 * 0.3);
        for (const FrameLine& row : area.Rows())
            rowBells_.push_back(GaussBell(row.at, frame.top, area.Down()));
        amounts_.resize(columnBells_.size());
    }

    void AddTo(clsTerrain& terrain, Host& host) {
        const auto count = static_cast<std::ptrdiff_t>(columnBells_.size());
        area_.ForEachRow(host, [&](std::size_t row, const std::vector<Run>& runs) {
            FillAmounts(columnBells_.data(), count, rowBells_[row], k_, amounts_.data());
            for (const Run& run : runs)
                terrain.IncrPoints(run.column, area_.Rows()[row].cell,
                                   std::span(amounts_).subspan(run.line, run.count));
        });
    }

  private:
    const Area& area_;
    double k_;
    std::vector<double> columnBells_;
    std::vector<double> rowBells_;
    std::vector<Height> amounts_;
};

/// Throws where a height leaves 32 bits.
void AddHill(clsTerrain& terrain, const Frame& given, double k, Host& host) {
    const Frame frame = Converted(given);
    const Area area(terrain, frame);
    Hill(area, frame, k).AddTo(terrain, host);
}

/// How much a step of `sldDepthEffects` raises, before the bell.
constexpr double stepHeight = 2500;

void RequireInGrid(const Frame& frame, int last) {
    const auto isInside = [last](float at) {
        const double cell = RoundHalfEven(at);
        return cell >= 0 && cell <= last;
    };
    if (!isInside(frame.left) || !isInside(frame.top) || !isInside(frame.right) ||
        !isInside(frame.bottom))
        throw Fault("the frame " + ShortestText(frame.left) + "," + ShortestText(frame.top) +
                    " to " + ShortestText(frame.right) + "," + ShortestText(frame.bottom) +
                    " reaches beyond the grid, whose points are 0 to " + std::to_string(last) +
                    " in both directions, and cannot be reflected");
}

}  // namespace

void FillArea(clsTerrain& terrain, const Frame& frame, int height, bool& TerrainEmpty, Host& host) {
    host.Busy(true);
    host.Status("Terrain fill...");
    const Height z = height - 32768;
    const Area area(terrain, Converted(frame));
    const GridRect rect = area.Rect();
    if (!rect.IsEmpty()) {
        HeightWriter writer(terrain, rect);
        area.ForEachRow(host, [&](std::size_t row, const std::vector<Run>& runs) {
            const auto cells = writer.UnmeasuredRow(area.Rows()[row].cell);
            for (const Run& run : runs)
                std::fill_n(cells.data() + (run.column - rect.x0), run.count, z);
        });
        writer.Stored().Widen(z);
    }
    TerrainEmpty = false;
}

void RaiseArea(clsTerrain& terrain, const Frame& frame, int depth, bool& TerrainEmpty, Host& host) {
    assert(depth >= 0 && depth <= 30);
    host.Busy(true);
    host.Status("lift Terrain....");
    AddHill(terrain, frame, depth * stepHeight, host);
    TerrainEmpty = false;
}

void LowerArea(clsTerrain& terrain, const Frame& frame, int depth, bool& TerrainEmpty, Host& host) {
    assert(depth >= 0 && depth <= 30);
    host.Busy(true);
    host.Status("lower terrain...");
    AddHill(terrain, frame, -depth * stepHeight, host);
    TerrainEmpty = false;
}

void ReflectArea(clsTerrain& terrain, const Frame& frame, Reflection way, bool& TerrainEmpty,
                 Host& host) {
    host.Busy(true);
    const Frame ordered = Converted(frame);
    RequireInGrid(ordered, terrain.Size() + 2);
    const int x1 = RoundTo32(ordered.left);
    const int y1 = RoundTo32(ordered.top);
    const int x2 = RoundTo32(ordered.right);
    const int y2 = RoundTo32(ordered.bottom);
    if (way == Reflection::Horizontally)
        terrain.GetReflectHor(x1, y1, x2, y2);
    else
        terrain.GetReflectVer(x1, y1, x2, y2);
    TerrainEmpty = false;
}

}  // namespace quillbrand
