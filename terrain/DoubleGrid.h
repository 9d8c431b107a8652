#pragma once

#include "base/GridMemory.h"
#include "base/Host.h"
#include "terrain/Doubling.h"

/// Enlarging of working grids.
namespace quillbrand::qbGenerator {

/// Doubles the grid: valid cells 0..n in both directions become 0..2n, and the array's upper index
/// 2n + 1. `mode` is one of DoublingModes; other numbers give zeroes. `roughness` 0..10 disturbs
/// the bilinear mode. One random number is drawn a cell, i outer, j inner, whatever the mode, and
/// three more in the randomised one; the source is reseeded from the clock first. Throws Fault when
/// a cell leaves 32 bits. The busy flag is clear afterwards. Requires: n >= 0, and the grid holds
/// the cells n + 1, too.
void DoubleGrid(SquareArray& grid, int& n, int mode, int roughness, Host& host);

}  // namespace quillbrand::qbGenerator
