// A .par file of natural erosion: every value lies in the range of its slider.

#include "effects/ErosionSettings.h"

#include "fuzz/Target.h"

using namespace quillbrand;

namespace {

bool Within(int low, int value, int high) {
    return low <= value && value <= high;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const IniFile file = IniFile::Parse(std::as_bytes(std::span(data, size)));
    const ErosionSettings settings = ReadErosionSettings(file);
    Require(Within(1000, settings.dropCount, 50000), "drop count");
    Require(Within(1, settings.dropWidth, 20), "drop width");
    Require(Within(1, settings.slideDepth, 10), "slide depth");
    Require(Within(1, settings.erosionDepth, 8), "erosion depth");
    return 0;
}
