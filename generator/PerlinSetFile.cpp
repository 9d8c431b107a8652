#include "generator/PerlinSetFile.h"

#include "base/ByteBuffer.h"
#include "base/Numbers.h"
#include "terrain/ScaleTerrainStep.h"

namespace quillbrand {

namespace {

constexpr std::size_t nameLength = 24;

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
            writer.Put(LimitTo16(heights(x, y)));
    ReplaceFile(path, file);
    host.Busy(false);
}

}  // namespace quillbrand
