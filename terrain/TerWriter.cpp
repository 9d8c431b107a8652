#include "terrain/TerWriter.h"

#include <cstring>
#include <string>

#include "base/ByteBuffer.h"
#include "base/Numbers.h"
#include "terrain/RowKernels.h"
#include "terrain/TerFormat.h"

namespace quillbrand {

namespace {

[[noreturn]] void ReportHeightOutside(const clsTerrain& terrain, int y) {
    for (int x = 0; x < terrain.XPoints(); ++x) {
        const Height z = terrain.GetPoint(x, y);
        if (z < INT16_MIN || z > INT16_MAX)
            throw Fault("overflow: the height " + std::to_string(z) + " at " + std::to_string(x) +
                        "," + std::to_string(y) + " does not fit into 16 bits (-32768 to 32767); " +
                        "scale the terrain first");
    }
    throw Fault("overflow: a height does not fit into 16 bits");
}

}  // namespace

void EncodeTer(clsTerrain& terrain, Bytes& file, Host& host) {
    host.Progress(0);
    terrain.FillHeaderTags();
    const int points = terrain.XPoints();
    const std::size_t rowBytes = sizeof(std::int16_t) * static_cast<std::size_t>(points);
    const std::size_t sampleBytes = rowBytes * static_cast<std::size_t>(points);

    Bytes header;
    ByteWriter writer(header);
    terrain.Header().Append(writer);
    file.resize(header.size() + sampleBytes + TerFormat::end.size());
    std::byte* place = std::copy(header.begin(), header.end(), file.data());

    // The bottom row of the picture is the first of the file.
    for (int y = points - 1; y >= 0; --y) {
        auto* samples = reinterpret_cast<std::int16_t*>(place);
        if (!NarrowCells(terrain.Row(y, terrain.Points()), samples))
            ReportHeightOutside(terrain, y);
        place += rowBytes;
        host.Progress(PercentOf(terrain.Size() - y, terrain.Size()));
        host.Yield();
    }
    std::memcpy(place, TerFormat::end.data(), TerFormat::end.size());
    host.Progress(100);
}

void SaveT(clsTerrain& terrain, const std::filesystem::path& path, Host& host, OldTail tail) {
    Bytes file;
    EncodeTer(terrain, file, host);
    if (tail == OldTail::Keep)
        OverwriteFile(path, std::move(file));
    else
        ReplaceFile(path, file);
}

}  // namespace quillbrand
