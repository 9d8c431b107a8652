#include "terrain/StepPacking.h"

#include <zstd.h>

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <new>
#include <span>
#include <utility>

#include "terrain/HeightWriter.h"
#include "terrain/StepKernels.h"

namespace quillbrand {

namespace {

int SideOf(const clsTerrain& terrain) {
    return terrain.Size() + 3;
}

std::size_t BandCells(int side) {
    return std::size_t{tileSide} * static_cast<std::size_t>(side);
}

/// Calls action(row, cells) for each row of a rectangle, counted from its first.
template <typename Action>
void ForRows(clsTerrain& terrain, const GridRect& rect, Action action) {
    HeightWriter writer(terrain, rect);
    for (int row = 0; row < rect.Rows(); ++row)
        action(row, writer.Row(rect.y0 + row));
}

/// The rows of a tile's height of a grid, widened with zeros to `side` cells and as many rows where
/// the grid itself is smaller.
class Band {
  public:
    Band(const clsTerrain& terrain, int side) : terrain_(terrain), side_(side) {
        if (SideOf(terrain) < side)
            widened_ = GridBuffer<Height>(BandCells(side));
    }

    void MoveTo(int top, int rows) {
        top_ = top;
        if (widened_.size() == 0)
            return;
        std::fill_n(widened_.data(), widened_.size(), 0);
        for (int y = 0; y < rows && top + y < SideOf(terrain_); ++y)
            std::ranges::copy(terrain_.Row(top + y), widened_.data() + std::ptrdiff_t{side_} * y);
    }

    /// Row y of the band, `side` cells.
    const Height* Row(int y) const {
        return widened_.size() == 0 ? terrain_.Row(top_ + y).data()
                                    : widened_.data() + std::ptrdiff_t{side_} * y;
    }

  private:
    const clsTerrain& terrain_;
    int side_;
    GridBuffer<Height> widened_;
    int top_ = 0;
};

/// Calls action(first, last) for each row of marks that stand next to each other.
template <typename Action>
void ForMarkedTiles(const std::vector<std::uint8_t>& marks, Action action) {
    const auto begin = marks.begin();
    for (auto first = std::find(begin, marks.end(), 1); first != marks.end();) {
        const auto last = std::find(first, marks.end(), 0);
        action(static_cast<int>(first - begin), static_cast<int>(last - begin));
        first = std::find(last, marks.end(), 1);
    }
}

/// The length is never in doubt, so that memory is all that can be wanting.
std::size_t Checked(std::size_t length) {
    if (ZSTD_isError(length))
        throw std::bad_alloc();
    return length;
}

/// Heights repeat by chance only. What makes them small is the coding of single bytes, so the
/// search for repeats is held so short that it finds just the long ones: half the time for about
/// the same memory.
ZSTD_CCtx* NewPackingContext() {
    ZSTD_CCtx* context = ZSTD_createCCtx();
    if (context == nullptr)
        throw std::bad_alloc();
    for (const auto& [parameter, value] :
         {std::pair{ZSTD_c_compressionLevel, 1}, {ZSTD_c_minMatch, 7}, {ZSTD_c_hashLog, 10}}) {
        [[maybe_unused]] const std::size_t set = ZSTD_CCtx_setParameter(context, parameter, value);
        assert(!ZSTD_isError(set));
    }
    return context;
}

template <typename Buffer>
void MakeRoom(Buffer& buffer, std::size_t count) {
    if (buffer.size() < count)
        buffer = Buffer(count);
}

}  // namespace

void StepPacker::Free::operator()(ZSTD_CCtx_s* context) const {
    ZSTD_freeCCtx(context);
}

void StepPacker::Free::operator()(ZSTD_DCtx_s* context) const {
    ZSTD_freeDCtx(context);
}

void StepPacker::PrepareToPack(int side) {
    MakeRoom(codes_, BandCells(side));
    MakeRoom(plane_, BandCells(side));
    MakeRoom(packed_, 4 * ZSTD_compressBound(BandCells(side)));
    MakeRoom(sums_, static_cast<std::size_t>(side));
    if (!packing_)
        packing_.reset(NewPackingContext());
}

void StepPacker::Prepare(int side) {
    MakeRoom(codes_, BandCells(side));
    MakeRoom(plane_, BandCells(side));
    MakeRoom(sums_, static_cast<std::size_t>(side));
    if (!unpacking_)
        unpacking_.reset(ZSTD_createDCtx());
    if (!unpacking_)
        throw std::bad_alloc();
}

std::vector<PackedBlock> StepPacker::Pack(const clsTerrain& before, const clsTerrain& after) {
    const int side = std::max(SideOf(before), SideOf(after));
    PrepareToPack(side);
    Band one(before, side);
    Band other(after, side);
    std::vector<std::uint8_t> marks(static_cast<std::size_t>((side + tileSide - 1) / tileSide));
    std::vector<PackedBlock> blocks;
    for (int top = 0; top < side; top += tileSide) {
        const int rows = std::min(tileSide, side - top);
        one.MoveTo(top, rows);
        other.MoveTo(top, rows);
        std::ranges::fill(marks, std::uint8_t{0});
        for (int y = 0; y < rows; ++y)
            MarkTiles(one.Row(y), other.Row(y), side, marks.data());
        ForMarkedTiles(marks, [&](int first, int last) {
            const int x = first * tileSide;
            PackedBlock block{x, top, std::min(last * tileSide, side) - x, rows, {}, {}};
            const auto width = static_cast<std::size_t>(block.width);
            std::fill_n(sums_.data(), width, 0);
            std::uint32_t all = 0;
            for (int y = 0; y < rows; ++y)
                all |= FoldRow(one.Row(y) + x, other.Row(y) + x, width, sums_.data(),
                               codes_.data() + width * static_cast<std::size_t>(y));
            PackCodes(all, block);
            blocks.push_back(std::move(block));
        });
    }
    return blocks;
}

void StepPacker::PackCodes(std::uint32_t allCodes, PackedBlock& block) {
    const std::size_t count = block.Count();
    std::size_t used = 0;
    for (int i = 0; i < 4; ++i) {
        if ((allCodes >> (8 * i) & 0xff) == 0)
            continue;
        SplitPlane(codes_.data(), count, 8 * i, plane_.data());
        block.planeBytes[i] = Checked(ZSTD_compress2(packing_.get(), packed_.data() + used,
                                                     packed_.size() - used, plane_.data(), count));
        used += block.planeBytes[i];
    }
    const auto packed = std::as_bytes(packed_.All().first(used));
    block.bytes.assign(packed.begin(), packed.end());
}

void StepPacker::Follow(const PackedBlock& block, Way way, clsTerrain& terrain) {
    const GridRect rect = GridRect::Cut(block.x, block.y, block.x + block.width - 1,
                                        block.y + block.height - 1, terrain.Cells());
    if (rect.IsEmpty())
        return;
    const auto columns = static_cast<std::size_t>(rect.Columns());
    const std::size_t count = block.Count();
    assert(unpacking_ && codes_.size() >= count && sums_.size() >= columns);
    std::fill_n(codes_.data(), count, 0);
    const std::byte* packed = block.bytes.data();
    for (int i = 0; i < 4; ++i) {
        if (block.planeBytes[i] == 0)
            continue;
        [[maybe_unused]] const std::size_t length = ZSTD_decompressDCtx(
            unpacking_.get(), plane_.data(), count, packed, block.planeBytes[i]);
        assert(length == count);
        JoinPlane(plane_.data(), count, 8 * i, codes_.data());
        packed += block.planeBytes[i];
    }
    std::fill_n(sums_.data(), columns, 0);
    ForRows(terrain, rect, [&](int row, std::span<Height> cells) {
        UnfoldRow(codes_.data() + std::ptrdiff_t{block.width} * row, cells.size(),
                  way == Way::Forth, sums_.data(), cells.data());
    });
}

void CopyCells(const clsTerrain& from, clsTerrain& to, int x, int y, int width, int height) {
    const GridRect rect =
        GridRect::Cut(x, y, x + width - 1, y + height - 1, from.Cells()).CutTo(to.Cells());
    if (!rect.IsEmpty())
        ForRows(to, rect, [&](int row, std::span<Height> cells) {
            std::ranges::copy(from.Row(rect.y0 + row, rect), cells.begin());
        });
}

}  // namespace quillbrand
