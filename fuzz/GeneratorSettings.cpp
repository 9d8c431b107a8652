// A .par file of the generator: every value lies in the range of its control.

#include "generator/GeneratorSettings.h"

#include "fuzz/Target.h"

using namespace quillbrand;

namespace {

template <typename Number>
bool Within(Number low, Number value, Number high) {
    return low <= value && value <= high;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const IniFile file = IniFile::Parse(std::as_bytes(std::span(data, size)));
    const LoadedGeneratorSettings loaded = ReadGeneratorSettings(file, 3, 5);
    const GeneratorSettings& settings = loaded.settings;
    Require(Within(0, settings.set, 4), "the row is in the list");
    Require(Within(1, settings.iterations, 11), "iterations");
    Require(Within(1, settings.height, 100), "height");
    Require(Within(0, settings.structure, 4), "structure");
    Require(Within(0, settings.roughness, 10), "roughness");
    Require(settings.seed.size() < 255, "the seed is cut to its buffer");
    return 0;
}
