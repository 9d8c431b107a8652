// A TER file: whatever is read can be written and read again without a change.

#include <bit>

#include "base/Fault.h"
#include "fuzz/Target.h"
#include "terrain/TerReader.h"
#include "terrain/TerWriter.h"
#include "tests/support/Grids.h"
#include "tests/support/RecordingHost.h"

using namespace quillbrand;

namespace {

bool SameBits(float a, float b) {
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}

bool Same(const clsTerrain& a, const clsTerrain& b) {
    return a.XPoints() == b.XPoints() && a.HeightScale() == b.HeightScale() &&
           a.BaseHeight() == b.BaseHeight() && a.CRVM() == b.CRVM() &&
           SameBits(a.ScaleT(), b.ScaleT()) && SameBits(a.CRAD(), b.CRAD()) && a.min() == b.min() &&
           a.max() == b.max() && AllCells(a) == AllCells(b);
}

/// False where a value, such as a scale, happens to spell the name of a chunk. Readers search for
/// the names, so that they then find the wrong place; no writer can help it.
bool NamesAreInTheirPlaces(const Bytes& file) {
    const std::string_view text(reinterpret_cast<const char*>(file.data()), file.size());
    return text.find("SIZE") == 16 && text.find("XPTS") == 24 && text.find("SCAL") == 40 &&
           text.find("CRAD") == 56 && text.find("CRVM") == 64 && text.find("ALTW") == 72;
}

void RoundTrip(std::span<const std::byte> bytes) {
    clsTerrain terrain;
    StoreTer(ParseTer(bytes, "input"), terrain);
    Require(terrain.min() >= INT16_MIN && terrain.max() <= INT16_MAX, "heights have 16 bits");

    RecordingHost host;
    Bytes written;
    EncodeTer(terrain, written, host);
    if (!NamesAreInTheirPlaces(written))
        return;
    clsTerrain again;
    StoreTer(ParseTer(written, "written"), again);
    Require(Same(terrain, again), "what was read survives a round trip");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        RoundTrip(std::as_bytes(std::span(data, size)));
    } catch (const Fault&) {
        // The file is damaged, and told so.
    }
    return 0;
}
