#pragma once

#include <string>
#include <vector>

#include "base/RandomSource.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// A terrain from rows of numbers, top row first, "1 2 3 / 4 5 6 / 7 8 9"; the margin is 0 and the
/// extremes are true.
clsTerrain GridFrom(const std::string& rows);

/// The same text from a terrain, without its margin.
std::string TextOf(const clsTerrain& terrain);

/// Every cell, margin included, anywhere in low..high; the extremes are true.
void FillWithChance(clsTerrain& terrain, Height low, Height high, RandomSource& chance);

/// All cells with their margin, for whole comparisons.
std::vector<Height> AllCells(const clsTerrain& terrain);

}  // namespace quillbrand
