#pragma once

#include <span>

#include "terrain/clsTerrain.h"

namespace quillbrand {

/// IncrPoint for many cells at once.
class Increments {
  public:
    explicit Increments(clsTerrain& terrain) : writer_(terrain) {}

    /// Adds amounts[i] to the cell (x + i, y), all of which must lie in the grid; widens the
    /// running extremes by the amounts. Throws Fault, with the row in any state, where a height
    /// leaves 32 bits.
    void Add(int x, int y, std::span<const Height> amounts);

  private:
    HeightWriter writer_;
};

}  // namespace quillbrand
