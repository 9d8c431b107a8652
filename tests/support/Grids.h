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

/// A whole number in low..high.
int AnyOf(int low, int high, RandomSource& chance);

/// Every cell, margin included, anywhere in low..high; the extremes are true.
void FillWithChance(clsTerrain& terrain, Height low, Height high, RandomSource& chance);

/// A terrain of `points` per side, filled so.
clsTerrain RandomGrid(int points, Height low, Height high, RandomSource& chance);

/// All cells with their margin, for whole comparisons.
std::vector<Height> AllCells(const clsTerrain& terrain);

/// Whether all cells, margin included, and the running extremes are the same.
bool SameGrid(const clsTerrain& one, const clsTerrain& other);

/// The values of the header in words: "XPoints 257 ScaleT 30 CRAD 6370 CRVM 0 HeightScale 30
/// BaseHeight 5".
std::string HeaderText(const clsTerrain& terrain);

}  // namespace quillbrand
