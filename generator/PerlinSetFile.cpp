#include "generator/PerlinSetFile.h"

#include "base/ByteBuffer.h"
#include "base/Numbers.h"
#include "terrain/ScaleTerrainStep.h"

namespace quillbrand {

namespace {

constexpr std::size_t nameLength = 24;

/// A height as the file stores it. Cells of the margin are limited: they do not count when a
/// terrain is scaled, so that some may lie outside.
std::int16_t Stored(const SquareArray& heights, int x, int y, int size) {
    const bool inMargin = x > size || y > size;
    return inMargin ? LimitTo16(heights(x, y)) : NarrowTo16(heights(x, y));
}

}  // namespace

void SavePerlinSet(clsTerrain& terrain, const std::filesystem::path& path, const std::string& name,
                   Host& host) {
    ScaleTerrainStep(terrain, host);
    const SquareArray heights = terrain.GetTerrain();
    const int upper = heights.Upper();

    std::string paddedName = name.substr(0, nameLength);
    paddedName.resize(nameLength, ' ');
    Bytes file;
    ByteWriter writer(file);
    writer.Text("QUILLBRAND PERLINSET ");
    writer.Text("NAME");
    writer.Text(paddedName);
    writer.Text("SIZE");
    writer.Put(std::int32_t{upper});
    writer.Text("ARRA");
    const auto side = static_cast<std::size_t>(upper + 1);
    file.reserve(file.size() + sizeof(std::int16_t) * side * side);
    // Only the margin can lie outside 16 bits: its cells do not count when a terrain is scaled.
    for (int y = 0; y <= upper; ++y)
        for (int x = 0; x <= upper; ++x)
            writer.Put(Stored(heights, x, y, terrain.Size()));
    ReplaceFile(path, file);
    host.Busy(false);
}

}  // namespace quillbrand
