#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

namespace quillbrand {

/// Memory for whole grids. Large blocks that are given back are kept for the next grid of the same
/// size, because touching fresh memory costs several times what a pass over a grid does.
/// For the thread of the user interface only.
namespace GridMemory {

/// `bytes` of memory with any content, on a 64-byte boundary. Throws Fault when there is none.
void* Take(std::size_t bytes);

/// Gives back what Take(`bytes`) returned.
void Give(void* block, std::size_t bytes) noexcept;

}  // namespace GridMemory

/// A one-dimensional store of plain cells, owned, from GridMemory.
template <typename Cell>
class GridBuffer {
  public:
    GridBuffer() = default;

    /// `count` cells with any content.
    explicit GridBuffer(std::size_t count)
        : cells_(static_cast<Cell*>(GridMemory::Take(count * sizeof(Cell)))), count_(count) {}

    GridBuffer(std::size_t count, Cell value) : GridBuffer(count) {
        std::fill_n(cells_, count_, value);
    }

    GridBuffer(const GridBuffer& other) : GridBuffer(other.count_) {
        std::copy_n(other.cells_, count_, cells_);
    }
    GridBuffer(GridBuffer&& other) noexcept { swap(other); }
    GridBuffer& operator=(GridBuffer other) noexcept {
        swap(other);
        return *this;
    }
    ~GridBuffer() {
        if (cells_ != nullptr)
            GridMemory::Give(cells_, count_ * sizeof(Cell));
    }

    void swap(GridBuffer& other) noexcept {
        std::swap(cells_, other.cells_);
        std::swap(count_, other.count_);
    }

    Cell* data() { return cells_; }
    const Cell* data() const { return cells_; }
    std::size_t size() const { return count_; }
    Cell& operator[](std::size_t i) { return cells_[i]; }
    const Cell& operator[](std::size_t i) const { return cells_[i]; }
    std::span<Cell> All() { return {cells_, count_}; }
    std::span<const Cell> All() const { return {cells_, count_}; }

  private:
    Cell* cells_ = nullptr;
    std::size_t count_ = 0;
};

/// A square array of 32-bit numbers with the indices 0..Upper() in both directions, the first one
/// fastest in memory.
class SquareArray {
  public:
    /// All cells hold anything.
    explicit SquareArray(int upper)
        : upper_(upper), cells_(static_cast<std::size_t>(upper + 1) * (upper + 1)) {}

    SquareArray(int upper, std::int32_t value) : SquareArray(upper) {
        std::fill_n(cells_.data(), cells_.size(), value);
    }

    int Upper() const { return upper_; }
    std::int32_t& operator()(int i, int j) { return Row(j)[i]; }
    std::int32_t operator()(int i, int j) const { return Row(j)[i]; }

    /// Its memory, row after row. The array is of no use afterwards.
    GridBuffer<std::int32_t> TakeCells() && { return std::move(cells_); }

    /// The cells (0..Upper(), j).
    std::int32_t* Row(int j) { return cells_.data() + static_cast<std::size_t>(j) * (upper_ + 1); }
    const std::int32_t* Row(int j) const {
        return cells_.data() + static_cast<std::size_t>(j) * (upper_ + 1);
    }

  private:
    int upper_;
    GridBuffer<std::int32_t> cells_;
};

}  // namespace quillbrand
