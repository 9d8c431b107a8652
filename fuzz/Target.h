#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// The one function of a fuzz target: gives the bytes to a reader, which must take any of them or
/// throw Fault, and aborts when what was read is not as promised. Returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace quillbrand {

/// Ends the process, which counts as a finding, unless `holds`.
inline void Require(bool holds, const char* promise) {
    if (holds)
        return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}

}  // namespace quillbrand
