#pragma once

#include <filesystem>

#include "base/Host.h"
#include "terrain/clsTerrain.h"

namespace quillbrand::mTerLoad {

/// What the reader remembers from one file to the next.
struct Memory {
    std::int16_t CRVM = 0;  ///< of the last file that told it; files that do not tell take it
};

/// Reads a TER file into the terrain and offers to refine one that uses little of the height
/// range. The whole file is checked before the terrain changes. Returns false, with the terrain
/// unchanged, for a file that is no TER file at all; the offer comes all the same. Throws Fault
/// with the path for one that is damaged or too large; the terrain is then unchanged too.
bool LoadTerrain(const std::filesystem::path& path, clsTerrain& terrain, Memory& memory,
                 Host& host);

}  // namespace quillbrand::mTerLoad
