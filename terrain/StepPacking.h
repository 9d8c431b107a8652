#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "base/Files.h"
#include "base/GridMemory.h"
#include "terrain/clsTerrain.h"

struct ZSTD_CCtx_s;
struct ZSTD_DCtx_s;

namespace quillbrand {

/// A rectangle of cells in which a grid differs between two states, and packed in it the earlier
/// heights minus the later ones, in 32 bits that wrap around: one record leads both ways.
struct PackedBlock {
    int x;
    int y;
    int width;
    int height;                               ///< tileSide at most
    std::array<std::size_t, 4> planeBytes{};  ///< of each byte of the differences; 0: all are 0
    Bytes bytes;                              ///< the packed planes, one after the other

    std::size_t Count() const {
        return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    }
};

/// Which way a record is followed: to the earlier state or to the later one.
enum class Way { Back, Forth };

/// Makes records of what differs between two grids, margin included, and follows them. The sides
/// may differ: a cell that one of the grids lacks counts as 0 there. Keeps its scratch memory from
/// one call to the next.
class StepPacker {
  public:
    /// The blocks that differ, whole tiles next to each other as one. Throws Fault or
    /// std::bad_alloc where there is no memory.
    std::vector<PackedBlock> Pack(const clsTerrain& before, const clsTerrain& after);

    /// Gets the memory that Follow needs for blocks of grids up to `side` cells wide. Throws as
    /// Pack does.
    void Prepare(int side);

    /// Changes the cells of `block`, as far as the grid has them, into the other state.
    /// Requires: Prepare.
    void Follow(const PackedBlock& block, Way way, clsTerrain& terrain);

  private:
    struct Free {
        void operator()(ZSTD_CCtx_s* context) const;
        void operator()(ZSTD_DCtx_s* context) const;
    };

    void PrepareToPack(int side);
    void PackCodes(std::uint32_t allCodes, PackedBlock& block);

    std::unique_ptr<ZSTD_CCtx_s, Free> packing_;
    std::unique_ptr<ZSTD_DCtx_s, Free> unpacking_;
    GridBuffer<std::uint32_t> codes_;
    GridBuffer<std::uint8_t> plane_;
    GridBuffer<std::uint8_t> packed_;
    GridBuffer<std::uint32_t> sums_;
};

/// Copies the cells of a rectangle as far as both grids have them.
/// Requires: x, y >= 0.
void CopyCells(const clsTerrain& from, clsTerrain& to, int x, int y, int width, int height);

}  // namespace quillbrand
