#pragma once

#include <filesystem>

#include "terrain/clsTerrain.h"

namespace quillbrand {

/// Writes the header record and all cells with their margin. A longer old file keeps its surplus
/// bytes. Throws Fault, with the old file untouched.
void SaveBackup(const clsTerrain& terrain, const std::filesystem::path& path);

/// Brings back what SaveBackup wrote: grid and header values; the running extremes are as after
/// Init, so Range or a redraw must follow. The whole file is checked first. Throws Fault with the
/// path, with the terrain unchanged.
void LoadBackup(clsTerrain& terrain, const std::filesystem::path& path);

/// The same from a file's bytes, called `name` in a Fault.
void DecodeBackup(clsTerrain& terrain, std::span<const std::byte> bytes, const std::string& name);

}  // namespace quillbrand
