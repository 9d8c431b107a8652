#pragma once

#include <functional>

#include "base/GridMemory.h"
#include "base/Host.h"
#include "base/RandomSource.h"

namespace quillbrand {

/// How the new cells of a doubled grid are found.
enum DoublingModes : int { Randomised = 0, Bilinear = 1, PixelRepetition = 2 };

/// A way to double a grid. Every cell becomes 2 x 2: itself and what lies on the way to its right,
/// its lower right and its lower neighbour. Bilinear takes the middle and multiplies the four by
/// one factor of up to 1 + roughness; repetition takes the cell itself; the randomised mode takes
/// places near the middle.
struct Doubling {
    int mode;                   ///< one of DoublingModes
    double roughness;           ///< 0..0.05
    bool singleFactors = true;  ///< factors are narrowed to single floats
    bool drawsForAll = false;   ///< the randomised mode draws a number for the cell itself, too
};

/// Doubles the cells 0..n of `grid` in both directions into the cells 0..2n + 1 of `result`, as far
/// as it has them. Reads the cells n + 1, too. Whatever the mode, a random number is drawn for
/// every cell, i outer, j inner; in the randomised mode three or four more. Calls `done` with 0..n
/// as columns, or as many rows, are done. Throws Fault where a cell leaves 32 bits; `result` is
/// then of no use. Requires: the mode is one of the three; grid.Upper() > n; result.Upper() is 2n
/// or 2n + 1.
void DoubleCells(const SquareArray& grid, int n, const Doubling& doubling, SquareArray& result,
                 RandomSource& chance, const std::function<void(int)>& done);

namespace qbGenerator {

/// Doubles the working grid of the generator: valid cells 0..n in both directions become 0..2n, and
/// the array's upper index 2n + 1. `roughness` 0..10 disturbs the bilinear mode; a mode that is
/// none gives zeroes. Draws as DoubleCells does; the source is reseeded from the clock first.
/// Throws Fault when a cell leaves 32 bits. The busy flag is clear afterwards. Requires: n >= 0,
/// and `grid` holds cells up to n + 1.
void DoubleGrid(SquareArray& grid, int& n, int mode, int roughness, Host& host);

}  // namespace qbGenerator

}  // namespace quillbrand
