// A backup: its cells are taken as they are, and any cells can be scaled and then saved.

#include "terrain/Backup.h"

#include <algorithm>

#include "base/Fault.h"
#include "fuzz/Target.h"
#include "terrain/TerWriter.h"
#include "tests/support/RecordingHost.h"

using namespace quillbrand;

namespace {

bool HoldsTheCells(const clsTerrain& terrain, std::span<const std::byte> bytes) {
    auto place = bytes.begin() + TerHeader::bytes;
    for (int y = 0; y <= terrain.Size() + 2; ++y) {
        const auto row = std::as_bytes(terrain.Row(y));
        if (!std::equal(row.begin(), row.end(), place))
            return false;
        place += static_cast<std::ptrdiff_t>(row.size());
    }
    return true;
}

void DecodeAndScale(clsTerrain& terrain, std::span<const std::byte> bytes) {
    DecodeBackup(terrain, bytes, "input");
    Require(HoldsTheCells(terrain, bytes), "the cells are the ones of the file");
    try {
        terrain.ScaleTerrain();
        RecordingHost host;
        Bytes file;
        EncodeTer(terrain, file, host);
    } catch (const Fault& fault) {
        Require(false, fault.what());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    clsTerrain terrain;
    terrain.Init(2);
    terrain.Fill(7);
    try {
        DecodeAndScale(terrain, std::as_bytes(std::span(data, size)));
    } catch (const Fault&) {
        Require(terrain.XPoints() == 2 && terrain.GetPoint(1, 1) == 7,
                "a damaged backup leaves the terrain as it was");
    }
    return 0;
}
