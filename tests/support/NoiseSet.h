#pragma once

#include <filesystem>
#include <string>

namespace quillbrand {

/// Writes a Perlin set into a folder: a description `<name>.INI` and five square noise pictures of
/// `side` points with numbers that differ from point to point.
void WriteNoiseSet(const std::filesystem::path& folder, const std::string& name, int side);

}  // namespace quillbrand
