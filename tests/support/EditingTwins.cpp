#include "tests/support/EditingTwins.h"

#include "base/Numbers.h"
#include "tests/support/SlowTwins.h"

namespace quillbrand::SlowTwins {

namespace {

void Raise(clsTerrain& terrain, const Stroke& stroke, int x, int y, const GaussTable& gaussTable) {
    const int r = 2 * stroke.size;
    const int left = x - stroke.size;
    const int top = y - stroke.size;
    for (int i = left; i <= left + r; ++i)
        for (int j = top; j <= top + r; ++j) {
            const double w = gaussTable.Weight(i, j, left, top, r, r, stroke.depth);
            terrain.IncrPoint(i, j,
                              RoundTo32(stroke.tool == StrokeTool::Up ? w * r * 20 : -w * r * 20));
        }
}

/// Calls `use` with the exact places of a frame.
template <typename Use>
void ForEachPlace(const Frame& frame, Use use) {
    for (int n = 0; double{frame.left} + n <= frame.right; ++n)
        for (int m = 0; double{frame.top} + m <= frame.bottom; ++m)
            use(double{frame.left} + n, double{frame.top} + m);
}

/// The way back from the scratch grid.
void CopyBack(clsTerrain& terrain, const clsTerrain& scratch) {
    terrain.Init(scratch.Size() + 1);
    for (int x = -10; x <= scratch.XPoints() + 20; ++x)
        for (int y = -10; y <= scratch.YPoints() + 20; ++y)
            terrain.SetPoint(x, y, scratch.GetPoint(x, y));
}

}  // namespace

void StrokePoint(clsTerrain& terrain, const Stroke& stroke, int x, int y,
                 const GaussTable& gaussTable, const Picture& picture, int offset,
                 RandomSource& chance) {
    const int r = 2 * stroke.size;
    const auto d = static_cast<float>(stroke.depth);
    QBFilter::Area area{
        .extent = r - 2, .startX = x - r / 2, .startY = y - r / 2, .zMin = -32768, .zMax = 32768};
    switch (stroke.tool) {
        case StrokeTool::Up:
        case StrokeTool::Down:
            return Raise(terrain, stroke, x, y, gaussTable);
        case StrokeTool::Erode:
            return FilterRiverErosion(terrain, d / 2, area, picture, offset);
        case StrokeTool::Noise:
            return FilterNoise(terrain, d / 3, area, chance);
        case StrokeTool::Smooth:
            --area.startX;
            --area.startY;
            return FilterSmooth(terrain, area);
        default:
            return;
    }
}

void FillArea(clsTerrain& terrain, const Frame& frame, int height) {
    ForEachPlace(frame, [&](double x, double y) {
        terrain.SetPoint(RoundTo32(x), RoundTo32(y), height - 32768);
    });
}

void RaiseArea(clsTerrain& terrain, const Frame& frame, int depth, int sign) {
    const double width = double{frame.right} - frame.left;
    const double height = double{frame.bottom} - frame.top;
    ForEachPlace(frame, [&](double x, double y) {
        const double w = GaussWeight(x, y, frame.left, frame.top, width, height);
        terrain.IncrPoint(RoundTo32(x), RoundTo32(y), RoundTo32(sign * w * (depth * 2500.0)));
    });
}

void Reflect(clsTerrain& terrain, int x1, int y1, int x2, int y2, bool horizontally) {
    const clsTerrain old = terrain;
    for (int x = x1; x <= x2; ++x)
        for (int y = y1; y <= y2; ++y)
            terrain.SetPoint(
                x, y,
                horizontally ? old.GetPoint(x, y2 - (y - y1)) : old.GetPoint(x2 - (x - x1), y));
}

void HalveTerrain(clsTerrain& terrain) {
    clsTerrain scratch;
    scratch.Init(RoundTo16(terrain.Size() / 2.0 + 1));
    for (int x = -4; x <= scratch.XPoints() + 4; ++x)
        for (int y = -4; y <= scratch.YPoints() + 4; ++y) {
            const double a = terrain.GetPoint(2 * x, 2 * y);
            const double b = terrain.GetPoint(2 * x + 1, 2 * y);
            const double c = terrain.GetPoint(2 * x + 1, 2 * y + 1);
            const double d = terrain.GetPoint(2 * x, 2 * y + 1);
            scratch.SetPoint(x, y, RoundTo32((a + b + c + d) / 4));
        }
    CopyBack(terrain, scratch);
}

void DoubleTerrain(clsTerrain& terrain, int mode, int roughness, RandomSource& chance) {
    clsTerrain scratch;
    scratch.Init(terrain.Size() * 2 + 1);
    double R = roughness / 200.0;
    for (int x = 0; x <= terrain.XPoints(); ++x)
        for (int y = 0; y <= terrain.YPoints(); ++y) {
            const double F = 1 + R * chance.Uniform();
            const double p = terrain.GetPoint(x, y);
            const double q = terrain.GetPoint(x + 1, y);
            const double c = terrain.GetPoint(x + 1, y + 1);
            const double d = terrain.GetPoint(x, y + 1);
            if (mode == 0)
                chance.Uniform();
            const auto towards = [&](double other) {
                if (mode == 1)
                    return F * (p + other) / 2;
                if (mode == 2)
                    return p;
                R = F * (chance.Uniform() * 0.1);
                return p + (other - p) / (2 + R);
            };
            scratch.SetPoint(2 * x, 2 * y, RoundTo32(mode == 1 ? F * p : p));
            scratch.SetPoint(2 * x + 1, 2 * y, RoundTo32(towards(q)));
            scratch.SetPoint(2 * x + 1, 2 * y + 1, RoundTo32(towards(c)));
            scratch.SetPoint(2 * x, 2 * y + 1, RoundTo32(towards(d)));
        }
    CopyBack(terrain, scratch);
}

}  // namespace quillbrand::SlowTwins
