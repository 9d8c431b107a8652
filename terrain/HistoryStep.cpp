#include "terrain/HistoryStep.h"

#include <array>
#include <bit>
#include <cstddef>

namespace quillbrand {

namespace {

/// The record bit by bit, with the tags that saving sets.
auto BytesOf(TerHeader header) {
    static_assert(sizeof header == TerHeader::bytes, "no gaps");
    header.FillTags();
    return std::bit_cast<std::array<std::byte, TerHeader::bytes>>(header);
}

}  // namespace

bool DocumentState::SameAs(const DocumentState& other) const {
    return TerrainEmpty == other.TerrainEmpty && terrain.FixHeight == other.terrain.FixHeight &&
           BytesOf(terrain.header) == BytesOf(other.terrain.header);
}

std::size_t HistoryStep::Bytes() const {
    std::size_t bytes = sizeof *this + name.size() + before.CurrentFile.size() +
                        after.CurrentFile.size() + blocks.size() * sizeof(PackedBlock);
    for (const PackedBlock& block : blocks)
        bytes += block.bytes.size();
    return bytes;
}

}  // namespace quillbrand
