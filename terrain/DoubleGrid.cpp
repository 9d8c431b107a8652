#include "terrain/DoubleGrid.h"

#include <cassert>
#include <utility>

namespace quillbrand::qbGenerator {

namespace {

/// A mode that is none gives zeroes, but draws its numbers.
void FillWithZeroes(int n, SquareArray& result, RandomSource& chance) {
    const auto cells = static_cast<std::size_t>(n + 1) * static_cast<std::size_t>(n + 1);
    chance.Discard(cells);
    result = SquareArray(result.Upper(), 0);
}

}  // namespace

void DoubleGrid(SquareArray& grid, int& n, int mode, int roughness, Host& host) {
    assert(n >= 0 && grid.Upper() > n);
    host.Status("Resize Terrain...");
    host.Busy(true);
    host.Chance().ReseedFromClock();
    SquareArray result(2 * n + 1);
    host.Yield();
    if (mode < Randomised || mode > PixelRepetition)
        FillWithZeroes(n, result, host.Chance());
    else
        DoubleCells(grid, n, {.mode = mode, .roughness = roughness / 200.0}, result, host.Chance(),
                    [&host](int /*i*/) { host.Yield(); });
    grid = std::move(result);
    n = grid.Upper() - 1;
    host.Busy(false);
    host.Yield();
}

}  // namespace quillbrand::qbGenerator
