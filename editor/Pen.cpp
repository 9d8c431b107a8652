#include "editor/Pen.h"

#include <algorithm>
#include <cmath>

namespace quillbrand {

namespace {

/// A pen this far off reaches no grid, and its neighbourhood still has numbers.
constexpr double farAway = 1 << 30;

double Near(double coordinate) {
    return std::clamp(coordinate, -farAway, farAway);
}

float MiddleOfTile(float at, int size) {
    const double tile = 2.0 * size;
    return static_cast<float>(tile * std::floor(at / tile) + size + 1);
}

void Print(clsTerrain& terrain, const Pen& pen, const MousePoint& mouse, int radius,
           RandomSource& chance) {
    const MousePoint at = pen.PlaceOf(mouse);
    const double x = at.x;
    const double y = at.y;
    switch (pen.shape) {
        case PenShape::Square:
            return terrain.GetSquare(Near(x - 1), Near(y - 1), radius, pen.Z());
        case PenShape::Round:
            return terrain.GetCircle(Near(x - 1), Near(y - 1), radius, pen.Z());
        case PenShape::Noise:
            return terrain.GetNoise(Near(x), Near(y), radius, pen.Z(), chance);
        case PenShape::None:
            return;
    }
}

}  // namespace

MousePoint Pen::PlaceOf(const MousePoint& mouse) const {
    if (!snap)
        return mouse;
    return {MiddleOfTile(mouse.x, size), MiddleOfTile(mouse.y, size)};
}

void PressPen(clsTerrain& terrain, const Pen& pen, const MousePoint& mouse, RandomSource& chance,
              bool& TerrainEmpty) {
    Print(terrain, pen, mouse, pen.size + 1, chance);
    TerrainEmpty = false;
}

void MovePen(clsTerrain& terrain, const Pen& pen, const MousePoint& mouse, RandomSource& chance) {
    Print(terrain, pen, mouse, pen.size, chance);
}

}  // namespace quillbrand
