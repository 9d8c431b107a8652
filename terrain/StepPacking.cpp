#include "terrain/StepPacking.h"

#include <zstd.h>

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <new>

#include "terrain/StepKernels.h"

namespace quillbrand {

namespace {

/// Fast, and what level 3 would save on top is not worth a pause of twice the length.
constexpr int packingLevel = 1;

int SideOf(const clsTerrain& terrain) {
    return terrain.Size() + 3;
}

std::size_t BandCells(int side) {
    return std::size_t{tileSide} * static_cast<std::size_t>(side);
}

/// The cells of a grid for writing; the only place that asks for them.
struct Cells {
    explicit Cells(clsTerrain& terrain) {
        HeightWriter writer(terrain);
        first = writer.Row(0).data();
        stride = writer.Row(1).data() - first;
    }
    Height* At(int x, int y) const { return first + y * stride + x; }

    Height* first;
    std::ptrdiff_t stride;
};

/// The rows top..top + rows - 1 of a grid, widened with zeros to `side` cells and as many rows
/// where the grid itself is smaller.
class Band {
  public:
    Band(const clsTerrain& terrain, int side) : terrain_(terrain), side_(side) {
        if (SideOf(terrain) < side)
            widened_ = GridBuffer<Height>(BandCells(side));
    }

    void MoveTo(int top, int rows) {
        if (widened_.size() == 0) {
            first_ = terrain_.Row(top).data();
            stride_ = terrain_.Row(1).data() - terrain_.Row(0).data();
            return;
        }
        std::fill_n(widened_.data(), widened_.size(), 0);
        for (int y = 0; y < rows && top + y < SideOf(terrain_); ++y)
            std::ranges::copy(terrain_.Row(top + y), widened_.data() + std::ptrdiff_t{side_} * y);
        first_ = widened_.data();
        stride_ = side_;
    }

    const Height* At(int x, int y) const { return first_ + y * stride_ + x; }
    std::ptrdiff_t Stride() const { return stride_; }

  private:
    const clsTerrain& terrain_;
    int side_;
    GridBuffer<Height> widened_;
    const Height* first_ = nullptr;
    std::ptrdiff_t stride_ = 0;
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
    if (!packing_)
        packing_.reset(ZSTD_createCCtx());
    if (!packing_)
        throw std::bad_alloc();
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
            MarkTiles(one.At(0, y), other.At(0, y), side, marks.data());
        ForMarkedTiles(marks, [&](int first, int last) {
            const int x = first * tileSide;
            const int width = std::min(last * tileSide, side) - x;
            blocks.push_back(PackBlock(
                x, top, {one.At(x, 0), one.Stride(), other.At(x, 0), other.Stride(), width, rows}));
        });
    }
    return blocks;
}

PackedBlock StepPacker::PackBlock(int x, int y, const CellPair& cells) {
    PackedBlock block{x, y, static_cast<int>(cells.width), static_cast<int>(cells.height), {}, {}};
    const std::uint32_t allCodes = FoldDifferences(cells, codes_.data());
    const std::size_t count = block.Count();
    std::size_t used = 0;
    for (int i = 0; i < 4; ++i) {
        if ((allCodes >> (8 * i) & 0xff) == 0)
            continue;
        SplitPlane(codes_.data(), count, 8 * i, plane_.data());
        block.planeBytes[i] =
            Checked(ZSTD_compressCCtx(packing_.get(), packed_.data() + used, packed_.size() - used,
                                      plane_.data(), count, packingLevel));
        used += block.planeBytes[i];
    }
    const auto packed = std::as_bytes(packed_.All().first(used));
    block.bytes.assign(packed.begin(), packed.end());
    return block;
}

void StepPacker::Follow(const PackedBlock& block, Way way, clsTerrain& terrain) {
    const int columns = std::min(block.width, SideOf(terrain) - block.x);
    const int rows = std::min(block.height, SideOf(terrain) - block.y);
    if (columns <= 0 || rows <= 0)
        return;
    const std::size_t count = block.Count();
    assert(unpacking_ && codes_.size() >= count && sums_.size() >= std::size_t(columns));
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
    const Cells cells(terrain);
    UnfoldDifferences(codes_.data(), block.width, way == Way::Forth, cells.At(block.x, block.y),
                      cells.stride, columns, rows, sums_.data());
}

void CopyCells(const clsTerrain& from, clsTerrain& to, int x, int y, int width, int height) {
    const int side = std::min(SideOf(from), SideOf(to));
    const int columns = std::min(width, side - x);
    const Cells cells(to);
    for (int end = std::min(y + height, side); y < end && columns > 0; ++y)
        std::copy_n(from.Row(y).data() + x, columns, cells.At(x, y));
}

}  // namespace quillbrand
