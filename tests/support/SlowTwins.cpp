#include "tests/support/SlowTwins.h"

#include <cmath>

namespace quillbrand::SlowTwins {

namespace {

void SmoothPoint(clsTerrain& t, int x, int y, const QBFilter::Area& area) {
    const Height h = t.GetPoint(x, y);
    if (!(area.zMin < h && h < area.zMax))
        return;
    const double s = double(t.GetPoint(x - 1, y - 1)) + t.GetPoint(x - 1, y + 1) +
                     t.GetPoint(x, y) + t.GetPoint(x + 1, y - 1) + t.GetPoint(x + 1, y + 1);
    t.SetPoint(x, y, static_cast<Height>(std::nearbyint(s / 5.0)));
}

std::int32_t Round(double value) {
    return static_cast<std::int32_t>(std::nearbyint(value));
}

}  // namespace

void FilterSmooth(clsTerrain& terrain, const QBFilter::Area& area) {
    for (int x = area.startX; x <= area.startX + *area.extent; ++x)
        for (int y = area.startY; y <= area.startY + *area.extent; ++y)
            SmoothPoint(terrain, x, y, area);
    for (int x = area.startX + *area.extent; x >= area.startX; --x)
        for (int y = area.startY + *area.extent; y >= area.startY; --y)
            SmoothPoint(terrain, x, y, area);
}

std::int64_t ScaleTerrain(clsTerrain& t) {
    const Height first = t.GetPoint(1, 1);
    const Height second = t.GetPoint(1, 2);
    if (t.FixHeight()) {
        t.SetPoint(1, 1, 32767);
        t.SetPoint(1, 2, -32767);
    }
    const auto r = static_cast<double>(t.Range());
    const double f = 65535 / (r + 1);
    const double c = t.max() - r / 2;
    if (f != 1 && f != 65535) {
        const float low = t.GetPointTUZ(t.min());
        const float high = t.GetPointTUZ(t.max());
        if (!t.FixHeight()) {
            t.MinTU(Round(low));
            t.MaxTU(Round(high));
        }
        for (int x = 0; x <= t.XPoints(); ++x)
            for (int y = 0; y <= t.XPoints(); ++y)
                t.SetPoint(x, y, Round(f * (t.GetPoint(x, y) - c)));
    }
    if (t.FixHeight()) {
        t.SetPoint(1, 1, first);
        t.SetPoint(1, 2, second);
    }
    return t.Range();
}

void DoubleGrid(SquareArray& grid, int& n, int mode, int roughness, RandomSource& chance) {
    SquareArray out(2 * n + 1, 0);
    double r = roughness / 200.0;
    for (int i = 0; i <= n; ++i) {
        for (int j = 0; j <= n; ++j) {
            const double a = grid(i, j);
            const double b = grid(i + 1, j);
            const double c = grid(i + 1, j + 1);
            const double e = grid(i, j + 1);
            const auto d = static_cast<float>(1 + r * chance.Uniform());
            if (mode == 1) {
                out(2 * i, 2 * j) = Round(d * a);
                out(2 * i + 1, 2 * j) = Round(d * ((b + a) / 2));
                out(2 * i + 1, 2 * j + 1) = Round(d * ((c + a) / 2));
                out(2 * i, 2 * j + 1) = Round(d * ((e + a) / 2));
            } else if (mode == 2) {
                out(2 * i, 2 * j) = out(2 * i + 1, 2 * j) = out(2 * i, 2 * j + 1) =
                    out(2 * i + 1, 2 * j + 1) = Round(a);
            } else if (mode == 0) {
                out(2 * i, 2 * j) = Round(a);
                r = d * (0.1 * chance.Uniform());
                out(2 * i + 1, 2 * j) = Round(a + (b - a) / (2 + r));
                r = d * (0.1 * chance.Uniform());
                out(2 * i + 1, 2 * j + 1) = Round(a + (c - a) / (2 + r));
                r = d * (0.1 * chance.Uniform());
                out(2 * i, 2 * j + 1) = Round(a + (e - a) / (2 + r));
            }
        }
    }
    n = 2 * n;
    grid = std::move(out);
}

}  // namespace quillbrand::SlowTwins
