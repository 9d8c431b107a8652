#pragma once

#include <filesystem>
#include <string>

#include "base/Host.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// Scales the terrain and writes it, margin included, as a .QPS file; the name is cut or padded to
/// 24 characters. Heights of the margin are limited to 16 bits. Throws Fault, with the old file
/// untouched.
void SavePerlinSet(clsTerrain& terrain, const std::filesystem::path& path, const std::string& name,
                   Host& host);

}  // namespace quillbrand
