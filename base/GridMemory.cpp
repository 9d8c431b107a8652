#include "base/GridMemory.h"

#include <sys/mman.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "base/Fault.h"

namespace quillbrand::GridMemory {

namespace {

constexpr std::size_t hugePage = std::size_t{2} << 20;
constexpr std::size_t keptFrom = std::size_t{256} << 10;
constexpr std::size_t keptAtMost = 8;

struct Block {
    void* memory;
    std::size_t bytes;
};

/// Never destroyed, so that a grid in a static object may still be given back at exit.
std::vector<Block>& Kept() {
    static auto* const kept = [] {
        auto* blocks = new std::vector<Block>();
        blocks->reserve(keptAtMost + 1);
        return blocks;
    }();
    return *kept;
}

std::size_t WholeUnits(std::size_t bytes, std::size_t unit) {
    return (bytes + unit - 1) / unit * unit;
}

void* Fresh(std::size_t bytes) {
    const bool large = bytes >= 2 * hugePage;
    const std::size_t unit = large ? hugePage : 64;
    void* memory = std::aligned_alloc(unit, WholeUnits(std::max<std::size_t>(bytes, 1), unit));
    if (memory == nullptr)
        throw Fault("not enough memory for a grid of " + std::to_string(bytes) + " bytes");
    // Advice only: without huge pages the grid works all the same.
    if (large)
        madvise(memory, WholeUnits(bytes, unit), MADV_HUGEPAGE);
    return memory;
}

}  // namespace

void* Take(std::size_t bytes) {
    auto& kept = Kept();
    const auto match = std::find_if(kept.rbegin(), kept.rend(),
                                    [bytes](const Block& block) { return block.bytes == bytes; });
    if (match == kept.rend())
        return Fresh(bytes);
    void* memory = match->memory;
    kept.erase(std::next(match).base());
    return memory;
}

void Give(void* block, std::size_t bytes) noexcept {
    auto& kept = Kept();
    if (bytes < keptFrom) {
        std::free(block);
        return;
    }
    kept.push_back({block, bytes});
    if (kept.size() > keptAtMost) {
        std::free(kept.front().memory);
        kept.erase(kept.begin());
    }
}

}  // namespace quillbrand::GridMemory
