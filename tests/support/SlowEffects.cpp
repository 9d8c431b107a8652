#include "tests/support/SlowEffects.h"

#include <cmath>
#include <map>

#include "base/Numbers.h"
#include "effects/Gauss.h"

namespace quillbrand::SlowTwins {

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
    switch (curve) {
        case Curve::Stretch:
            return std::abs(f * h) * h;
        case Curve::Sinus:
            return std::sin(f * (h + 32768));
        case Curve::Gamma:
            break;
    }
    return std::pow(h, f);
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

void FilterInvert(clsTerrain& terrain) {
    for (int x = 0; x <= terrain.XPoints(); ++x)
        for (int y = 0; y <= terrain.XPoints(); ++y)
            terrain.SetPoint(x, y, -terrain.GetPoint(x, y));
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

Height LowestDiagonal(const clsTerrain& terrain, int& x, int& y) {
    Height low = terrain.GetPoint(x, y);
    int bestX = 0;
    int bestY = 0;
    for (int i = x - 1; i <= x + 1; ++i)
        for (int j = y - 1; j <= y + 1; ++j)
            if (i != x && j != y && terrain.GetPoint(i, j) < low) {
                low = terrain.GetPoint(i, j);
                bestX = i;
                bestY = j;
            }
    x = bestX;
    y = bestY;
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
