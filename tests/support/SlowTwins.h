#pragma once

#include "base/RandomSource.h"
#include "effects/QBFilter.h"
#include "terrain/ReliefPicture.h"

/// Plain per-point versions of the fast kernels, in the order of their formulas and for areas with
/// an extent. They must agree with the fast ones cell by cell, running extremes included.
namespace quillbrand::SlowTwins {

std::int64_t ScaleTerrain(clsTerrain& terrain);

/// The shapes of the pens, point by point in wide integers.
void GetCircle(clsTerrain& terrain, std::int64_t x, std::int64_t y, std::int64_t r, Height z);
void GetSquare(clsTerrain& terrain, std::int64_t x, std::int64_t y, std::int64_t r, Height z);
void GetNoise(clsTerrain& terrain, std::int64_t x, std::int64_t y, std::int64_t r, Height z,
              RandomSource& chance);

void DoubleGrid(SquareArray& grid, int& n, int mode, int roughness, RandomSource& chance);

void FilterSmooth(clsTerrain& terrain, const QBFilter::Area& area);

enum class Curve { Stretch, Sinus, Gamma };

/// `strength` is what the body is given; the scaling at its start is included.
void TwoPasses(clsTerrain& terrain, Curve curve, float strength, const QBFilter::Area& area);

void FilterNoise(clsTerrain& terrain, float strength, const QBFilter::Area& area,
                 RandomSource& chance);

/// Requires: all heights within the limits have a column in the grid.
void FilterElevatorShift(clsTerrain& terrain, const QBFilter::Area& area, const ElevatorGrid& grid);

void FilterRiverErosion(clsTerrain& terrain, float strength, const QBFilter::Area& area,
                        const Picture& picture, int offset);

/// Without the scaling at its start.
void FilterNaturalErosion(clsTerrain& terrain, const QBFilter::Area& area,
                          const ErosionSettings& settings, RandomSource& chance);

}  // namespace quillbrand::SlowTwins
