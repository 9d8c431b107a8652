#include "tests/support/SlowTwins.h"

#include <cmath>
#include <map>
#include <utility>

#include "base/Numbers.h"
#include "effects/Gauss.h"

namespace quillbrand::SlowTwins {

namespace {

void SmoothPoint(clsTerrain& t, int x, int y, const QBFilter::Area& area) {
    if (!area.Holds(t.GetPoint(x, y)))
        return;
    const double s = double(t.GetPoint(x - 1, y - 1)) + t.GetPoint(x - 1, y + 1) +
                     t.GetPoint(x, y) + t.GetPoint(x + 1, y - 1) + t.GetPoint(x + 1, y + 1);
    t.SetPoint(x, y, static_cast<Height>(std::nearbyint(s / 5.0)));
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
            t.MinTU(RoundTo32(low));
            t.MaxTU(RoundTo32(high));
        }
        for (int x = 0; x <= t.XPoints(); ++x)
            for (int y = 0; y <= t.XPoints(); ++y)
                t.SetPoint(x, y, RoundTo32(f * (t.GetPoint(x, y) - c)));
    }
    if (t.FixHeight()) {
        t.SetPoint(1, 1, first);
        t.SetPoint(1, 2, second);
    }
    return t.Range();
}

namespace {

void SetPointWide(clsTerrain& t, std::int64_t x, std::int64_t y, Height z) {
    if (std::abs(x) <= INT16_MAX && std::abs(y) <= INT16_MAX)
        t.SetPoint(static_cast<int>(x), static_cast<int>(y), z);
}

}  // namespace

void GetCircle(clsTerrain& t, std::int64_t x, std::int64_t y, std::int64_t r, Height z) {
    for (std::int64_t i = 0; i <= r; ++i) {
        const auto h = std::llrint(std::sqrt(static_cast<double>(r * r - i * i)));
        for (std::int64_t j = 0; j <= h; ++j)
            for (const std::int64_t column : {x + i, x - i})
                for (const std::int64_t row : {y + j, y - j})
                    SetPointWide(t, column, row, z);
    }
}

void GetSquare(clsTerrain& t, std::int64_t x, std::int64_t y, std::int64_t r, Height z) {
    for (std::int64_t i = -r; i <= r; ++i)
        for (std::int64_t j = -r; j <= r; ++j)
            SetPointWide(t, x + i, y + j, z);
}

void GetNoise(clsTerrain& t, std::int64_t x, std::int64_t y, std::int64_t r, Height z,
              RandomSource& chance) {
    const auto place = [&](std::int64_t centre) {
        return std::llrint(2 * chance.Uniform() * double(r) + double(centre) - double(r));
    };
    for (std::int64_t i = 0; i < r; ++i) {
        const auto column = place(x);
        const auto row = place(y);
        SetPointWide(t, column, row, z);
    }
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
                out(2 * i, 2 * j) = RoundTo32(d * a);
                out(2 * i + 1, 2 * j) = RoundTo32(d * ((b + a) / 2));
                out(2 * i + 1, 2 * j + 1) = RoundTo32(d * ((c + a) / 2));
                out(2 * i, 2 * j + 1) = RoundTo32(d * ((e + a) / 2));
            } else if (mode == 2) {
                out(2 * i, 2 * j) = out(2 * i + 1, 2 * j) = out(2 * i, 2 * j + 1) =
                    out(2 * i + 1, 2 * j + 1) = RoundTo32(a);
            } else if (mode == 0) {
                out(2 * i, 2 * j) = RoundTo32(a);
                r = d * (0.1 * chance.Uniform());
                out(2 * i + 1, 2 * j) = RoundTo32(a + (b - a) / (2 + r));
                r = d * (0.1 * chance.Uniform());
                out(2 * i + 1, 2 * j + 1) = RoundTo32(a + (c - a) / (2 + r));
                r = d * (0.1 * chance.Uniform());
                out(2 * i, 2 * j + 1) = RoundTo32(a + (e - a) / (2 + r));
            }
        }
    }
    n = 2 * n;
    grid = std::move(out);
}

namespace {

using QBFilter::Area;

/// Calls `use` with every point of the area, less `shorter` columns and rows at its end.
template <typename Use>
void ForEachPoint(const Area& area, int shorter, Use use) {
    const int extent = area.extent.value() - shorter;
    for (int x = area.startX; x <= area.startX + extent; ++x)
        for (int y = area.startY; y <= area.startY + extent; ++y)
            use(x, y);
}

double CurveOf(Curve curve, double f, double h) {
    if (curve == Curve::Stretch)
        return std::abs(f * h) * h;
    return curve == Curve::Sinus ? std::sin(f * (h + 32768)) : std::pow(h, f);
}

}  // namespace

void TwoPasses(clsTerrain& terrain, Curve curve, float strength, const Area& area) {
    const bool isGamma = curve == Curve::Gamma;
    terrain.ScaleTerrain();
    const float f = isGamma ? strength / 4 : static_cast<float>(1.7 / 65536);
    std::map<std::pair<int, int>, double> w;
    double lo = 100000;
    double hi = -100000;
    ForEachPoint(area, isGamma ? 1 : 0, [&](int x, int y) {
        Height h = terrain.GetPoint(x, y);
        if (!area.Holds(h))
            return;
        const bool isNegative = isGamma && h < 0;
        if (isNegative) {
            terrain.SetPoint(x, y, -h);
            h = terrain.GetPoint(x, y);
        }
        const double value = CurveOf(curve, f, h);
        w[{x, y}] = isNegative ? -value : value;
        lo = std::min(lo, w[{x, y}]);
        hi = std::max(hi, w[{x, y}]);
    });
    const double range = hi - lo;
    const double scale = 65530 / (range + 1);
    const double centre = hi - range / 2;
    ForEachPoint(area, 0, [&](int x, int y) {
        if (area.Holds(terrain.GetPoint(x, y)))
            terrain.SetPoint(x, y, RoundTo16((w[{x, y}] - centre) * scale));
    });
}

void FilterNoise(clsTerrain& terrain, float strength, const Area& area, RandomSource& chance) {
    strength += 1;
    ForEachPoint(area, 0, [&](int x, int y) {
        const Height h = terrain.GetPoint(x, y);
        if (!area.Holds(h))
            return;
        const double r = chance.Uniform();
        const double d = (double{strength} / 20) * (r - 0.5);
        terrain.SetPoint(x, y, RoundTo32(h * d + h));
    });
}

void FilterElevatorShift(clsTerrain& terrain, const Area& area, const ElevatorGrid& grid) {
    Height val = 0;
    ForEachPoint(area, 0, [&](int x, int y) {
        if (!area.Holds(terrain.GetPoint(x, y)))
            return;
        const auto hu = static_cast<Height>(terrain.GetPointH(x, y));
        const int column = static_cast<int>(RoundHalfEven(hu / 512.0));
        for (int k = 0; k <= 255; ++k) {
            if (grid(column, k) == 1) {
                val = 512 * (256 - k) + hu % 512;
                break;
            }
        }
        terrain.SetPoint(x, y, val - 32768);
    });
}

void FilterRiverErosion(clsTerrain& terrain, float strength, const Area& area,
                        const Picture& picture, int offset) {
    const int units = terrain.Size() < 1026 ? 1025 : terrain.Size();
    const auto pixel = [&](int unit, int side) {
        return static_cast<int>(std::floor(double(unit) * side / units));
    };
    ForEachPoint(area, 0, [&](int x, int y) {
        const auto hu = static_cast<Height>(terrain.GetPointH(x, y));
        const Colour c =
            picture.Point(pixel(x + offset, picture.Width()), pixel(y + offset, picture.Height()));
        const double quotient = std::trunc(c / 256.0) / std::nearbyint(11.0 - strength);
        terrain.SetPoint(x, y, static_cast<Height>(std::trunc(quotient)) + hu - 32765);
    });
}

namespace {

/// Moves x, y to the lowest diagonal neighbour, or to 0, 0 when none lies lower.
Height LowestDiagonal(const clsTerrain& terrain, int& x, int& y) {
    Height low = terrain.GetPoint(x, y);
    const int px = std::exchange(x, 0);
    const int py = std::exchange(y, 0);
    for (const int i : {px - 1, px + 1})
        for (const int j : {py - 1, py + 1})
            if (terrain.GetPoint(i, j) < low) {
                low = terrain.GetPoint(i, j);
                x = i;
                y = j;
            }
    return low;
}

void Erode(clsTerrain& terrain, int x, int y, double radius, double depth) {
    const int x0 = static_cast<int>(std::floor(x - radius / 2));
    const int x1 = static_cast<int>(std::floor(x + radius / 2));
    const int y0 = static_cast<int>(std::floor(y - radius / 2));
    const int y1 = static_cast<int>(std::floor(y + radius / 2));
    for (int i = x0; i <= x1; ++i)
        for (int j = y0; j <= y1; ++j)
            terrain.IncrPoint(i, j,
                              RoundTo32(-(depth * GaussWeight(i, j, x0, y0, radius, radius))));
}

void RollDrop(clsTerrain& terrain, int extent, int x, int y, const ErosionSettings& settings) {
    for (int k = 0; k < terrain.Size(); ++k) {
        const Height h = terrain.GetPoint(x, y);
        const int px = x;
        const int py = y;
        const Height low = LowestDiagonal(terrain, x, y);
        if ((x == px && y == py) || x <= 0 || x >= extent || y <= 0 || y >= extent)
            return;
        Erode(terrain, px, py, settings.slideDepth,
              std::abs(settings.erosionDepth * ((h - low) / 20.0)));
    }
}

}  // namespace

void FilterNaturalErosion(clsTerrain& terrain, const Area& area, const ErosionSettings& settings,
                          RandomSource& chance) {
    const int extent = area.extent.value();
    for (int i = 1; i <= settings.dropCount; ++i) {
        const int x = static_cast<int>(std::floor(extent * chance.Uniform())) + 2;
        const int y = static_cast<int>(std::floor(extent * chance.Uniform())) + 2;
        if (area.Holds(terrain.GetPoint(x, y)))
            RollDrop(terrain, extent, x, y, settings);
    }
}

}  // namespace quillbrand::SlowTwins
