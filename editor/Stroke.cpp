#include "editor/Stroke.h"

#include <algorithm>
#include <cassert>
#include <optional>
#include <vector>

#include "base/Numbers.h"

namespace quillbrand {

namespace {

using QBFilter::Area;

/// What "up" and "down" add to the square around a point. It depends on brush and depth alone, so
/// it is made once for a stroke.
class Hill {
  public:
    Hill(const Stroke& stroke, const GaussTable& gaussTable)
        : reach_(stroke.size), side_(2 * stroke.size + 1) {
        const int r = 2 * stroke.size;
        const int sign = stroke.tool == StrokeTool::Down ? -1 : 1;
        amounts_.reserve(static_cast<std::size_t>(side_) * static_cast<std::size_t>(side_));
        for (int j = 0; j < side_; ++j)
            for (int i = 0; i < side_; ++i) {
                const double w = gaussTable.Weight(i, j, 0, 0, r, r, stroke.depth);
                amounts_.push_back(RoundTo32(sign * w * r * 20));
            }
    }

    /// Adds it around a point, as far as it lies in the grid.
    void AddTo(clsTerrain& terrain, const StrokeMap::Point& point) const {
        const GridRect part = GridRect::Cut(point.x - reach_, point.y - reach_, point.x + reach_,
                                            point.y + reach_, terrain.Cells());
        for (int y = part.y0; y <= part.y1; ++y)
            terrain.IncrPoints(part.x0, y, Row(y - point.y, part.x0 - point.x, part.Columns()));
    }

  private:
    /// `count` amounts of the row j below the middle, from i to the right of it on.
    std::span<const Height> Row(int j, int i, int count) const {
        return std::span(amounts_).subspan(
            static_cast<std::size_t>((j + reach_) * side_ + i + reach_),
            static_cast<std::size_t>(count));
    }

    int reach_;
    int side_;
    std::vector<Height> amounts_;
};

/// A tool at work, point by point.
class Brush {
  public:
    Brush(clsTerrain& terrain, const Stroke& stroke, const StrokeSurroundings& surroundings,
          Host& host)
        : terrain_(terrain), stroke_(stroke), riverBed_(surroundings.riverBed), host_(host) {
        if (stroke.tool == StrokeTool::Up || stroke.tool == StrokeTool::Down)
            hill_.emplace(stroke, surroundings.gaussTable);
    }

    void WorkOn(const StrokeMap::Point& point) {
        const double depth = stroke_.depth;
        switch (stroke_.tool) {
            case StrokeTool::None:
                return;
            case StrokeTool::Up:
            case StrokeTool::Down:
                return hill_->AddTo(terrain_, point);
            case StrokeTool::Erode: {
                auto strength = static_cast<float>(depth / 2);
                return QBFilter::FilterRiverErosion(terrain_, strength, SquareAround(point, 0),
                                                    riverBed_, host_);
            }
            case StrokeTool::Noise: {
                auto strength = static_cast<float>(depth / 3);
                return QBFilter::FilterNoise(terrain_, strength, SquareAround(point, 0), host_);
            }
            case StrokeTool::Smooth: {
                auto strength = static_cast<float>((depth + 12) / 4);
                return QBFilter::FilterSmooth(terrain_, strength, SquareAround(point, 1), host_);
            }
            case StrokeTool::Sharpen:
                return host_.Progress(100);
        }
    }

  private:
    /// The square of an effect, which ends a point short of the brush; moved to the upper left.
    Area SquareAround(const StrokeMap::Point& point, int moved) const {
        return {.extent = 2 * stroke_.size - 2,
                .startX = point.x - stroke_.size - moved,
                .startY = point.y - stroke_.size - moved};
    }

    clsTerrain& terrain_;
    Stroke stroke_;
    QBFilter::RiverBed& riverBed_;
    std::optional<Hill> hill_;
    Host& host_;
};

}  // namespace

void RunStroke(clsTerrain& terrain, const Stroke& stroke, const StrokeMap& map,
               const StrokeSurroundings& surroundings, Host& host) {
    assert(stroke.tool != StrokeTool::None);
    assert(stroke.size >= 1 && stroke.size <= 60 && stroke.depth >= 0 && stroke.depth <= 30);
    host.Busy(true);
    host.Progress(0);
    host.Status("Filter Process.....");
    const int columns = terrain.XPoints();
    const auto points = map.Points(columns);
    Brush brush(terrain, stroke, surroundings, host);
    auto next = points.begin();
    for (int x = 1; x <= columns; ++x) {
        host.Progress(static_cast<int>(RoundHalfEven(100.0 * x / columns)));
        host.Yield();
        for (; next != points.end() && next->x == x; ++next)
            brush.WorkOn(*next);
    }
    if (!points.empty())
        surroundings.TerrainEmpty = surroundings.TerrainSaved = false;
    host.Progress(100);
    host.Yield();
}

}  // namespace quillbrand
