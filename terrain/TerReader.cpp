#include "terrain/TerReader.h"

#include <cassert>
#include <string_view>

#include "terrain/HeightWriter.h"
#include "terrain/RowKernels.h"
#include "terrain/TerFormat.h"

namespace quillbrand {

namespace {

/// The searched head of a file and the values that follow its chunk names.
class Chunks {
  public:
    Chunks(const ByteReader& reader, std::string_view head) : reader_(reader), head_(head) {}

    /// Place of a name counted from 1, or 0; a name that is not there reads as standing before
    /// the file's first byte.
    std::size_t Place(std::string_view name) const {
        const auto found = head_.find(name);
        return found == std::string_view::npos ? 0 : found + 1;
    }

    /// The value `index` places behind a chunk name.
    template <typename Value>
    Value Get(std::string_view name, std::size_t index = 0) const {
        return reader_.ValueAt<Value>(Place(name) + 3 + index * sizeof(Value));
    }

    template <typename Value>
    Value GetOr(std::string_view name, std::size_t index, Value absent) const {
        return Place(name) > 0 ? Get<Value>(name, index) : absent;
    }

  private:
    const ByteReader& reader_;
    std::string_view head_;
};

void CheckSize(int size, const char* chunk, const std::string& name) {
    if (size > TerFormat::largestSize)
        throw Fault("Terrain to big: " + name + " has " + std::to_string(size) +
                        " intervals per side, at most " + std::to_string(TerFormat::largestSize) +
                        " can be loaded",
                    "Load Terrain");
    if (size < 1)
        throw Fault(name + " says a size of " + std::to_string(size) + " intervals per side (" +
                        chunk + "), at least 1 is needed",
                    "Load Terrain");
}

}  // namespace

bool IsTer(std::span<const std::byte> bytes) {
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return text.starts_with(TerFormat::magic);
}

TerContent ParseTer(std::span<const std::byte> bytes, const std::string& name) {
    const ByteReader reader(bytes, name);
    const Chunks chunks(reader, reader.TextAt(0, TerFormat::searched));
    const int size = chunks.Get<std::int16_t>("SIZE");
    CheckSize(size, "SIZE", name);

    TerContent content{};
    content.HeightScale = chunks.GetOr<std::int16_t>("ALTW", 0, 30);
    content.BaseHeight = chunks.GetOr<std::int16_t>("ALTW", 1, 5);
    content.points = chunks.Place("XPTS") > 0 ? chunks.Get<std::int16_t>("XPTS") : size + 1;
    CheckSize(content.points - 1, "XPTS", name);
    content.ScaleT = chunks.GetOr<float>("SCAL", 2, 30.0f);
    if (chunks.Place("CRVM") > 0)
        content.CRVM = chunks.Get<std::int16_t>("CRVM");
    content.CRAD = chunks.GetOr<float>("CRAD", 0, 6370.0f);
    CheckScales(content.ScaleT, content.CRAD, name);

    const std::size_t start = chunks.Place("ALTW") + TerFormat::samplesBehindAltw - 1;
    const auto points = static_cast<std::size_t>(content.points);
    content.samples = reader.At(start, sizeof(std::int16_t) * points * points);
    return content;
}

void StoreTer(const TerContent& content, clsTerrain& terrain) {
    assert(content.samples.size() == sizeof(std::int16_t) *
                                         static_cast<std::size_t>(content.points) *
                                         static_cast<std::size_t>(content.points));
    terrain.Init(content.points);
    terrain.HeightScale(content.HeightScale);
    terrain.BaseHeight(content.BaseHeight);
    terrain.ScaleT(content.ScaleT);
    if (content.CRVM)
        terrain.CRVM(*content.CRVM);
    terrain.CRAD(content.CRAD);

    const auto rowBytes = sizeof(std::int16_t) * static_cast<std::size_t>(content.points);
    const std::byte* place = content.samples.data();
    std::vector<std::int16_t> row(static_cast<std::size_t>(content.points));
    HeightWriter writer(terrain, terrain.Points());
    for (int y = terrain.Size(); y >= 0; --y, place += rowBytes) {
        // Through a row of our own, because samples may start at an odd place.
        std::memcpy(row.data(), place, rowBytes);
        WidenSamples(row, writer.UnmeasuredRow(y), writer.Stored());
    }
}

}  // namespace quillbrand
