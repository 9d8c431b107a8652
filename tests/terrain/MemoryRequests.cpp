#include "tests/terrain/MemoryRequests.h"

#include <cstdlib>
#include <new>

namespace {

bool Fails() {
    using quillbrand::MemoryRequests;
    return MemoryRequests::count++ == MemoryRequests::failing;
}

}  // namespace

void* operator new(std::size_t bytes) {
    void* memory = Fails() ? nullptr : std::malloc(bytes);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

// Where whole grids come from.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
extern "C" void* aligned_alloc(std::size_t alignment, std::size_t bytes) noexcept {
    void* memory = nullptr;
    return Fails() || posix_memalign(&memory, alignment, bytes) != 0 ? nullptr : memory;
}
