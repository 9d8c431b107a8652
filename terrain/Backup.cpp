#include "terrain/Backup.h"

#include <string>

#include "base/ByteBuffer.h"

namespace quillbrand {

namespace {

std::size_t Side(const TerHeader& header) {
    return static_cast<std::size_t>(header.Size) + 3;
}

}  // namespace

void SaveBackup(const clsTerrain& terrain, const std::filesystem::path& path) {
    Bytes file;
    const std::size_t side = Side(terrain.Header());
    file.reserve(TerHeader::bytes + sizeof(Height) * side * side);
    ByteWriter writer(file);
    terrain.Header().Append(writer);
    for (int y = 0; y <= terrain.Size() + 2; ++y) {
        const auto row = std::as_bytes(terrain.Row(y));
        file.insert(file.end(), row.begin(), row.end());
    }
    OverwriteFile(path, std::move(file));
}

void LoadBackup(clsTerrain& terrain, const std::filesystem::path& path) {
    // As much as the header asks for, whatever else a longer old file left behind.
    const Bytes head = ReadFile(path, TerHeader::bytes);
    const TerHeader header = TerHeader::Read(ByteReader(head, path.string()));
    const std::size_t side = header.Size < 0 ? 0 : Side(header);
    DecodeBackup(terrain, ReadFile(path, TerHeader::bytes + sizeof(Height) * side * side),
                 path.string());
}

void DecodeBackup(clsTerrain& terrain, std::span<const std::byte> bytes, const std::string& name) {
    const ByteReader reader(bytes, name);
    const TerHeader header = TerHeader::Read(reader);
    if (header.TerragenHeader != TerHeader().TerragenHeader)
        throw Fault(name + " is no backup of a terrain");
    if (header.Size < 0 || header.Size > INT16_MAX - 1)
        throw Fault(name + " says a size of " + std::to_string(header.Size) +
                    " intervals per side (0 to 32766)");
    CheckScales(header.ScaleZ, header.CRAD, name);
    const std::size_t side = Side(header);
    const auto cells = reader.At(TerHeader::bytes, sizeof(Height) * side * side);
    terrain.Restore(header, cells);
}

}  // namespace quillbrand
